// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// Device names as the program gives them, whose partitions are "slices": a disk's name, "s" and a
// number.

// The system's path of the device: "sdb" and "/dev/sdb" give "/dev/sdb", "/dev/sdbs1" gives
// "/dev/sdb1", "/dev/mmcblk0s1" gives "/dev/mmcblk0p1". Anything else is returned as it is.
QString devicePath(const QString& name);

// Without the folder: "sdb1".
QString deviceName(const QString& path);
