// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskfile.h"

#include "mbr.h"

#include <QFile>
#include <QThread>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace
{

constexpr int lockPauseMs = 100;

} // namespace

DiskFile::DiskFile(const QString& device, Access access)
    : path(device)
{
    // O_EXCL without O_CREAT claims a block device: it fails while a part of it is mounted.
    const int mode = access == Access::Read ? O_RDONLY : O_RDWR | O_EXCL;
    descriptor = ::open(QFile::encodeName(path).constData(), mode | O_CLOEXEC);
    if (descriptor < 0)
        fail(QStringLiteral("cannot be opened"));
}

DiskFile::~DiskFile()
{
    if (descriptor >= 0)
        ::close(descriptor);
}

bool DiskFile::lock(int limitMs)
{
    for (int waitedMs = 0; waitedMs <= limitMs; waitedMs += lockPauseMs) {
        if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
            return true;
        if (errno != EWOULDBLOCK && errno != EINTR)
            break;
        QThread::msleep(lockPauseMs);
    }
    fail(QStringLiteral("cannot be locked"));
    return false;
}

qint64 DiskFile::size()
{
    const off_t end = ::lseek(descriptor, 0, SEEK_END);
    if (end < 0)
        fail(QStringLiteral("does not tell its size"));
    return end;
}

QByteArray DiskFile::firstSector()
{
    std::array<char, sectorSize> sector{};
    errno = 0;
    if (::pread(descriptor, sector.data(), sector.size(), 0) == sectorSize)
        return {sector.data(), sectorSize};
    fail(QStringLiteral("cannot be read"));
    return {};
}

bool DiskFile::writeFirstSector(const QByteArray& sector)
{
    std::array<char, sectorSize> bytes{};
    std::copy_n(sector.cbegin(), std::min(sector.size(), sectorSize), bytes.begin());
    errno = 0;
    if (sector.size() != sectorSize ||
        ::pwrite(descriptor, bytes.data(), bytes.size(), 0) != sectorSize ||
        ::fsync(descriptor) != 0) {
        fail(QStringLiteral("cannot be written"));
        return false;
    }
    // What is read next comes from the device, not from memory.
    ::posix_fadvise(descriptor, 0, 0, POSIX_FADV_DONTNEED);
    return true;
}

void DiskFile::fail(const QString& what)
{
    if (!failure.isEmpty())
        return;
    failure = QStringLiteral("%1 %2").arg(path, what);
    if (errno != 0)
        failure += QStringLiteral(": %1").arg(QString::fromLocal8Bit(std::strerror(errno)));
}
