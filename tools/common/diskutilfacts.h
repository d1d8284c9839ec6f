// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "blockdevice.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

// Asks diskutil about a disk or a partition and reads its answer. Our disk tools on macOS call it.

// What diskutil knows about one device, or why it could not be asked.
struct DiskutilFacts
{
    // Without children: diskutil tells of one device at a time. The serial number is the device's
    // place in the system's tree of devices.
    BlockDevice device;
    // Whether it is known to be outside of the computer, and to be a piece of hardware.
    bool isExternal = false;
    bool isPhysical = false;
    // Bytes of the device's own sectors, 0 when unknown.
    qint64 blockSize = 0;
    // Empty on success, otherwise one line for the user.
    QString error;
};

// Arguments of diskutil for one device.
QStringList diskutilInfoArguments(const QString& device);

// Reads what diskutil has printed for those arguments. What is missing counts as what makes a disk
// be refused.
DiskutilFacts readDiskutilInfo(const QByteArray& plist);

// Runs diskutil, which must be on PATH, for at most a minute.
DiskutilFacts diskutilInfo(const QString& device);

// Why the disk must not be overwritten, as refusal() tells it; here everything is refused, too,
// that is built in, fixed or no hardware of its own, such as the image of a disk.
QString diskutilRefusal(const DiskutilFacts& disk);

// The node through which a disk is read and written in whole sectors, past the system's memory;
// the same for what is no node of a disk.
QString rawNode(const QString& device);

// Name of a partition: "/dev/disk2s1".
QString diskutilPartition(const QString& disk, int number);
