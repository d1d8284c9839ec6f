// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "volumeservice.h"

#include <QStringList>

// The stand-in for "diskutil": list, info DEVICE, unmountDisk DISK and
// partitionDisk DISK 1 MBR FILE-SYSTEM NAME R. volumes does what changes anything. Returns the exit
// code.
int diskutilTool(const QStringList& arguments, VolumeService& volumes);
