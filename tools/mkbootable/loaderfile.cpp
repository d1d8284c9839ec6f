// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "loaderfile.h"

#include "bytes.h"
#include "mbr.h"

namespace
{

constexpr quint32 magic = 0x3eb202fe;
constexpr quint32 dataBegin = 0x5a2d2fa5;
constexpr quint32 dataSum = 0xa3041767;
constexpr quint32 dataEnd = 0xdd28bf64;
constexpr int dataSectors = 2;
constexpr int dwordSize = 4;

// The patch area, from the magic number on.
constexpr int instance = 4;
constexpr int loaderSectorCount = 8;
constexpr int dataSectorCount = 10;
constexpr int dwordCount = 12;
constexpr int checksum = 16;
constexpr int fieldsPointer = 22;
constexpr int patchAreaSize = 24;

// One piece of the file: the first sector in 64 bits and how many. The loader counts a piece's
// bytes in 16 bits.
constexpr int extentSize = 10;
constexpr int extentSectors = 127;
constexpr int dataPointerSize = 8;

// What of the boot sector belongs to the file system and stays.
constexpr int parametersBegin = 11;
constexpr int parametersEndFat16 = 62;
constexpr int parametersEndFat32 = 90;
constexpr int signature = 510;

// An empty one of the sectors for the loader's own data. The checksum is over the zeros between.
QByteArray emptyData()
{
    QByteArray sector(sectorSize, '\0');
    putDword(sector, 0, dataBegin);
    putDword(sector, dwordSize, dataSum);
    putDword(sector, sectorSize - dwordSize, dataEnd);
    return sector;
}

bool isData(const QByteArray& sector)
{
    return sector.size() == sectorSize && dwordAt(sector, 0) == dataBegin &&
           dwordAt(sector, sectorSize - dwordSize) == dataEnd;
}

// The file without the data that an installation has appended.
QByteArray withoutData(QByteArray file)
{
    const int size = dataSectors * sectorSize;
    if (file.size() > size && isData(file.right(size).left(sectorSize)) &&
        isData(file.right(sectorSize)))
        file.chop(size);
    return file;
}

void putSector(QByteArray& bytes, int offset, quint32 sector)
{
    putDword(bytes, offset, sector);
    putDword(bytes, offset + dwordSize, 0);
}

} // namespace

LoaderFile::LoaderFile(const QByteArray& shipped)
{
    // The loader is read as whole sectors, of which the last is filled with zeros.
    bytes = withoutData(shipped);
    const int rest = bytes.size() % sectorSize;
    if (rest != 0)
        bytes.append(sectorSize - rest, '\0');
    failure = readPatchArea();
    if (failure.isEmpty())
        failure = readFields();
    for (int copy = 0; copy < dataSectors; ++copy)
        bytes += emptyData();
}

QString LoaderFile::readPatchArea()
{
    const int loaderSectors = bytes.size() / sectorSize;
    if (loaderSectors < 2 || loaderSectors > 0xffff)
        return QStringLiteral("has no size of the boot loader");
    for (patchArea = 0; patchArea <= sectorSize - patchAreaSize; patchArea += dwordSize) {
        if (dwordAt(bytes, patchArea) == magic)
            return {};
    }
    return QStringLiteral("is not the boot loader");
}

QString LoaderFile::readFields()
{
    const QString damaged = QStringLiteral("is a damaged boot loader or one of an unknown version");
    constexpr int fieldCount = 9;
    const int fields = wordAt(bytes, patchArea + fieldsPointer);
    if (fields < patchArea + patchAreaSize || fields + fieldCount * 2 > bytes.size())
        return damaged;
    const auto field = [this, fields](int index) { return int(wordAt(bytes, fields + index * 2)); };
    dataPointers = field(0);
    folder = field(1);
    folderSize = field(2);
    subvolume = field(3);
    subvolumeSize = field(4);
    extents = field(5);
    extentLimit = field(6);
    firstSectorLow = field(7);
    firstSectorHigh = field(8);
    const auto isInside = [this](int offset, int size) {
        return offset >= patchArea + patchAreaSize && offset + size <= bytes.size();
    };
    const auto isInCode = [](int offset) {
        return offset >= parametersEndFat32 && offset + dwordSize <= signature;
    };
    if (!isInside(dataPointers, dataSectors * dataPointerSize) || !isInside(folder, folderSize) ||
        !isInside(subvolume, subvolumeSize) || !isInside(extents, extentLimit * extentSize) ||
        !isInCode(firstSectorLow) || !isInCode(firstSectorHigh))
        return damaged;
    return {};
}

int LoaderFile::contentSectors() const
{
    return bytes.size() / sectorSize;
}

QByteArray LoaderFile::patched(const QVector<quint32>& sectors) const
{
    const int loaderSectors = contentSectors() - dataSectors;
    if (!failure.isEmpty() || sectors.size() != contentSectors())
        return {};
    QByteArray file = bytes;
    file.replace(extents, extentLimit * extentSize, QByteArray(extentLimit * extentSize, '\0'));
    // The boot sector loads the first one.
    int count = 0;
    for (int begin = 1; begin < loaderSectors;) {
        int end = begin + 1;
        while (end < loaderSectors && end - begin < extentSectors &&
               sectors.at(end) == sectors.at(end - 1) + 1)
            ++end;
        if (count == extentLimit)
            return {};
        const int extent = extents + count * extentSize;
        putSector(file, extent, sectors.at(begin));
        putWord(file, extent + dataPointerSize, static_cast<quint16>(end - begin));
        ++count;
        begin = end;
    }
    for (int copy = 0; copy < dataSectors; ++copy)
        putSector(file, dataPointers + copy * dataPointerSize, sectors.at(loaderSectors + copy));
    // No name: the loader and its menu lie in the root folder.
    file.replace(folder, folderSize, QByteArray(folderSize, '\0'));
    file.replace(subvolume, subvolumeSize, QByteArray(subvolumeSize, '\0'));
    const int dwords = loaderSectors * sectorSize / dwordSize;
    putWord(file, patchArea + loaderSectorCount, static_cast<quint16>(loaderSectors));
    putWord(file, patchArea + dataSectorCount, dataSectors);
    putDword(file, patchArea + dwordCount, static_cast<quint32>(dwords));
    // All numbers together, this one among them, give the magic number.
    putDword(file, patchArea + checksum, 0);
    quint32 sum = 0;
    for (int index = 0; index < dwords; ++index)
        sum += dwordAt(file, index * dwordSize);
    putDword(file, patchArea + checksum, magic - sum);
    return file;
}

QByteArray LoaderFile::bootSector(const QByteArray& code, const QByteArray& current,
                                  quint32 firstSector) const
{
    if (!failure.isEmpty() || code.size() != sectorSize || !fatRefusal(current).isEmpty())
        return {};
    // The code makes sure that it has loaded the file of its own version.
    if (!code.contains(bytes.mid(patchArea + instance, dwordSize)))
        return {};
    const bool isFat32 = wordAt(current, 22) == 0;
    const int size = (isFat32 ? parametersEndFat32 : parametersEndFat16) - parametersBegin;
    QByteArray sector = code;
    sector.replace(parametersBegin, size, current.mid(parametersBegin, size));
    putDword(sector, firstSectorLow, firstSector);
    putDword(sector, firstSectorHigh, 0);
    sector.replace(signature, 2, "\x55\xaa");
    return sector;
}
