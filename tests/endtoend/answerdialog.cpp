// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "answerdialog.h"

#include "cimagebutton.h"
#include "cinputdialog.h"
#include "cprogressdialog.h"

#include <QApplication>
#include <QLineEdit>

void answerDialog(const QString& newName)
{
    QWidget* const dialog = QApplication::activeModalWidget();
    if (!dialog || qobject_cast<CProgressDialog*>(dialog))
        return;
    if (qobject_cast<CInputDialog*>(dialog))
        dialog->findChild<QLineEdit*>()->setText(newName);
    dialog->findChild<CImageButton*>("btnok")->click();
}
