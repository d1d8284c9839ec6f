// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "bootabledisk.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// A USB stick made of two files, one for the disk and one for its first partition, and scripts that
// stand in for the programs of the system: lsblk tells of the stick, umount and mount only change
// what lsblk tells. They are found on PATH while this object lives, and write down their calls.
class ImageDisk
{
public:
    ImageDisk();
    ~ImageDisk();
    ImageDisk(const ImageDisk&) = delete;
    ImageDisk& operator=(const ImageDisk&) = delete;

    // The disk's and the partition's "device nodes".
    QString disk() const { return folder.filePath("disk"); }
    QString partition() const { return folder.filePath("disk1"); }
    // Where the partition is to be mounted: a folder with a blank, absent at first.
    QString mountPoint() const { return folder.filePath("media/MY STICK"); }
    QString path(const QString& name) const { return folder.filePath(name); }

    // Gives a stand-in another body; "$0" is the program, "$@" are its arguments.
    void behave(const QString& program, const QByteArray& body) const;
    // Takes a stand-in away, so that the real program is found.
    void useReal(const QString& program) const;
    // Where lsblk tells that the partition is mounted.
    void setMounted(const QStringList& mountPoints) const;
    // What lsblk tells, up to the partition's mount points.
    QByteArray facts() const;
    void setFacts(const QByteArray& text) const;
    // Has lsblk tell the size that the disk's file has now.
    void tellSize() const;

    // The calls so far, "program argument argument", without those of lsblk.
    QStringList calls() const;

    // Whether the disk's first sector is as it was at first.
    bool isUntouched() const;

    // A disk with an MBR and one FAT partition from sector 2048 on, as the partitioning leaves it.
    static QByteArray partitionedMbr(quint32 sectors);
    // The boot sector of an empty FAT file system, enough to be told for one.
    static QByteArray fatSector();

    // Set-up for BootableDisk with this stick, the said lines going to said.
    BootableDisk::Setup setup(QStringList* said) const;

    static constexpr quint32 firstSector = 2048;

private:
    QTemporaryDir folder;
    QByteArray pathBefore;
};
