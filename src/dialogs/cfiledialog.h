// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileDialog>

// Chooses several folders, or files and folders together, which the toolkit's own dialog does not
// offer. Util's GetDirsDialog() and GetDirsAndFilesDialog() run it.
class CFileDialog : public QFileDialog
{
    Q_OBJECT

public:
    // withFiles shows files beside the folders.
    CFileDialog(QWidget* parent, bool withFiles);

    // Absolute paths of the choice as far as it exists and may be chosen: what is selected in the
    // list or, without a selection, what is typed. Hides the base's function.
    QStringList selectedFiles() const;

public slots:
    // Accepts the choice without the base's check for one existing file. Spelled so.
    void onChiose();

private:
    bool withFiles;
};
