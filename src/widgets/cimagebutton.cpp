// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"

CImageButton::CImageButton(QWidget* parent)
    : CBaseImageCtrl(parent)
{
}
