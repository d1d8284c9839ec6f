// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

class CImageButton;
class QPoint;
class QString;
class QWidget;

// A button of this name whose clicks go to a slot of the page, as SLOT() gives it. Belongs to the
// page.
CImageButton* createPageButton(QWidget* page, const QString& name, QPoint position,
                               const char* slot);

// Gives a page's button the three pictures of this name and its caption, which it takes its
// accessible name from.
void setUpPageButton(CImageButton* button, const QString& picture, const QString& caption);
