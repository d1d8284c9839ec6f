// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "pagewidgets.h"

#include <QLabel>

const char* const radioMarkStyle =
    "QRadioButton::indicator:checked {\n    image: url(:/nwu/rchecked);\n}\n\n"
    "QRadioButton::indicator:unchecked {\n    image: url(:/nwu/runchecked);\n}";

void setFontPixels(QWidget* widget, int pixels)
{
    QFont font = widget->font();
    font.setPixelSize(pixels);
    widget->setFont(font);
}

QLabel* createPageLabel(QWidget* parent, const QString& name, int pixels, const QColor& colour)
{
    QLabel* const label = new QLabel(parent);
    label->setObjectName(name);
    setFontPixels(label, pixels);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, colour);
    label->setPalette(palette);
    return label;
}

QLabel* createPageHeading(QWidget* parent, const QString& name, int pixels)
{
    QLabel* const heading = createPageLabel(parent, name, pixels, PageColours::text);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    return heading;
}
