// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bytes.h"
#include "fatreader.h"
#include "mbr.h"
#include "require.h"

#include <algorithm>
#include <sys/mman.h>
#include <unistd.h>

// Looks for a file on damaged file systems, given in short form, and stops where the reader tells
// places that cannot be the file's: the boot loader would be written there.
//
// The short form is the begin of the first sector up to its label, then pieces of the rest:
//   0   4   where the piece lies, in sectors of 512 bytes, little-endian
//   4   2   and in bytes from there, of which the lowest nine bits count
//   6   1   its length
//   7       its bytes
// All else of the file system, which is as long as its first sector says, is zero.

namespace
{

constexpr int headBytes = 62;
constexpr int pieceHead = 7;
const char* const storedName = "LDLINUX SYS";

qint64 sectorsOf(const QByteArray& head)
{
    return wordAt(head, 19) != 0 ? wordAt(head, 19) : dwordAt(head, 32);
}

void writePieces(DiskFile& disk, const QByteArray& input, qint64 sizeInBytes)
{
    for (int at = headBytes; at + pieceHead <= input.size();) {
        const int length = std::min<int>(byteAt(input, at + 6), input.size() - at - pieceHead);
        const qint64 place = qint64(dwordAt(input, at)) * sectorSize + wordAt(input, at + 4) % 512;
        if (place + length <= sizeInBytes)
            require(disk.write(place, input.mid(at + pieceHead, length)), "cannot write a piece");
        at += pieceHead + length;
    }
}

void checkFile(FatReader& reader, const FatReader::File& file, const QByteArray& head)
{
    if (!file.error.isEmpty()) {
        require(file.sectors.isEmpty(), "sectors of a file that cannot be told");
        return;
    }
    const qint64 count = sectorsOf(head);
    require(file.sectors.size() == (file.size + sectorSize - 1) / sectorSize,
            "another number of sectors than the file has");
    QVector<quint32> sorted = file.sectors;
    std::sort(sorted.begin(), sorted.end());
    require(sorted.isEmpty() || (sorted.first() > 0 && sorted.last() < count),
            "a sector outside of the file system");
    require(std::adjacent_find(sorted.cbegin(), sorted.cend()) == sorted.cend(),
            "a sector stands for two places of the file");
    const QByteArray sector = reader.read(file.entry / sectorSize * sectorSize, sectorSize);
    require(sector.mid(int(file.entry % sectorSize), 11) == storedName, "another file's entry");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    if (size < headBytes)
        return 0;
    static const int descriptor = ::memfd_create("disk", 0);
    static const QString path = QStringLiteral("/proc/self/fd/%1").arg(descriptor);
    const QByteArray input = inputBytes(data, size);
    const QByteArray head = input.left(headBytes);
    const qint64 sizeInBytes = sectorsOf(head) * sectorSize;
    require(::ftruncate(descriptor, 0) == 0 &&
                ::ftruncate(descriptor, std::max<qint64>(sizeInBytes, sectorSize)) == 0,
            "no memory for the disk");

    DiskFile disk(path, DiskFile::Access::Exclusive);
    writePieces(disk, input, sizeInBytes);
    require(disk.write(0, head) && disk.write(510, "\x55\xaa"), "cannot write the first sector");
    FatReader reader(disk, 0);
    const FatReader::File file = reader.find(storedName);
    require(reader.error().isEmpty() || !file.error.isEmpty(), "a file on what is no file system");
    checkFile(reader, file, head);
    return 0;
}
