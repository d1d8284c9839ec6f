// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "mountedvolumes.h"
#include "volumeservice.h"

#include <QStringList>

// The stand-in for "hdiutil": mount IMAGE, unmount [-force] PATH (also glued to one word,
// "unmount/path"), burn -verbose -noverifyburn IMAGE,
// makehybrid -iso -joliet -debug -ov -o IMAGE FOLDER and eject DEVICE. volumes does what changes a
// mount. Returns the exit code.
int hdiutilTool(const QStringList& arguments, VolumeService& volumes);

// "DEVICE<TAB>hint<TAB>PATH" in the widths that the program splits.
QString imageLine(const MountResult& mounted);

// Why the volume is no image that may be unmounted, empty when it is one.
QString imageRefusal(const MountedVolume& volume);
