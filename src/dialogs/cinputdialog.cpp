// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cinputdialog.h"

#include <QLabel>
#include <QLineEdit>

CInputDialog::CInputDialog(QWidget* parent)
    : CommDialog(parent)
    , lineEdit(new QLineEdit(this))
{
    lineEdit->setObjectName("lineEdit");
    lineEdit->setGeometry(40, 100, 360, 20);
    QFont font = lineEdit->font();
    font.setPixelSize(13); // the label's
    lineEdit->setFont(font);
    // Fonts with Chinese characters have tall lines: without this, their lower edge is cut off.
    lineEdit->setTextMargins(0, -2, 0, -2);
    textLabel()->setGeometry(40, 60, 340, 25);
    textLabel()->setBuddy(lineEdit);
    CInputDialog::retranslate();
    lineEdit->setFocus();
}

void CInputDialog::retranslate()
{
    CommDialog::retranslate();
    SetText(tr("Please input the name:"));
    lineEdit->setAccessibleName(tr("Please input the name:"));
}

void CInputDialog::SetInput(QString text)
{
    lineEdit->setText(text.trimmed());
    lineEdit->selectAll();
}

QString CInputDialog::GetInput() const
{
    return lineEdit->text().trimmed();
}
