// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "benchdialogs.h"
#include "cpage2.h"

// The Extract page as the measurements drive it: without clicks, its dialogs answered as soon as
// they show.
class BenchPage : public CPage2
{
    Q_OBJECT

public:
    BenchPage();

    // Loads the image and returns when it can be browsed, the pending events handled. Milliseconds.
    double load(const QString& image);
    // Of the last load: what building the views took. Milliseconds.
    double viewTime() const { return lastViewTime; }
    // Extracts everything in the current folder to an existing folder. Milliseconds from the start
    // of the archiver to the success message.
    double extractAll(const QString& destination);
    // Of the last extraction: until the page knew that the archiver has ended. Milliseconds.
    double archiverTime() const { return lastArchiverTime; }
    // Shows the first folder of the image in the table.
    void enterFirstFolder();
    int rows() const;

public slots:
    void OnUnzipFinished() override;
    void OnExtractFinished() override;

private:
    bool isLoaded = false;
    double lastViewTime = 0;
    BenchDialogs dialogs;
    double lastArchiverTime = 0;
};
