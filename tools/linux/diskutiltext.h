// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "blockdevice.h"
#include "opticaldrive.h"

#include <QStringList>

// What "diskutil" prints about disks, line by line, in the layout that the program reads.

// The block about one disk in "diskutil list": heading, column titles, the disk, its partitions.
QStringList diskListLines(const BlockDevice& disk);

// "diskutil info" about a disk, or about a partition of it (part is the disk itself or below it).
// drive tells about the optical drive that the disk is, otherwise it is null.
QStringList diskInfoLines(const BlockDevice& disk, const BlockDevice& part,
                          const OpticalDrive* drive);

// Whether the disk counts as an external one.
bool isExternal(const BlockDevice& disk);

// Where the device is mounted, empty when it is not.
QString mountPathOf(const BlockDevice& device);
