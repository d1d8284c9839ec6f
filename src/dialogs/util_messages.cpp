// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// The message boxes that every page shows in one line.

#include "commdialog.h"
#include "util.h"

void Util::ShowError(QString text)
{
    CommDialog dialog(nullptr);
    dialog.SetAllowWarp();
    dialog.SetText(text);
    dialog.SetCancelHidden();
    dialog.exec();
}

void Util::ShowOpen(QString text, QString path)
{
    CommDialog dialog(nullptr);
    dialog.SetText(text);
    dialog.SetOpen(path);
    dialog.exec();
}

int Util::ShowChoose(QString picture, QString text)
{
    CommDialog dialog(nullptr);
    dialog.SetAllowWarp();
    dialog.SetBackGround(picture);
    dialog.SetText(text);
    return dialog.exec();
}
