// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "diskfile.h"

#include <QByteArray>
#include <QString>
#include <QVector>

// Reads a FAT16 or FAT32 file system on a disk as sectors, without mounting it, and tells where a
// file of its root folder lies. The installer of the boot loader asks, which has to know the place
// of every sector. Nobody may have the file system mounted for writing meanwhile.
class FatReader
{
public:
    // Where a file lies.
    struct File
    {
        // Its sectors in the order of its content, counted from the start of the file system.
        QVector<quint32> sectors;
        // Bytes.
        qint64 size = 0;
        // Where its directory entry begins, in bytes from the start of the file system.
        qint64 entry = -1;
        // Why it cannot be told; empty on success.
        QString error;
    };

    // The disk stays the caller's and has to outlive this; start is where on it the file system
    // begins, in bytes.
    FatReader(DiskFile& device, qint64 startOfVolume);

    // Why this is no file system for the boot loader; one line, empty when it is one.
    QString error() const { return failure; }
    bool isFat32() const { return entryBytes == 4; }
    // Whole sectors from that offset of the file system on; empty on failure.
    QByteArray read(qint64 offset, qint64 size);
    bool write(qint64 offset, const QByteArray& bytes);

    // Looks in the root folder for a file by its short name as it is stored: eleven capitals
    // without the dot, filled with blanks.
    File find(const QByteArray& storedName);

private:
    QString readParameters();
    // The directory entry of that name, its place in file; empty when there is none or when it
    // cannot be looked for, which file tells.
    QByteArray entryOf(const QByteArray& storedName, File& file);
    // The sectors of the root folder; empty when its chain is damaged.
    QVector<quint32> rootSectors();
    // The sectors of at most that many clusters from the first one on; fewer when the chain ends
    // before, none when it is damaged.
    QVector<quint32> chainSectors(quint32 firstCluster, quint32 limit);
    // What the table tells for a cluster; a damaged one is told as 0, which is a free cluster.
    quint32 next(quint32 cluster);
    bool isCluster(quint32 number) const { return number >= 2 && number < clusters + 2; }

    DiskFile& disk;
    qint64 start;
    QString failure;
    quint32 sectorsPerCluster = 0;
    quint32 tableStart = 0;
    quint32 rootStart = 0;
    // Sectors of the fixed root folder of FAT16; FAT32 has a chain from rootCluster instead.
    quint32 fixedRootSectors = 0;
    quint32 rootCluster = 0;
    quint32 dataStart = 0;
    quint32 clusters = 0;
    int entryBytes = 0;
    // The sector of the table that was read last.
    qint64 cachedSector = -1;
    QByteArray cached;
};
