// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

// Readers of what the disk tool prints about USB disks; the Burn page asks them.

// The device node that a line of "diskutil list" heads the table of, if it is the heading of an
// external physical disk.
std::optional<QString> externalDiskOf(const QString& line);

// Whether "diskutil info" tells of a removable USB disk that is not an optical drive.
bool isRemovableUsbDisk(const QString& info);
