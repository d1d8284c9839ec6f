// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "loaderinstaller.h"

#include "fatreader.h"
#include "mbr.h"

#include <array>

namespace
{

constexpr std::array<const char*, 2> protectedNames = {"LDLINUX SYS", "LDLINUX C32"};
constexpr int attributesOffset = 11;
// Read-only, hidden and of the system: files that are copied later do not overwrite it.
constexpr char protection = 0x07;

// A sector and what it is to hold.
struct Change
{
    qint64 offset;
    QByteArray content;
};

QString notWritten(const QString& why)
{
    return QStringLiteral("the boot loader cannot be installed: %1").arg(why);
}

// Whether the file lies in those sectors.
bool holds(FatReader& volume, const FatReader::File& file, const QByteArray& content)
{
    if (file.size != content.size())
        return false;
    for (int index = 0; index < file.sectors.size(); ++index) {
        if (volume.read(qint64(file.sectors.at(index)) * sectorSize, sectorSize) !=
            content.mid(index * sectorSize, sectorSize))
            return false;
    }
    return true;
}

// The sectors of the directory entries that protect the loader's files, as far as these are there.
QVector<Change> protectedEntries(FatReader& volume)
{
    QVector<Change> changes;
    for (const char* name : protectedNames) {
        const qint64 entry = volume.find(name).entry;
        if (entry < 0)
            continue;
        const qint64 sector = entry / sectorSize * sectorSize;
        if (changes.isEmpty() || changes.last().offset != sector)
            changes.append({sector, volume.read(sector, sectorSize)});
        const int place = static_cast<int>(entry - sector) + attributesOffset;
        QByteArray& content = changes.last().content;
        if (place < content.size())
            content[place] = static_cast<char>(content.at(place) | protection);
    }
    return changes;
}

QString write(DiskFile& disk, FatReader& volume, const QVector<Change>& changes)
{
    for (const Change& change : changes) {
        if (!volume.write(change.offset, change.content))
            return disk.error();
    }
    if (!disk.flush())
        return disk.error();
    for (const Change& change : changes) {
        if (volume.read(change.offset, sectorSize) != change.content)
            return QStringLiteral("the disk does not hold what was written");
    }
    return {};
}

} // namespace

QString installLoader(DiskFile& disk, qint64 start, const LoaderFile& loader,
                      const QByteArray& bootCode)
{
    if (!loader.error().isEmpty())
        return notWritten(QStringLiteral("its file ") + loader.error());
    FatReader volume(disk, start);
    const FatReader::File file = volume.find(protectedNames[0]);
    if (!file.error.isEmpty())
        return notWritten(file.error);
    if (!holds(volume, file, loader.content()))
        return notWritten(QStringLiteral("its file is not what was copied"));
    const QByteArray patched = loader.patched(file.sectors);
    if (patched.isEmpty())
        return notWritten(QStringLiteral("its file lies in too many pieces"));
    const QByteArray boot =
        loader.bootSector(bootCode, volume.read(0, sectorSize), file.sectors.first());
    if (boot.isEmpty())
        return notWritten(QStringLiteral("its boot sector does not belong to its file"));
    QVector<Change> changes = protectedEntries(volume);
    for (int index = 0; index < file.sectors.size(); ++index)
        changes.append({qint64(file.sectors.at(index)) * sectorSize,
                        patched.mid(index * sectorSize, sectorSize)});
    // Last, so that what it starts is there.
    changes.append({0, boot});
    if (!disk.error().isEmpty())
        return disk.error();
    return write(disk, volume, changes);
}
