// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

class QWidget;

// A text that stands in a window, as tests of its fit see it.
struct ShownText
{
    QString text;  // without line breaks and needless blanks
    QString place; // the widget that shows it
    bool isWhole;  // nothing of it is cut off and it covers no other text
};

// The texts of a window's visible labels, buttons, headers, lists of choice and empty fields,
// measured with the fonts that they are painted in.
QList<ShownText> shownTexts(const QWidget* window);

// Those that are not whole, with their places; empty if all is well.
QStringList cutTexts(const QWidget* window);
