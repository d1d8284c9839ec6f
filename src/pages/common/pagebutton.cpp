// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "pagebutton.h"

#include "cimagebutton.h"

void setUpPageButton(CImageButton* button, const QString& picture, const QString& caption)
{
    constexpr int style = 3;
    const QString path = ":/nwu/" + picture;
    button->SetBackGround(path + '1', path + '2', path + '3', QString(), caption, QString(), style);
}
