// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "opticaldrive.h"

#include <QStringList>

// What "drutil status" prints about the drives, line by line.
//
// Drives with a disc come first. A reader takes the first row under a heading for the drive that is
// named next and keeps it until one is named, so where there are several drives an empty one gets
// no heading: it would lend its name to another drive's disc.
QStringList driveStatusLines(const QList<OpticalDrive>& drives);

// The stand-in for "drutil", which knows "status" alone. Returns the exit code.
int drutilTool(const QStringList& arguments);
