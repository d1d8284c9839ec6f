// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "stagingmodel.h"

#include "util.h"

#include <QDateTime>
#include <QFileIconProvider>
#include <QFileInfo>

#include <algorithm>

namespace
{

QString nameOf(const QString& path)
{
    return path.mid(path.lastIndexOf('/') + 1);
}

QString folderOfPath(const QString& path)
{
    return path.left(qMax(0, path.lastIndexOf('/')));
}

} // namespace

StagingModel::StagingModel(const Disk& sources, const QString& stagingFolder)
    : disk(sources)
    , staging(stagingFolder)
{
    makeFolder(folderOfPath(staging));
}

void StagingModel::addFiles(const QStringList& paths, const Place& selected)
{
    const QString folder = folderOf(selected);
    for (const QString& source : paths) {
        const QString path = folder + nameOf(source);
        if (!addEntry(path, {false, source}))
            continue;
        childrenOf(selected).append(rowFor(source, path));
        queue.append({true, source, staging + '/' + path});
    }
    refreshTotal();
}

void StagingModel::addFolders(const QStringList& paths, const Place& selected)
{
    const QString folder = folderOf(selected);
    for (const QString& source : paths) {
        const QString path = folder + nameOf(source);
        if (!addEntry(path, {true, source}))
            continue;
        Row row = rowFor(source, path);
        fill(row, source, path);
        childrenOf(selected).append(row);
        queue.append({true, source, staging + '/' + folder});
    }
    refreshTotal();
}

void StagingModel::fill(Row& row, const QString& source, const QString& path)
{
    for (const QString& name : namesIn(source)) {
        const QString childSource = source + '/' + name;
        const QString childPath = path + '/' + name;
        tree.insert(childPath, {isFolder(childSource), childSource});
        Row child = rowFor(childSource, childPath);
        fill(child, childSource, childPath);
        row.children.append(child);
    }
}

void StagingModel::remove(const Place& selected)
{
    if (selected.isEmpty())
        return;
    const QString path = folderOf(selected) + nameAt(selected).trimmed();
    if (!tree.contains(path))
        return;
    const QString source = tree.value(path).source;
    for (int i = 0; i < queue.size(); ++i) {
        if (queue.at(i).source == source) {
            queue.removeAt(i);
            break;
        }
    }
    queue.append({false, staging + '/' + path, QString()});
    Place above = selected;
    const int last = above.takeLast();
    childrenOf(above).removeAt(last);
    for (const QString& key : tree.keys()) {
        if (key == path || key.startsWith(path + '/'))
            tree.remove(key);
    }
    refreshTotal();
}

bool StagingModel::isBegun(const Place& place) const
{
    const QString path = folderOf(place) + nameAt(place);
    return begun && tree.value(path).source == begun->source;
}

void StagingModel::begin()
{
    begun = queue.first();
}

void StagingModel::settle()
{
    while (begun || !queue.isEmpty()) {
        const Task task = begun ? *begun : queue.first();
        begun.reset();
        carryOut(task);
        // Whatever heads the queue by now.
        if (!queue.isEmpty())
            queue.removeFirst();
    }
}

QList<StagingModel::Place> StagingModel::places() const
{
    QList<Place> found;
    QList<QPair<Place, const QList<Row>*>> open{{Place(), &top}};
    while (!open.isEmpty()) {
        const auto [place, rows] = open.takeFirst();
        for (int i = 0; i < rows->size(); ++i) {
            const Place next = place + Place{i};
            found.append(next);
            open.append({next, &rows->at(i).children});
        }
    }
    return found;
}

// What lies below a file that stands in for a folder does not count.
void StagingModel::refreshTotal()
{
    qint64 bytes = 0;
    for (auto entry = tree.cbegin(); entry != tree.cend(); ++entry) {
        bool counts = !entry->isDir;
        for (QString above = folderOfPath(entry.key()); !above.isEmpty();
             above = folderOfPath(above))
            counts = counts && tree.value(above).isDir;
        if (counts && disk.contains(entry->source))
            bytes += disk.value(entry->source)->size();
    }
    shown = bytes;
}

StagingModel::Disk StagingModel::below(const QString& folder) const
{
    Disk found;
    for (auto entry = disk.cbegin(); entry != disk.cend(); ++entry) {
        if (entry.key().startsWith(folder + '/'))
            found.insert(entry.key().mid(folder.size() + 1), *entry);
    }
    return found;
}

QList<StagingModel::Row>& StagingModel::childrenOf(const Place& place)
{
    QList<Row>* rows = &top;
    for (const int position : place)
        rows = &(*rows)[position].children;
    return *rows;
}

// The folder that holds a row, not the row's own.
QString StagingModel::folderOf(const Place& place) const
{
    QString folder;
    const QList<Row>* rows = &top;
    for (int depth = 0; depth + 1 < place.size(); ++depth) {
        folder += rows->at(place.at(depth)).columns.first().trimmed() + '/';
        rows = &rows->at(place.at(depth)).children;
    }
    return folder;
}

QString StagingModel::nameAt(const Place& place) const
{
    const Row* row = nullptr;
    for (const int position : place)
        row = row ? &row->children.at(position) : &top.at(position);
    return row->columns.first();
}

bool StagingModel::addEntry(const QString& path, const Entry& entry)
{
    if (tree.contains(path))
        return false;
    for (QString above = folderOfPath(path); !above.isEmpty(); above = folderOfPath(above)) {
        if (!tree.contains(above))
            tree.insert(above, {});
    }
    tree.insert(path, entry);
    return true;
}

// Times and types are the real disk's; a source's type is always the same.
StagingModel::Row StagingModel::rowFor(const QString& source, const QString& path) const
{
    const QFileInfo info(source);
    const QString time = Util::QT2String(info.lastModified());
    if (isFolder(source))
        return {{nameOf(path), folderOfPath(path), "", "Folder", time}, true, {}};
    const QString size = Util::SizeToString(disk.value(source)->size());
    static QMap<QString, QString> types;
    QString& type = types[source];
    if (type.isEmpty())
        type = QFileIconProvider().type(info);
    return {{nameOf(path), folderOfPath(path), size, type, time}, false, {}};
}

QStringList StagingModel::namesIn(const QString& folder) const
{
    QStringList names;
    for (const QString& path : disk.keys()) {
        if (folderOfPath(path) == folder && !nameOf(path).startsWith('.'))
            names.append(nameOf(path));
    }
    names.sort(Qt::CaseInsensitive);
    return names;
}

bool StagingModel::isFile(const QString& path) const
{
    return disk.contains(path) && disk.value(path);
}

bool StagingModel::isFolder(const QString& path) const
{
    return disk.contains(path) && !disk.value(path);
}

bool StagingModel::makeFolder(const QString& path)
{
    if (path.isEmpty() || isFolder(path))
        return true;
    if (isFile(path) || !makeFolder(folderOfPath(path)))
        return false;
    disk.insert(path, std::nullopt);
    return true;
}

void StagingModel::erase(const QString& path)
{
    for (const QString& key : disk.keys()) {
        if (key == path || key.startsWith(path + '/'))
            disk.remove(key);
    }
}

void StagingModel::carryOut(const Task& task)
{
    if (!task.isCopy)
        erase(task.source);
    else if (isFile(task.source))
        copyFile(task.source, task.destination);
    else {
        QString target = task.destination;
        if (target.endsWith('/'))
            target.chop(1);
        target += '/' + nameOf(task.source);
        makeFolder(target);
        copyFolder(task.source, target);
    }
}

bool StagingModel::copyFile(const QString& source, const QString& destination)
{
    if (!isFile(source))
        return false;
    if (isFolder(destination)) {
        murky = murky || !below(destination).isEmpty();
        if (!murky)
            erase(destination);
    }
    if (isFolder(destination) || !makeFolder(folderOfPath(destination)))
        return false;
    disk.insert(destination, disk.value(source));
    return true;
}

// A file whose name is taken is lost on both sides and ends the copy.
bool StagingModel::copyFolder(const QString& source, const QString& destination)
{
    if (!makeFolder(destination))
        return false;
    for (const QString& name : namesIn(source)) {
        const QString from = source + '/' + name;
        const QString to = destination + '/' + name;
        if (isFolder(from)) {
            if (!copyFolder(from, to))
                return false;
            continue;
        }
        if (disk.contains(to)) {
            if (isFile(to))
                disk.remove(to);
            disk.remove(from);
        }
        if (!copyFile(from, to))
            return false;
    }
    return true;
}
