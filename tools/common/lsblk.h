// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "blockdevice.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

// Asks lsblk about block devices and reads its answer. Our disk tools on Linux call it.

// What lsblk knows, or why it could not be asked.
struct BlockDevices
{
    // The disks and drives; what lies on them is among their children. For one device that was
    // asked about by name: that device alone, even when it is a partition.
    QVector<BlockDevice> devices;
    // Empty on success, otherwise one line for the user; devices is empty then.
    QString error;
};

// Arguments of lsblk for one device, or for all when device is empty.
QStringList lsblkArguments(const QString& device);

// Reads what lsblk has printed for those arguments. Fields that are missing or of another kind, as
// older versions write them, are read as well as they can be; text that is no answer is an error.
BlockDevices readBlockDevices(const QByteArray& json);

// Runs lsblk, which must be on PATH, for at most ten seconds. An empty device asks about all.
BlockDevices blockDevices(const QString& device = QString());
