// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

// The boot loader's own file, which has to know in which sectors it lies, and the boot sector that
// starts it: what is in them for an installer to fill in. LoaderInstaller puts them onto a disk.
// The file begins with a patch area: its size, its checksum and, behind an offset in it, the places
// of further fields, all of which differ between versions. At its end lie two copies of a sector in
// which the loader keeps data between starts.
class LoaderFile
{
public:
    // shipped is the file as it is distributed, or as an installation has left it.
    explicit LoaderFile(const QByteArray& shipped);

    // Why this is not the boot loader's file; one line, empty when it is.
    QString error() const { return failure; }

    // What has to lie in the root folder, whole sectors; its patch area is not filled in yet.
    QByteArray content() const { return bytes; }

    // The content filled in for lying in those sectors, counted from the start of the file system.
    // Empty when there are not as many as the content has or when they are in too many pieces.
    QByteArray patched(const QVector<quint32>& sectors) const;

    // The boot sector for a file system whose first sector is current, with the loader's code in
    // it; firstSector is the content's first. Empty when code is not of the loader's version or one
    // of them is no sector.
    QByteArray bootSector(const QByteArray& code, const QByteArray& current,
                          quint32 firstSector) const;

private:
    QString readPatchArea();
    QString readFields();
    int contentSectors() const;

    QByteArray bytes;
    QString failure;
    // Offsets in the file.
    int patchArea = 0;
    int extents = 0;
    int extentLimit = 0;
    int dataPointers = 0;
    int folder = 0;
    int folderSize = 0;
    int subvolume = 0;
    int subvolumeSize = 0;
    // Offsets in the boot sector: the two halves of the number of the file's first sector.
    int firstSectorLow = 0;
    int firstSectorHigh = 0;
};
