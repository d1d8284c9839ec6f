// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

class CImageButton;
class QString;

// Gives a page's button the three pictures of this name and its caption, which it takes its
// accessible name from.
void setUpPageButton(CImageButton* button, const QString& picture, const QString& caption);
