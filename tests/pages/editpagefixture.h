// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cpage4.h"
#include "pagefixture.h"
#include "scriptedcalls.h"

#include <QTableWidget>
#include <QTreeWidget>

class CLineEdit;

// The Edit page as the main window lays it out. With the stand-in tools beside the test, `archiver`
// and `author` tell them what to do.
class EditPageFixture : public PageFixture
{
public:
    EditPageFixture();
    // The page goes before the gates that hold its tools: a run that came to its end in between
    // would be told in a dialog that nobody closes.
    ~EditPageFixture() override;

    // Where the page unpacks to, without a trailing "/".
    static QString workFolder();
    // The archiver lists these entries (see ExtractPageFixture) and unpacks doing this.
    void setArchiver(const QStringList& entryLines, const QStringList& unpacking = {}) const;

    // Presses Load ISO and chooses this file, which is made if it is not there.
    void startLoading(const QString& fileName = "image.iso");
    bool waitUntilListed(int limitMs = 60000) const;
    // Until the image is unpacked and all changes have been made in the work folder.
    bool waitUntilWorked(int limitMs = 60000) const;
    // All of it, with what `setArchiver` was given.
    bool load();

    void tick(const QStringList& names) const;
    int rowOf(const QString& name) const;
    QStringList shownNames() const;
    void openFolder(const QString& name) const;
    void add(const QStringList& paths) const;
    // Ticks the entry and gives it this name.
    void rename(const QString& name, const QString& newName) const;
    // Ticks the entries and deletes them.
    void remove(const QStringList& names) const;
    // Starts a save to this file, over one that is there: returns once the tool has been started.
    void startSaving(const QString& isoPath) const;

    QTableWidget* table() const;
    QTreeWidget* tree() const;
    CLineEdit* search() const;

    QPointer<CPage4> page;
    ScriptedCalls archiver;
    ScriptedCalls author;
};
