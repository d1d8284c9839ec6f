// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class CImageButton;

// The numbers of the pictures that a button shows, of those with this name: normal, under the
// mouse, pressed and disabled, such as "1231". A question mark stands for none of them and for more
// than one. The button lies in a shown window; it is not clicked.
QString shownPictures(CImageButton* button, const QString& name);
