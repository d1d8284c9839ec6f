// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

// One file or folder of an image, with everything below it. A plain value: a copy has a subtree of
// its own, so that pointers to the entries of a tree stay valid whatever happens to copies of them.
struct Item
{
    Item() = default;
    Item(const Item& other);
    Item(Item&& other) noexcept = default;
    Item& operator=(const Item& other);
    Item& operator=(Item&& other) noexcept = default;
    ~Item() = default;

    // The last component of the path; empty when the path ends in "/".
    QString GetName() const;
    // The path of the folder that holds this entry; empty for a top-level entry.
    QString GetRelPath() const;
    // Replaces the last component of this entry's own path. The paths of the children keep their
    // old beginning: a caller that renames a folder rewrites them itself.
    void Rename(const QString& newName);
    // The same with the paths of everything below.
    void RenameBranch(const QString& newName);

    // Full path inside the image, "/" between components, none in front; empty for the root.
    QString path;
    // Where on the computer the entry was added from; empty for what came out of an image.
    QString localPath;
    bool isDir = true;
    // Bytes as decimal digits; empty or anything else counts as 0.
    QString sizeText;
    // "yyyy-MM-dd hh:mm:ss"
    QString timeText;
    qint64 reserved = 0;
    // In insertion order. The list allocates each entry on its own: appending moves none of them.
    QList<Item> children;

private:
    void moveBelow(const QString& folder);
};

// The tree's rows carry pointers to the entries they show.
Q_DECLARE_METATYPE(Item*)
