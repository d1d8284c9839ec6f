// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QSet>
#include <QStringList>

// What the Edit page shows and has in its work folder, by its rules alone: plain maps of names,
// which every operation of the page has a counterpart for. Paths have no "/" at their begin, the
// topmost folder's is empty.
class EditModel
{
public:
    // An entry of the image, in the order in which the page has them. Content of files only.
    void addFromImage(const QString& path, bool isFolder, const QByteArray& hash);
    // Shows this folder.
    void open(const QString& folder);
    // Types this text into the search field.
    void search(const QString& text);
    // What comes of adding this file or folder of the disk to the folder shown.
    void addFromDisk(const QString& diskPath);
    // What comes of deleting, or renaming the first of, the ticked rows.
    void deleteTicked();
    void renameTicked(const QString& newName);
    // What comes of exporting the ticked rows into an empty folder.
    QMap<QString, QByteArray> exported() const;

    // The child a row stands for: that of the same number, whatever the search hides.
    QString pathOfRow(int row) const;
    bool isFolder(const QString& path) const { return children.contains(path); }
    // All paths, or those of all folders, in the order of the tree.
    QStringList paths(bool foldersOnly = false) const;
    // Of every entry below the topmost folder, as hashesBelow() gives them.
    const QMap<QString, QByteArray>& hashes() const { return contents; }

    QString shown;    // the folder
    QStringList rows; // their names
    QSet<int> ticked; // their numbers
    QString searchText;

private:
    void refresh();
    void append(const QString& path, bool isFolder, const QByteArray& hash, const QString& origin);
    void collect(const QString& folder, bool foldersOnly, QStringList& found) const;
    // Takes the entry and all below it away, under their paths from there on.
    void remove(const QString& path);
    void move(const QString& path, const QString& newPath);

    QMap<QString, QStringList> children{{QString(), {}}}; // the names in every folder, in order
    QMap<QString, QByteArray> contents;
    QMap<QString, QString> origins; // on the disk, of what was added
};
