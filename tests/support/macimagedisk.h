// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "fatimage.h"
#include "macbootabledisk.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// A USB stick made of a file, and scripts that stand in for diskutil and sync. What diskutil
// "mounts" is copied out of the file into a folder, and back when it is unmounted, so that the
// stick's file system has in it what was written to the folder; FatImage's "gaps" stay where they
// are. The scripts are found on PATH while this object lives, and write down their calls.
class MacImageDisk
{
public:
    // The stick's first partition is as the file system is now.
    explicit MacImageDisk(const FatImage& fileSystem);
    ~MacImageDisk();
    MacImageDisk(const MacImageDisk&) = delete;
    MacImageDisk& operator=(const MacImageDisk&) = delete;

    QString disk() const { return folder.filePath("disk"); }
    QString partition() const { return disk() + "s1"; }
    QString mountPoint() const { return folder.filePath("media/MY STICK"); }
    QString path(const QString& name) const { return folder.filePath(name); }

    // Has a program do something else first: "diskutil-mount", "diskutil-unmountDisk",
    // "diskutil-info", "sync". "exit" in the body ends the call there. In it $home is this stick's
    // folder, $home/mounted the file that names the mount point, if there is one.
    void before(const QString& call, const QByteArray& body) const;
    // What diskutil tells of the whole disk and of the partition, up to the mount point.
    void changeFacts(const QByteArray& from, const QByteArray& to) const;
    // Where the partition is mounted, empty when it is not.
    QString mounted() const;
    // Mounts it there.
    void mountAt(const QString& place) const;

    // The calls so far, "program argument argument", without those that only ask.
    QStringList calls() const;
    // Whether the disk is as it was at first.
    bool isUntouched() const;
    // Copies a file into the partition, past the stand-ins.
    void put(const QString& name, const QByteArray& content) const;

    // Set-up with this stick and the loader's files, the said lines going to said.
    MacBootableDisk::Setup setup(QStringList* said) const;

private:
    QTemporaryDir folder;
    QByteArray pathBefore;
    QByteArray atFirst;
};
