// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "blockdevice.h"

#include <QString>

// Why the disk must not be overwritten, as one line for the user; empty when it may be. Everything
// that is not clearly a whole, writable USB or removable disk which the system does not need is
// refused. Our disk tools ask before every operation that destroys data.
QString refusal(const BlockDevice& disk);

// Whether a medium for the user's files may be mounted there; elsewhere the system itself lives
// ("/", "/boot", "/home", "[SWAP]", the folders of live systems).
bool isPlaceForMedia(const QString& mountPoint);
