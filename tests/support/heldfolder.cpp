// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "heldfolder.h"

#include "testfiles.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr int limitMs = 90'000;

} // namespace

HeldFolder::HeldFolder(const QString& folder, qint64 bytes)
    : pipe(folder + ".pipe")
{
    writeFile(folder + "/rest.bin", {});
    const QByteArray path = QFile::encodeName(pipe);
    // A folder's listing leaves out a pipe, yet not a link to one.
    if (!QFile::resize(folder + "/rest.bin", bytes) || ::mkfifo(path, 0600) != 0 ||
        !QFile::link(pipe, folder + "/held.bin"))
        qFatal("cannot make the pipe");
    // Both ends, so that neither this nor the copying waits for the other to open it.
    descriptor = ::open(path, O_RDWR | O_CLOEXEC);
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, [this] { release(); });
    limit.start(limitMs);
}

HeldFolder::~HeldFolder()
{
    release();
}

bool HeldFolder::isHolding() const
{
    const QString self = "/proc/self/fd";
    const QStringList descriptors = QDir(self).entryList(QDir::AllEntries | QDir::System);
    int open = 0;
    for (const QString& number : descriptors) {
        if (QFile::symLinkTarget(self + '/' + number) == pipe)
            ++open;
    }
    return open > 1; // ours and the reader's
}

void HeldFolder::pass(int bytes) const
{
    const QByteArray content(bytes, 'x');
    if (::write(descriptor, content, size_t(bytes)) != bytes)
        qFatal("cannot write to the pipe");
}

void HeldFolder::release()
{
    if (descriptor < 0)
        return;
    // Whoever opens it from now on finds an ordinary file.
    writeFile(pipe + ".end", {});
    if (::rename(QFile::encodeName(pipe + ".end"), QFile::encodeName(pipe)) != 0)
        qFatal("cannot replace the pipe");
    ::close(descriptor);
    descriptor = -1;
}
