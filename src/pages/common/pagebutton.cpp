// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "pagebutton.h"

#include "cimagebutton.h"

CImageButton* createPageButton(QWidget* page, const QString& name, QPoint position,
                               const char* slot)
{
    CImageButton* const button = new CImageButton(page);
    button->setObjectName(name);
    button->move(position);
    QObject::connect(button, SIGNAL(clicked()), page, slot);
    return button;
}

void setUpPageButton(CImageButton* button, const QString& picture, const QString& caption)
{
    constexpr int style = 3;
    const QString path = ":/nwu/" + picture;
    button->SetBackGround(path + '1', path + '2', path + '3', QString(), caption, QString(), style);
}
