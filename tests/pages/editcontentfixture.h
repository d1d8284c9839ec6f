// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editpagefixture.h"

// The Edit page with an image whose files really lie in the work folder, for tests that compare
// what the page shows with what is there. Entries that end in "/" are folders; every file of the
// image holds its own path.
class EditContentFixture : public EditPageFixture
{
public:
    // Folders boot, boot/grub and docs, files inside and beside them.
    static QStringList usualEntries();

    // Lists these entries and unpacks doing this.
    void setImage(const QStringList& entries, const QStringList& unpacking = {}) const;
    // Lays the image's files into the work folder, as the archiver would.
    static void unpack(const QStringList& entries);
    // Loads an image of these entries, to the end.
    bool open(const QStringList& entries = usualEntries());
    // Loads it up to its listing; the archiver is unpacking it until openGate().
    bool openHalfway(const QStringList& entries = usualEntries());
    // The same with an empty work folder: the test calls unpack() when it wants the files there.
    bool startUnpacking(const QStringList& entries = usualEntries());

    // The script line by which the archiver waits, and what lets it go on, once for all. False when
    // it does not come to wait.
    QString gate() const;
    bool openGate() const;

    Item* root() const;
    // Null when there is none.
    Item* item(const QString& path) const;
    // All paths below, sorted.
    QStringList modelPaths() const;
    QStringList nodePaths() const;
    static QStringList pathsIn(const QString& folder);
    // Waits for the work and names where tree, views and work folder part ways; empty for nowhere.
    QString disagreement() const;
    // The texts of an entry's row.
    QStringList rowTexts(const QString& name) const;
    QStringList ticked() const;

    // Ticks the entries and copies them to this folder. Returns what the dialogs said.
    QStringList exportTo(const QStringList& names, const QString& destination) const;
    // A file on the computer; returns its path.
    QString makeFile(const QString& relative, const QByteArray& content = "new") const;
    // A real click on a row, x counted from the table's left edge.
    void clickRow(int row, int x) const;
};
