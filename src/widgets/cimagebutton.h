// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cbaseimagectrl.h"

// The picture button that the forms of windows, pages and dialogs are made of.
class CImageButton : public CBaseImageCtrl
{
    Q_OBJECT

public:
    explicit CImageButton(QWidget* parent = nullptr);
};
