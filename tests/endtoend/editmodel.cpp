// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "editmodel.h"

#include "imagemaker.h"
#include "testfiles.h"

#include <QCryptographicHash>
#include <QFileInfo>

#include <algorithm>

namespace
{

QString joined(const QString& folder, const QString& name)
{
    return folder.isEmpty() ? name : folder + '/' + name;
}

QString folderOf(const QString& path)
{
    return path.left(qMax(0, path.lastIndexOf('/')));
}

QString nameOf(const QString& path)
{
    return path.mid(path.lastIndexOf('/') + 1);
}

QByteArray hashOf(const QString& diskPath)
{
    return QCryptographicHash::hash(readFile(diskPath), QCryptographicHash::Sha256);
}

// The keys of a map that are this path or below it.
template<class Map>
QStringList branch(const Map& map, const QString& path)
{
    QStringList keys = map.keys();
    const auto isElsewhere = [&path](const QString& key) {
        return key != path && !key.startsWith(path + '/');
    };
    keys.erase(std::remove_if(keys.begin(), keys.end(), isElsewhere), keys.end());
    return keys;
}

} // namespace

void EditModel::addFromImage(const QString& path, bool isFolder, const QByteArray& hash)
{
    append(path, isFolder, hash, QString());
}

void EditModel::append(const QString& path, bool isFolder, const QByteArray& hash,
                       const QString& origin)
{
    children[folderOf(path)].append(nameOf(path));
    contents.insert(path, hash);
    if (isFolder)
        children.insert(path, {});
    if (!origin.isEmpty())
        origins.insert(path, origin);
}

void EditModel::refresh()
{
    rows.clear();
    ticked.clear();
    for (const QString& name : children.value(shown)) {
        if (name.contains(searchText, Qt::CaseInsensitive))
            rows.append(name);
    }
}

void EditModel::open(const QString& folder)
{
    shown = folder;
    refresh();
}

void EditModel::search(const QString& text)
{
    if (text == searchText)
        return;
    searchText = text;
    refresh();
}

void EditModel::addFromDisk(const QString& diskPath)
{
    const QFileInfo info(diskPath);
    const QString path = joined(shown, info.fileName());
    if (contents.contains(path))
        return;
    append(path, info.isDir(), info.isDir() ? QByteArray() : hashOf(diskPath), diskPath);
    // Shown even if the search would hide it, until the next time the table is filled.
    rows.append(info.fileName());
    if (!info.isDir())
        return;
    const auto below = hashesBelow(diskPath);
    for (auto entry = below.cbegin(); entry != below.cend(); ++entry)
        append(joined(path, entry.key()), entry.value().isEmpty(), entry.value(),
               joined(diskPath, entry.key()));
}

QString EditModel::pathOfRow(int row) const
{
    return joined(shown, children.value(shown).at(row));
}

void EditModel::remove(const QString& path)
{
    children[folderOf(path)].removeOne(nameOf(path));
    for (const QString& key : branch(contents, path)) {
        contents.remove(key);
        children.remove(key);
        origins.remove(key);
    }
}

void EditModel::move(const QString& path, const QString& newPath)
{
    const auto moveKeys = [&](auto& map) {
        for (const QString& key : branch(map, path))
            map.insert(newPath + key.mid(path.size()), map.take(key));
    };
    moveKeys(children);
    moveKeys(contents);
    moveKeys(origins);
}

void EditModel::deleteTicked()
{
    QStringList paths;
    for (const int row : qAsConst(ticked))
        paths.append(pathOfRow(row));
    for (const QString& path : qAsConst(paths))
        remove(path);
    refresh();
}

void EditModel::renameTicked(const QString& newName)
{
    const int row = *std::min_element(ticked.cbegin(), ticked.cend());
    QStringList& names = children[shown];
    if (names.contains(newName))
        return;
    const QString path = pathOfRow(row);
    names[row] = newName;
    rows[row] = newName;
    move(path, joined(shown, newName));
}

// What the image had comes as it is now, what was added as it is on the disk.
QMap<QString, QByteArray> EditModel::exported() const
{
    QMap<QString, QByteArray> expected;
    for (const int row : ticked) {
        const QString path = pathOfRow(row);
        const QString origin = origins.value(path);
        const QString name = isFolder(path) && !origin.isEmpty() ? nameOf(origin) : nameOf(path);
        expected.insert(name, contents.value(path));
        const auto below =
            isFolder(path) && !origin.isEmpty() ? hashesBelow(origin) : QMap<QString, QByteArray>();
        for (auto entry = below.cbegin(); entry != below.cend(); ++entry)
            expected.insert(name + '/' + entry.key(), entry.value());
        if (!origin.isEmpty())
            continue;
        for (const QString& key : branch(contents, path))
            expected.insert(name + key.mid(path.size()), contents.value(key));
    }
    return expected;
}

QStringList EditModel::paths(bool foldersOnly) const
{
    QStringList found;
    collect(QString(), foldersOnly, found);
    return found;
}

void EditModel::collect(const QString& folder, bool foldersOnly, QStringList& found) const
{
    for (const QString& name : children.value(folder)) {
        const QString path = joined(folder, name);
        if (!foldersOnly || isFolder(path))
            found.append(path);
        collect(path, foldersOnly, found);
    }
}
