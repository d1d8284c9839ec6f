// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cmycombobox.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QStylePainter>
#include <QToolTip>

CMyComboBox::CMyComboBox(QWidget* parent)
    : QComboBox(parent)
{
}

// With the text as far as it is shown.
QStyleOptionComboBox CMyComboBox::shownOption() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText =
        fontMetrics().elidedText(option.currentText, Qt::ElideMiddle, field.width());
    return option;
}

void CMyComboBox::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    const QStyleOptionComboBox option = shownOption();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

bool CMyComboBox::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const bool isWhole = shownOption().currentText == currentText();
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           isWhole ? QString() : currentText(), this);
        return true;
    }
    return QComboBox::event(event);
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
    if (!self)
        return;
    // The list is as wide as its longest text; 8 for the margins around it.
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + 8);
    QComboBox::showPopup();
}
