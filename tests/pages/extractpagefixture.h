// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cpage2.h"
#include "pagefixture.h"
#include "scriptedcalls.h"

#include <QPointer>
#include <QTableWidget>
#include <QTreeWidget>

#include <functional>

// The Extract page as the main window lays it out, with the stand-in archiver beside the test.
class ExtractPageFixture : public PageFixture
{
public:
    ExtractPageFixture();
    // The page goes before the gates that hold its tool: a run that came to its end in between
    // would be told in a dialog that nobody closes.
    ~ExtractPageFixture() override;

    // A line of the archiver's listing.
    static QString fileLine(const QString& path, qint64 bytes = 6);
    static QString folderLine(const QString& path);
    // The rule above and below the entries.
    static QString separatorLine();
    // Folders boot, boot/grub and docs, files inside and beside them.
    static QStringList usualEntries();
    // More than a page shows at once, with names of every kind.
    static QStringList manyEntries();
    // A whole listing of such lines, as the archiver prints it.
    static QByteArray listingOf(const QStringList& entryLines);
    static QString toolPath();

    // What the archiver prints from now on: a whole listing of these entries.
    void setListing(const QStringList& entryLines) const;
    // Starts a load and chooses this image, which is made if it is not there, in the dialog.
    void startLoading(const QString& fileName = "image.iso");
    // True once the three buttons may be pressed again.
    bool waitUntilLoaded() const;
    // All of the three.
    bool load(const QStringList& entryLines = usualEntries());

    // Extracts what is ticked, choosing this folder in the dialog, up to the start of the archiver:
    // nothing of what that does has arrived on return.
    void startExtractingTo(const QString& outputDir);
    // The same to the end. whileRunning is called after the start; then this button of the success
    // dialog is pressed. True when all of it came.
    bool extractTo(const QString& outputDir, const std::function<void()>& whileRunning = {},
                   const QString& lastButton = "btnok");

    void tick(const QStringList& names) const;
    QStringList ticked() const;
    // Row of an entry, -1 if it is not shown.
    int rowOf(const QString& name) const;
    QStringList shownNames() const;
    // Opens the folder with this path by double-clicks from the root.
    void enter(const QString& path);
    // Real mouse clicks on a row, x counted from the table's left edge.
    void clickRow(int row, int x) const;
    void doubleClickRow(int row) const;
    void clickNode(QTreeWidgetItem* node) const;

    QTableWidget* table() const;
    QTreeWidget* tree() const;
    QTreeWidgetItem* topNode() const;

    ScriptedCalls tool;
    QPointer<CPage2> page;
    QString isoPath;
    // What the success dialog of the last extractTo() said.
    QString successText;

private:
    QPoint rowPoint(int row, int x) const;
};
