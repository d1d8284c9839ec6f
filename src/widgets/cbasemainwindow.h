// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "imagewindow.h"

#include <QMainWindow>

// Base of the main window: a frameless main window whose look is one background picture.
class CBaseMainWindow : public ImageWindow<QMainWindow>
{
    Q_OBJECT

public:
    CBaseMainWindow() = default;

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
};
