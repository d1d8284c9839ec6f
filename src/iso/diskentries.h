// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "item.h"

class QFileInfo;

// Entries of an image that come from the computer's disk, for the pages that add to an image.

// An entry for a file or folder on disk, at this path in the image. A folder's has no children yet.
Item itemOnDisk(const QFileInfo& info, const QString& path);
// Appends everything visible below a folder on disk to an entry, without looking for duplicates.
// Links are followed, except for one that leads back to a folder that holds it.
void appendDiskContents(Item& item, const QString& folder);
