// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "copyplug.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// The pipe itself is hidden, as copies pass hidden files by, and listings pass pipes by but not
// links to them.
CopyPlug::CopyPlug(const QString& folder)
    : folderPath(folder)
    , pipe(QFile::encodeName(folder + "/.pipe"))
{
    QDir().mkpath(folder);
    const QByteArray link = QFile::encodeName(folder + "/held");
    if (mkfifo(pipe.constData(), 0600) != 0 || symlink(".pipe", link.constData()) != 0)
        qFatal("Cannot make a pipe in %s", qPrintable(folder));
}

CopyPlug::~CopyPlug()
{
    // Opened both ways, it wakes whoever waits for the other end just now.
    const int bothEnds = open(pipe.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    unlink(pipe.constData());
    if (bothEnds >= 0)
        close(bothEnds);
    release();
}

QString CopyPlug::path() const
{
    return folderPath;
}

bool CopyPlug::waitUntilReached()
{
    QElapsedTimer waited;
    waited.start();
    // Fails as long as nobody reads.
    while ((writingEnd = open(pipe.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC)) < 0) {
        if (waited.hasExpired(60'000))
            return false;
        QThread::usleep(50);
    }
    return true;
}

void CopyPlug::release(const QByteArray& content)
{
    if (writingEnd < 0)
        return;
    fcntl(writingEnd, F_SETFL, 0); // from now on it waits for the reader
    if (write(writingEnd, content.constData(), size_t(content.size())) != content.size())
        qFatal("Cannot write into the pipe");
    close(writingEnd);
    writingEnd = -1;
}
