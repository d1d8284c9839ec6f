// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "copyplug.h"
#include "createpagefixture.h"

#include <QMap>

// The Create page with nothing staged yet, to which files and folders are added without dialogs.
class StagingPageFixture : public CreatePageFixture
{
public:
    StagingPageFixture();
    // Drops the copies that have not begun.
    ~StagingPageFixture() override;

    // Adds what the user would have chosen, under the selected row or at the top.
    void addFiles(const QStringList& paths) const;
    void addFolders(const QStringList& paths) const;
    // Selects a row, or none for null, without a mouse, for rows that are not shown.
    void setSelected(QTreeWidgetItem* row) const;
    // Selects the row with these names and removes it.
    void remove(const QStringList& names) const;

    // Writes a file below the fixture's folder and returns its path.
    QString makeFile(const QString& relative, const QByteArray& content = "x") const;
    // The same with nothing but a size.
    QString makeSparseFile(const QString& relative, qint64 bytes) const;

    // The names of all rows from top to bottom, those of the rows above each put in front: "a > b".
    QStringList outline() const;
    QString totalText() const;
    int gaugeValue() const;
    // What lies in the staging folder, by path; folders end in "/" and have no content.
    static QMap<QString, QByteArray> staged();

    // Puts a copy in front of the queue that is in progress until letGo(), so that none that is
    // added now begins.
    bool holdQueue();
    void letGo();
    // Lets go and waits until everything is staged.
    bool finish();

private:
    std::unique_ptr<CopyPlug> plug;
};
