// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "imagewindow.h"

#include <QDialog>

// Base of every page and dialog: a frameless window whose look is one background picture. The
// dialogs and pages call SetBackGround() and SetMoveable(); what is painted on it is theirs.
class ImageDialog : public ImageWindow<QDialog>
{
    Q_OBJECT

public:
    // A dialog without a parent: pages are put into the main window with setParent(), everything
    // else stands on its own. modal blocks the other windows while the dialog shows.
    explicit ImageDialog(bool modal = true);

    // A dialog of its own comes up over the window that is in use and stays above it.
    void setVisible(bool visible) override;

public slots:
    void slot_minWindow();

signals:
    // The window has been shown or activated (true) or hidden (false). Spelled so.
    void sigvisable(bool visible);
    // The user has dragged the window.
    void sigmove();

protected:
    void announceVisible(bool visible) override;
    void announceMove() override;
    // In a page, Tab goes round among the page's own widgets: what lies under it is out of reach.
    bool focusNextPrevChild(bool next) override;
    // Escape closes a dialog, but no page: going back is the business of the page's button.
    void keyPressEvent(QKeyEvent* event) override;
};
