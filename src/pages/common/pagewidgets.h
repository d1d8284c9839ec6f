// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

class QLabel;

// The small widgets that the pages' forms are made of, with the look that they share. All belong to
// their parent and get an object name.

namespace PageColours
{

const QColor text(0x33, 0x33, 0x33);
const QColor softText(0x60, 0x60, 0x60);

} // namespace PageColours

// The pictures of a radio button's two states, for its style sheet.
extern const char* const radioMarkStyle;

void setFontPixels(QWidget* widget, int pixels);
QLabel* createPageLabel(QWidget* parent, const QString& name, int pixels, const QColor& colour);
// A heading, in bold.
QLabel* createPageHeading(QWidget* parent, const QString& name, int pixels);

// A widget in which the user enters or chooses something, at a fixed place.
template<class Widget>
Widget* createPageField(QWidget* parent, const QString& name, const QRect& rectangle)
{
    constexpr int pixels = 13;
    Widget* const field = new Widget(parent);
    field->setObjectName(name);
    field->setGeometry(rectangle);
    setFontPixels(field, pixels);
    return field;
}
