// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cmycombobox.h"

#include <QMouseEvent>
#include <QPointer>

CMyComboBox::CMyComboBox(QWidget* parent)
    : QComboBox(parent)
{
}

void CMyComboBox::mousePressEvent(QMouseEvent* event)
{
    const QPointer<CMyComboBox> self(this);
    if (event->button() == Qt::LeftButton) {
        announced = true;
        emit dropdownclicked();
    }
    if (!self) // a slot that runs a tool processes events, among them the page's closing
        return;
    QComboBox::mousePressEvent(event);
    if (self)
        announced = false;
}

void CMyComboBox::showPopup()
{
    // The mouse has announced the list already; the keyboard comes straight here.
    const QPointer<CMyComboBox> self(this);
    if (!announced)
        emit dropdownclicked();
    if (self)
        QComboBox::showPopup();
}
