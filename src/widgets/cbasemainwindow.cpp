// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cbasemainwindow.h"

void CBaseMainWindow::slot_minWindow()
{
    showMinimized();
}

void CBaseMainWindow::announceVisible(bool visible)
{
    emit sigvisable(visible);
}

void CBaseMainWindow::announceMove()
{
    emit sigmove();
}
