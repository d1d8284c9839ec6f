// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <sys/types.h>

// Argument lists of the programs that mkbootable runs, in the order it runs them: first those of
// Linux, then those of macOS.

// "umount": takes the file system away from one place.
QStringList unmountArguments(const QString& mountPoint);

// "syslinux": puts the boot loader into the root folder of an unmounted FAT partition.
QStringList installArguments(const QString& partition);

// "sync": writes what this file system holds back, and does not wait for those of other disks.
QStringList syncArguments(const QString& mountPoint);

// "mount": for a user of the desktop who is the owner of every file, since FAT knows none.
QStringList mountArguments(const QString& partition, const QString& mountPoint, uid_t user,
                           gid_t group);

// "diskutil": mounts a partition at a folder that is there.
QStringList diskutilMountArguments(const QString& partition, const QString& mountPoint);

// "diskutil": takes every file system of a disk away from where it is mounted, so that the disk can
// be written. Nothing mounted is no failure.
QStringList diskutilUnmountDiskArguments(const QString& disk);

// "setpriv": asks the desktop's disk service, as the user, to mount the partition. Nobody is asked
// for a password.
QStringList serviceMountArguments(const QString& partition, uid_t user, gid_t group);
