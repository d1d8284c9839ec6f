// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "ctree.h"
#include "listingreader.h"
#include "require.h"

#include <QSet>
#include <QStringList>

// Has a damaged listing read into a tree as the pages do, and stops where the tree is none: where
// an entry does not stand below its folder, stands there twice or is not found under its path.

namespace
{

void checkBelow(const Item& folder, bool isRoot)
{
    QSet<QString> paths;
    for (const Item& child : folder.children) {
        const QString expected = isRoot ? child.GetName() : folder.path + '/' + child.GetName();
        require(child.path == expected, "an entry is not below its folder");
        require(!paths.contains(child.path), "an entry stands twice");
        paths.insert(child.path);
        checkBelow(child, false);
    }
}

void add(CTree& tree, Item& entry)
{
    const Item* before = tree.GetItem(entry.path);
    const bool added = tree.AddItem(entry);
    require(added == (!entry.path.isEmpty() && !before), "a new entry was not added");
    const Item* found = tree.GetItem(entry.path);
    require(entry.path.isEmpty() ? !found : found && found->path == entry.path,
            "an entry is not found");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QStringList lines = QString::fromUtf8(inputBytes(data, size)).remove('\r').split('\n');
    ListingReader reader;
    CTree tree;
    QStringList paths;
    for (const QString& line : lines) {
        Item entry;
        const bool wasListing = reader.isListing();
        const ListingReader::Line kind = reader.read(line + "\r\n", entry);
        require(kind != ListingReader::Line::Entry || wasListing, "an entry outside of the table");
        if (kind != ListingReader::Line::Entry)
            continue;
        require(!entry.path.isEmpty() && line.endsWith(entry.path), "the name is not the line's");
        paths.append(entry.path);
        add(tree, entry);
    }
    checkBelow(tree.root, true);
    require(tree.TotalSize() == 0, "what is in an image has a size on the computer");
    for (const QString& path : paths) {
        tree.RemoveItem(path);
        require(!tree.GetItem(path), "a removed entry is still there");
    }
    tree.Clear();
    require(tree.root.children.isEmpty(), "the tree is not empty");
    return 0;
}
