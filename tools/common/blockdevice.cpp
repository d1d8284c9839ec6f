// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "blockdevice.h"

#include <algorithm>

const BlockDevice* BlockDevice::partition(int number) const
{
    const QString wanted = partitionPath(path, number);
    const auto found =
        std::find_if(children.cbegin(), children.cend(), [&wanted](const BlockDevice& child) {
            return child.isPartition() && child.path == wanted;
        });
    return found == children.cend() ? nullptr : &*found;
}

bool BlockDevice::isSameDisk(const BlockDevice& other) const
{
    return path == other.path && type == other.type && size == other.size &&
           vendor == other.vendor && model == other.model && serial == other.serial;
}

QString partitionPath(const QString& disk, int number)
{
    const bool endsInDigit = !disk.isEmpty() && disk.back().isDigit();
    return disk + (endsInDigit ? QStringLiteral("p") : QString()) + QString::number(number);
}
