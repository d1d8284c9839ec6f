// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cpage2.h"

#include <QStringList>
#include <QWidget>

class QLabel;
class QProgressBar;
class QTableWidget;
class QTreeWidget;

// The Extract page with the real tools, worked as a user works it: paths typed into the file
// dialogs, buttons clicked, messages answered.
class ExtractSession
{
public:
    ExtractSession();

    // Loads an image and waits until it can be browsed.
    bool load(const QString& imagePath, int limitMs = 30000);
    // Opens a folder of the current one by its row.
    bool enter(const QString& name);
    // Ticks these rows and clears all others; false when a name is not among them.
    bool tick(const QStringList& names);
    // Presses Extract and chooses the folder; returns with the extraction running.
    void beginExtraction(const QString& folder);
    // Waits for the success message, closes it and returns its text.
    QString waitForSuccess(int limitMs = 120000);
    // Presses Stop in the progress dialog.
    void pressStop();

    QTableWidget* table() const;
    // The paths of all entries below the root, sorted.
    QStringList allPaths() const;
    bool isUsable() const;
    QProgressBar* progressBar() const;
    QLabel* progressText() const;

private:
    QWidget* progressDialog() const;

    QWidget window;
    CPage2* page;
};
