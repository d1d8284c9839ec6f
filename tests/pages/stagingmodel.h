// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

// What the Create page is expected to do, on plain data: its rows, its tree, its queue and the
// disk. For the random test, which does the same to both and compares. A value: a copy tries what
// would come of a step.
class StagingModel
{
public:
    struct Row
    {
        QStringList columns;
        bool isFolder = false;
        QList<Row> children;
    };
    // Positions from the top row down to a row; empty for no row.
    using Place = QList<int>;
    // Contents by absolute path; folders have none.
    using Disk = QMap<QString, std::optional<QByteArray>>;

    // With these sources, and a staging folder (without a trailing "/") that does not exist yet.
    StagingModel(const Disk& sources, const QString& stagingFolder);

    void addFiles(const QStringList& paths, const Place& selected);
    void addFolders(const QStringList& paths, const Place& selected);
    void remove(const Place& selected);
    // The first task begins and does not end before settle().
    void begin();
    // Everything that is queued is carried out.
    void settle();

    const QList<Row>& rows() const { return top; }
    // Every row, from top to bottom.
    QList<Place> places() const;
    QString nameAt(const Place& place) const;
    // Bytes of all files when something was last added or removed; nothing before that.
    std::optional<qint64> shownBytes() const { return shown; }
    // Whether a row's copy is the one in progress.
    bool isBegun(const Place& place) const;
    // What lies in a folder, itself not included, by path relative to it.
    Disk below(const QString& folder) const;
    bool exists(const QString& path) const { return disk.contains(path); }
    // A file was to be copied to where a folder with something in it stands. What becomes of that
    // folder depends on the user's rights.
    bool isMurky() const { return murky; }

private:
    struct Entry
    {
        bool isDir = true;
        QString source;
    };
    struct Task
    {
        bool isCopy = true;
        QString source;
        QString destination;
    };

    void refreshTotal();
    QList<Row>& childrenOf(const Place& place);
    QString folderOf(const Place& place) const;
    bool addEntry(const QString& path, const Entry& entry);
    Row rowFor(const QString& source, const QString& path) const;
    void fill(Row& row, const QString& source, const QString& path);

    QStringList namesIn(const QString& folder) const;
    bool isFile(const QString& path) const;
    bool isFolder(const QString& path) const;
    bool makeFolder(const QString& path);
    void erase(const QString& path);
    void carryOut(const Task& task);
    bool copyFile(const QString& source, const QString& destination);
    bool copyFolder(const QString& source, const QString& destination);

    QList<Row> top;
    QMap<QString, Entry> tree;
    QList<Task> queue;
    std::optional<Task> begun;
    Disk disk;
    QString staging;
    std::optional<qint64> shown;
    bool murky = false;
};
