// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "ctree.h"

#include <QFileInfo>

#include <algorithm>
#include <cstring>

namespace
{

// One level of a path: its cumulative path is the first `length` characters of the whole.
struct Level
{
    int length = 0;
    bool isLast = false;
};

Level levelFrom(const QString& path, int from)
{
    const int slash = path.indexOf('/', from);
    return slash < 0 ? Level{path.size(), true} : Level{slash, false};
}

Level firstLevel(const QString& path)
{
    return levelFrom(path, 0);
}

Level nextLevel(const QString& path, Level level)
{
    return levelFrom(path, level.length + 1);
}

// Position among the children of the first entry whose path is the level's, -1 for none.
int findChild(const Item& folder, const QString& path, Level level)
{
    // Siblings begin with the same folder and often have names of the same length, so that much of
    // each comparison is of equal characters: block by block instead of one by one.
    const std::size_t bytes = std::size_t(level.length) * sizeof(QChar);
    const auto isWanted = [&path, level, bytes](const Item& child) {
        return child.path.size() == level.length &&
               std::memcmp(child.path.constData(), path.constData(), bytes) == 0;
    };
    const auto begin = folder.children.constBegin();
    const auto end = folder.children.constEnd();
    const auto found = std::find_if(begin, end, isWanted);
    return found == end ? -1 : int(found - begin);
}

// The folder of a level, created when missing. Whatever stands there already is entered.
Item* enterFolder(Item* folder, const QString& path, Level level)
{
    const int index = findChild(*folder, path, level);
    if (index >= 0)
        return &folder->children[index];
    Item created;
    created.path = path.left(level.length);
    folder->children.append(created);
    return &folder->children.last();
}

// Where an entry stands: its folder and its position there, -1 when the path is not in the tree.
struct Place
{
    Item* folder = nullptr;
    int index = -1;
};

Place findPlace(Item* root, const QString& path)
{
    if (path.isEmpty())
        return {};
    Item* folder = root;
    for (Level level = firstLevel(path);; level = nextLevel(path, level)) {
        const int index = findChild(*folder, path, level);
        if (level.isLast)
            return {folder, index};
        if (index >= 0)
            folder = &folder->children[index];
    }
}

} // namespace

bool CTree::AddItem(Item& item)
{
    const QString& path = item.path;
    if (path.isEmpty())
        return false;
    Item* folder = &root;
    Level level = firstLevel(path);
    for (; !level.isLast; level = nextLevel(path, level))
        folder = enterFolder(folder, path, level);
    if (findChild(*folder, path, level) >= 0)
        return false;
    folder->children.append(item);
    return true;
}

void CTree::InnerAddDir(const QString& path)
{
    if (path.isEmpty())
        return;
    Item* folder = &root;
    for (Level level = firstLevel(path);; level = nextLevel(path, level)) {
        folder = enterFolder(folder, path, level);
        if (level.isLast)
            return;
    }
}

Item* CTree::GetItem(const QString& path)
{
    const Place place = findPlace(&root, path);
    return place.index < 0 ? nullptr : &place.folder->children[place.index];
}

void CTree::RemoveItem(const QString& path)
{
    const Place place = findPlace(&root, path);
    if (place.index >= 0)
        place.folder->children.removeAt(place.index);
}

void CTree::Clear()
{
    name.clear();
    extra.clear();
    root.children.clear();
    root.path.clear();
    root.localPath.clear();
    root.sizeText.clear();
    root.timeText.clear();
    root.isDir = true;
}

qint64 CTree::TotalSize() const
{
    return InnerDirSize(root);
}

qint64 CTree::InnerDirSize(const Item& folder) const
{
    qint64 bytes = 0;
    for (const Item& child : folder.children) {
        if (child.isDir)
            bytes += InnerDirSize(child);
        else if (!child.localPath.isEmpty())
            bytes += QFileInfo(child.localPath).size();
    }
    return bytes;
}
