// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

// An open device node, closed with the object. mkbootable keeps one open for its lock and opens
// another for each look and each write.
class DiskFile
{
public:
    enum class Access
    {
        Read,
        // For writing, while nobody else uses the device or a part of it.
        Exclusive
    };

    DiskFile(const QString& device, Access access);
    ~DiskFile();
    DiskFile(const DiskFile&) = delete;
    DiskFile& operator=(const DiskFile&) = delete;

    // Why the first operation that failed did so; empty when none has. An object that could not be
    // opened fails in every operation.
    QString error() const { return failure; }

    // Keeps the system's device manager away until this object ends: it would read the partition
    // table anew after every write and have the desktop mount the partition meanwhile. Waits up to
    // limitMs milliseconds for another who holds it.
    bool lock(int limitMs);

    // Size in bytes, -1 on failure. The raw nodes of macOS do not know theirs and tell 0.
    qint64 size();

    // That many bytes from that offset on, empty on failure. Raw nodes want whole sectors.
    QByteArray read(qint64 offset, qint64 size);

    // Writes bytes; they are on the device only after flush().
    bool write(qint64 offset, const QByteArray& bytes);

    // Makes sure that the device has what was written, and that it is what is read next.
    bool flush();

    // The first sector (sectorSize bytes), empty on failure.
    QByteArray firstSector();

    // Writes the first sector and makes sure that the device has it.
    bool writeFirstSector(const QByteArray& sector);

private:
    // Keeps the system's reason for what went wrong first.
    void fail(const QString& what);

    QString path;
    int descriptor = -1;
    QString failure;
};
