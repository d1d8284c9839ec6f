// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "mbr.h"

#include "bytes.h"

#include <algorithm>
#include <array>

namespace
{

constexpr int tableOffset = 446;
constexpr int entrySize = 16;
constexpr int entryCount = 4;
constexpr int signatureOffset = 510;
constexpr char active = '\x80';

constexpr std::array<quint8, 5> fatTypes = {0x04, 0x06, 0x0b, 0x0c, 0x0e};
constexpr quint8 gptType = 0xee;

bool hasSignature(const QByteArray& sector)
{
    return sector.size() == sectorSize && byteAt(sector, signatureOffset) == 0x55 &&
           byteAt(sector, signatureOffset + 1) == 0xaa;
}

int entryAt(int index)
{
    return tableOffset + index * entrySize;
}

quint8 typeOf(const QByteArray& sector, int index)
{
    return byteAt(sector, entryAt(index) + 4);
}

bool isPowerOfTwo(int number)
{
    return number > 0 && (number & (number - 1)) == 0;
}

} // namespace

QString mbrRefusal(const QByteArray& sector, qint64 diskSize)
{
    if (!hasSignature(sector))
        return QStringLiteral("the disk has no partition table");
    const quint8 type = typeOf(sector, 0);
    if (type == gptType)
        return QStringLiteral("the disk has a GUID partition table, not an MBR");
    if (std::find(fatTypes.begin(), fatTypes.end(), type) == fatTypes.end())
        return QStringLiteral("the first partition is none for FAT16 or FAT32");
    for (int index = 1; index < entryCount; ++index) {
        if (typeOf(sector, index) != 0)
            return QStringLiteral("the disk has more than one partition");
    }
    const qint64 start = dwordAt(sector, entryAt(0) + 8);
    const qint64 length = dwordAt(sector, entryAt(0) + 12);
    if (start == 0 || length == 0 || (start + length) * sectorSize > diskSize)
        return QStringLiteral("the first partition does not lie on the disk");
    return {};
}

QString fatRefusal(const QByteArray& sector)
{
    const QString refused = QStringLiteral("the first partition holds no FAT file system");
    if (!hasSignature(sector))
        return refused;
    const quint8 jump = byteAt(sector, 0);
    const quint8 fats = byteAt(sector, 16);
    // NTFS and exFAT have the same frame, but no FATs and no reserved sectors.
    if ((jump != 0xeb && jump != 0xe9) || fats < 1 || fats > 2 || wordAt(sector, 14) == 0)
        return refused;
    const int bytesPerSector = wordAt(sector, 11);
    if (!isPowerOfTwo(bytesPerSector) || bytesPerSector < sectorSize || bytesPerSector > 4096 ||
        !isPowerOfTwo(byteAt(sector, 13)))
        return refused;
    return {};
}

qint64 firstPartitionStart(const QByteArray& sector)
{
    return qint64(dwordAt(sector, entryAt(0) + 8)) * sectorSize;
}

QByteArray bootableMbr(const QByteArray& sector, const QByteArray& bootCode)
{
    if (sector.size() != sectorSize || bootCode.isEmpty() || bootCode.size() > bootCodeSize)
        return {};
    QByteArray changed = bootCode.leftJustified(bootCodeSize, '\0') + sector.mid(bootCodeSize);
    for (int index = 0; index < entryCount; ++index)
        changed[entryAt(index)] = index == 0 ? active : '\0';
    return changed;
}
