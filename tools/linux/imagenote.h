// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "blockdevice.h"
#include "mountedvolumes.h"

#include <QString>

// What "hdiutil mount" tells "diskutil partitionDisk" when both are run by the same program, one
// after the other: the image that is to be written. The disk that it lies on must not be formatted.

// Leaves a note about an image, by its absolute path without links, for this process's siblings.
// folder is that of the session and is created. A note that is there already is replaced.
void leaveImageNote(const QString& folder, const QString& image);

// The image of the note left by a sibling, empty without one. The note is gone then: the next image
// may be one that nobody mounts.
QString takeImageNote(const QString& folder);

// Whether the volume lies on the disk.
bool holdsVolume(const BlockDevice& disk, const MountedVolume& volume);
