// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "item.h"

static_assert(bool(QTypeInfo<Item>::isLarge) || bool(QTypeInfo<Item>::isStatic),
              "the list must allocate each entry on its own, or pointers to entries would move");

Item::Item(const Item& other)
    : path(other.path)
    , localPath(other.localPath)
    , isDir(other.isDir)
    , sizeText(other.sizeText)
    , timeText(other.timeText)
    , reserved(other.reserved)
    , children(other.children)
{
    // A list that two entries share would be copied by whichever is changed first, and that might
    // be the one in the tree, with pointers to its entries outstanding.
    if (!children.isEmpty())
        children.detach();
}

Item& Item::operator=(const Item& other)
{
    if (this != &other) {
        Item copy(other);
        *this = std::move(copy);
    }
    return *this;
}

QString Item::GetName() const
{
    return path.mid(path.lastIndexOf('/') + 1);
}

QString Item::GetRelPath() const
{
    const int nameLength = GetName().size();
    if (path.size() <= nameLength)
        return QString();
    return path.left(path.size() - nameLength - 1);
}

void Item::Rename(const QString& newName)
{
    path = path.left(path.size() - GetName().size()) + newName;
}

void Item::RenameBranch(const QString& newName)
{
    Rename(newName);
    for (Item& child : children)
        child.moveBelow(path);
}

void Item::moveBelow(const QString& folder)
{
    path = folder + '/' + GetName();
    for (Item& child : children)
        child.moveBelow(path);
}
