// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskfile.h"

#include "mbr.h"

#include <QFile>
#include <QThread>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#ifdef __APPLE__
#include <sys/disk.h>
#include <sys/ioctl.h>
#endif

namespace
{

constexpr int lockPauseMs = 100;

} // namespace

DiskFile::DiskFile(const QString& device, Access access)
    : path(device)
{
    // O_EXCL without O_CREAT claims a block device: it fails while a part of it is mounted. macOS
    // fails then for every writer, and takes no notice of the flag.
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

QByteArray DiskFile::read(qint64 offset, qint64 size)
{
    QByteArray bytes(static_cast<int>(size), '\0');
    errno = 0;
    if (::pread(descriptor, bytes.data(), static_cast<size_t>(size), offset) == size)
        return bytes;
    fail(QStringLiteral("cannot be read"));
    return {};
}

bool DiskFile::write(qint64 offset, const QByteArray& bytes)
{
    errno = 0;
    if (::pwrite(descriptor, bytes.constData(), static_cast<size_t>(bytes.size()), offset) ==
        bytes.size())
        return true;
    fail(QStringLiteral("cannot be written"));
    return false;
}

bool DiskFile::flush()
{
    errno = 0;
    if (::fsync(descriptor) != 0) {
        fail(QStringLiteral("cannot be written"));
        return false;
    }
#ifdef __APPLE__
    // The raw node holds nothing back itself. The stick may, and not every one knows this order.
    dk_synchronize_t everything = {};
    ::ioctl(descriptor, DKIOCSYNCHRONIZE, &everything);
#else
    // What is read next comes from the device, not from memory.
    ::posix_fadvise(descriptor, 0, 0, POSIX_FADV_DONTNEED);
#endif
    return true;
}

QByteArray DiskFile::firstSector()
{
    return read(0, sectorSize);
}

bool DiskFile::writeFirstSector(const QByteArray& sector)
{
    if (sector.size() != sectorSize) {
        errno = 0;
        fail(QStringLiteral("cannot be written"));
        return false;
    }
    return write(0, sector) && flush();
}

void DiskFile::fail(const QString& what)
{
    if (!failure.isEmpty())
        return;
    failure = QStringLiteral("%1 %2").arg(path, what);
    if (errno != 0)
        failure += QStringLiteral(": %1").arg(QString::fromLocal8Bit(std::strerror(errno)));
}
