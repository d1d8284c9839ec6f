// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cpage3.h"
#include "heldfolder.h"
#include "pagefixture.h"
#include "scriptedcalls.h"

#include <QTreeWidget>

// The Create page as the main window lays it out. With the stand-in tools beside the test, `tool`
// tells mkisofs what to do.
class CreatePageFixture : public PageFixture
{
public:
    CreatePageFixture();
    // The page goes before the gates that hold its tool: a run that came to its end in between
    // would be told in a dialog that nobody closes.
    ~CreatePageFixture() override;

    static QString toolPath();
    // Where the page copies to, without a trailing "/".
    static QString stagingFolder();

    // Add and Remove as the user does them, the paths typed into the dialog.
    void addFiles(const QStringList& paths) const;
    void addFolder(const QString& path) const;
    void removeSelected() const;
    // Clicks into the list: a row, or empty space without one.
    void select(QTreeWidgetItem* row) const;
    // The row with these names from the top down, null if there is none.
    QTreeWidgetItem* row(const QStringList& names) const;
    // The texts of a row's columns.
    static QStringList texts(const QTreeWidgetItem* row);
    // Writes a file of this name, adds it and waits until it is in the staging folder.
    void addStaged(const QString& name, const QByteArray& content = "content") const;
    // Adds a folder whose copying is held, see HeldFolder, and waits until it is.
    std::unique_ptr<HeldFolder> addHeld(qint64 bytes) const;
    // Waits until all that was added or removed is in the staging folder.
    bool waitUntilStaged() const;

    // Presses Create ISO and chooses this file: returns once the tool has been started.
    void startCreating(const QString& isoPath) const;
    // Waits until the tool runs for the so manieth time.
    bool waitForCall(int number) const;

    // Nothing of any tool is left, its children included.
    static bool isToolGone();
    // The page takes the user's next wish.
    bool isUsable() const;

    QTreeWidget* list() const;

    QPointer<CPage3> page;
    ScriptedCalls tool;
};
