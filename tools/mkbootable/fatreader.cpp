// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "fatreader.h"

#include "bytes.h"
#include "mbr.h"

#include <algorithm>

namespace
{

constexpr int directoryEntrySize = 32;
constexpr int nameSize = 11;
// Long names and volume labels carry the label's bit.
constexpr quint8 labelOrFolder = 0x18;
// More entries no root folder of FAT32 may have; a chain that goes on runs in a circle.
constexpr quint32 rootEntryLimit = 65536;
// The file systems are told apart by their number of clusters alone.
constexpr quint32 fat16MinimumClusters = 4085;
constexpr quint32 fat32MinimumClusters = 65525;
constexpr quint32 fat32MaximumClusters = 0x0ffffff5;
// Up to here the table's entries are numbers of clusters, or damaged.
constexpr quint32 lastOrdinary = 0x0ffffff7;

bool namesOneTwice(QVector<quint32> sectors)
{
    std::sort(sectors.begin(), sectors.end());
    return std::adjacent_find(sectors.cbegin(), sectors.cend()) != sectors.cend();
}

} // namespace

FatReader::FatReader(DiskFile& device, qint64 startOfVolume)
    : disk(device)
    , start(startOfVolume)
{
    failure = readParameters();
}

QByteArray FatReader::read(qint64 offset, qint64 size)
{
    return disk.read(start + offset, size);
}

bool FatReader::write(qint64 offset, const QByteArray& bytes)
{
    return disk.write(start + offset, bytes);
}

QString FatReader::readParameters()
{
    const QByteArray sector = read(0, sectorSize);
    if (sector.isEmpty())
        return disk.error();
    const QString refused = fatRefusal(sector);
    if (!refused.isEmpty())
        return refused;
    if (wordAt(sector, 11) != sectorSize)
        return QStringLiteral("the file system's sectors are not of 512 bytes");
    sectorsPerCluster = byteAt(sector, 13);
    tableStart = wordAt(sector, 14);
    fixedRootSectors =
        (wordAt(sector, 17) * quint32(directoryEntrySize) + sectorSize - 1) / sectorSize;
    const bool looksLikeFat32 = wordAt(sector, 22) == 0;
    const quint64 total = wordAt(sector, 19) != 0 ? wordAt(sector, 19) : dwordAt(sector, 32);
    const quint64 table = looksLikeFat32 ? dwordAt(sector, 36) : wordAt(sector, 22);
    const quint64 root = tableStart + byteAt(sector, 16) * table;
    const quint64 data = root + fixedRootSectors;
    const QString damaged = QStringLiteral("the file system's first sector contradicts itself");
    if (total <= data)
        return damaged;
    const quint64 count = (total - data) / sectorsPerCluster;
    if (count < fat16MinimumClusters)
        return QStringLiteral("the file system is neither FAT16 nor FAT32");
    entryBytes = count < fat32MinimumClusters ? 2 : 4;
    if (looksLikeFat32 != isFat32() || isFat32() != (fixedRootSectors == 0) ||
        count > fat32MaximumClusters || table * sectorSize < (count + 2) * quint64(entryBytes))
        return damaged;
    rootStart = static_cast<quint32>(root);
    dataStart = static_cast<quint32>(data);
    clusters = static_cast<quint32>(count);
    if (isFat32()) {
        rootCluster = dwordAt(sector, 44);
        // Only one table may be in use, not the first then.
        const quint16 flags = wordAt(sector, 40);
        const quint64 inUse = tableStart + (flags & 0x80 ? (flags & 0x0f) * table : 0);
        if (inUse >= root)
            return damaged;
        tableStart = static_cast<quint32>(inUse);
    }
    return {};
}

quint32 FatReader::next(quint32 cluster)
{
    const qint64 offset = qint64(cluster) * entryBytes;
    const qint64 sector = tableStart + offset / sectorSize;
    if (sector != cachedSector) {
        cached = read(sector * sectorSize, sectorSize);
        cachedSector = cached.isEmpty() ? -1 : sector;
    }
    if (cached.isEmpty())
        return 0;
    const int place = static_cast<int>(offset % sectorSize);
    if (isFat32())
        return dwordAt(cached, place) & 0x0fffffff;
    const quint32 number = wordAt(cached, place);
    return number < 0xfff7 ? number : number | 0x0fff0000;
}

QVector<quint32> FatReader::chainSectors(quint32 firstCluster, quint32 limit)
{
    QVector<quint32> sectors;
    quint32 cluster = firstCluster;
    for (quint32 count = 0; count < limit; ++count) {
        if (cluster > lastOrdinary && count > 0)
            break;
        if (!isCluster(cluster))
            return {};
        const quint32 first = dataStart + (cluster - 2) * sectorsPerCluster;
        for (quint32 sector = 0; sector < sectorsPerCluster; ++sector)
            sectors.append(first + sector);
        cluster = next(cluster);
    }
    return sectors;
}

QVector<quint32> FatReader::rootSectors()
{
    if (isFat32()) {
        const quint32 sectorLimit = rootEntryLimit * directoryEntrySize / sectorSize;
        return chainSectors(rootCluster, (sectorLimit - 1) / sectorsPerCluster + 1);
    }
    QVector<quint32> sectors;
    for (quint32 sector = 0; sector < fixedRootSectors; ++sector)
        sectors.append(rootStart + sector);
    return sectors;
}

QByteArray FatReader::entryOf(const QByteArray& storedName, File& file)
{
    const QVector<quint32> root = rootSectors();
    if (root.isEmpty())
        file.error = QStringLiteral("the root folder's chain of clusters is damaged");
    for (const quint32 sector : root) {
        const QByteArray entries = read(qint64(sector) * sectorSize, sectorSize);
        if (entries.isEmpty()) {
            file.error = disk.error();
            return {};
        }
        for (int at = 0; at < sectorSize; at += directoryEntrySize) {
            // Behind the last entry there may be anything.
            if (entries.at(at) == '\0')
                return {};
            if (entries.mid(at, nameSize) != storedName ||
                (byteAt(entries, at + nameSize) & labelOrFolder) != 0)
                continue;
            file.entry = qint64(sector) * sectorSize + at;
            return entries.mid(at, directoryEntrySize);
        }
    }
    return {};
}

FatReader::File FatReader::find(const QByteArray& storedName)
{
    File file;
    file.error = failure;
    if (!failure.isEmpty())
        return file;
    const QString name = QString::fromLatin1(storedName);
    const QByteArray entry = entryOf(storedName, file);
    if (entry.isEmpty()) {
        if (file.error.isEmpty())
            file.error = QStringLiteral("the root folder has no file \"%1\"").arg(name);
        return file;
    }
    file.size = dwordAt(entry, 28);
    const qint64 needed = (file.size + sectorSize - 1) / sectorSize;
    const qint64 clustersNeeded = (needed + sectorsPerCluster - 1) / sectorsPerCluster;
    // The upper half of the number is something else where it cannot be needed.
    const quint32 upper = isFat32() ? wordAt(entry, 20) : 0;
    if (clustersNeeded > 0 && clustersNeeded <= clusters)
        file.sectors =
            chainSectors(upper << 16 | wordAt(entry, 26), static_cast<quint32>(clustersNeeded));
    // What is written to a chain that runs in a circle overwrites itself.
    if (file.sectors.size() < needed || namesOneTwice(file.sectors)) {
        file.sectors.clear();
        file.error = QStringLiteral("the chain of clusters of \"%1\" is damaged").arg(name);
        return file;
    }
    file.sectors.resize(static_cast<int>(needed));
    return file;
}
