// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "heldcopy.h"

#include "testfiles.h"

#include <QFile>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

HeldCopy::HeldCopy(const QString& folder, int bytes)
    : content(bytes, Qt::Uninitialized)
    , name(folder + "/held")
{
    for (int i = 0; i < content.size(); ++i)
        content[i] = char(i % 251);
    writeFile(source(), content);
    const QByteArray path = QFile::encodeName(destination());
    if (mkfifo(path.constData(), 0600) != 0)
        qFatal("Cannot make the pipe %s", path.constData());
    pipe = open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    // A copy that is let go writes into nothing, which shall not end the test run.
    std::signal(SIGPIPE, SIG_IGN);
}

HeldCopy::~HeldCopy()
{
    close(pipe);
}

QString HeldCopy::source() const
{
    return name + ".source";
}

QString HeldCopy::destination() const
{
    return name + ".pipe";
}

qint64 HeldCopy::capacity() const
{
    return fcntl(pipe, F_GETPIPE_SZ);
}

bool HeldCopy::hasBegun(int timeoutMs) const
{
    pollfd watched{pipe, POLLIN, 0};
    return poll(&watched, 1, timeoutMs) == 1;
}

bool HeldCopy::letPass(int bytes)
{
    char block[4096];
    while (bytes > 0 && hasBegun()) {
        const auto wanted = std::min(sizeof block, size_t(bytes));
        const int count = int(read(pipe, block, wanted));
        if (count <= 0)
            return false;
        intact = intact && content.mid(passed, count) == QByteArray::fromRawData(block, count);
        passed += count;
        bytes -= count;
    }
    return bytes == 0;
}

bool HeldCopy::finish()
{
    // The end of the pipe comes when the copy has closed it.
    char beyond = 0;
    return letPass(content.size() - passed) && hasBegun() && read(pipe, &beyond, 1) == 0 && intact;
}
