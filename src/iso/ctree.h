// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "item.h"

// The contents of one image: a page keeps one for its whole life and fills it from a listing or
// from what the user adds. Look-ups scan each level from first to last and compare whole paths,
// exactly and case-sensitively. User-interface thread only.
class CTree
{
public:
    // Inserts a copy of item at its path and creates the folders that are missing on the way.
    // False when the path is empty or taken; what is there then stays as it was.
    bool AddItem(Item& item);
    // Makes sure that a folder exists for every level of path, the last included.
    void InnerAddDir(const QString& path);
    // The entry with this path, null when there is none. Valid until it is removed.
    Item* GetItem(const QString& path);
    // Deletes the entry with this path and everything below it.
    void RemoveItem(const QString& path);
    void Clear();
    // Bytes on disk of all files that were added from the computer; what came from an image does
    // not count.
    qint64 TotalSize() const;
    qint64 InnerDirSize(const Item& folder) const;

    // The image's file name, shown at the top of the folder tree.
    QString name;
    QString extra;
    Item root;
};
