// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "imagedialog.h"

class CImageButton;
class QLabel;

// The about box: the product's logo, the legal notice and whose work it is. Opened from the
// application menu.
class CAboutusDialog : public ImageDialog
{
    Q_OBJECT

public:
    explicit CAboutusDialog(QWidget* parent = nullptr);

public slots:
    // Opens an address in the default browser.
    void openUrl(QString address);

private:
    QLabel* addLabel(const QString& name, const QString& text, int y, int height);

    QLabel* label_first;
    QLabel* label_copyright;
    // Named closeButton here, as QWidget has a close() slot; its object name is "close".
    CImageButton* closeButton;
};
