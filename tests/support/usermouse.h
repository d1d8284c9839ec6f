// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>

class QWidget;

// The user's mouse over a shown window. Unlike the events that QtTest sends to a widget, the cursor
// really is where the mouse is, and the buttons are really held, which picture buttons go by.
// Positions are relative to the widget; buttons are the left one.
namespace UserMouse
{

void move(QWidget* widget, QPoint position);
void press(QWidget* widget, QPoint position);
void release(QWidget* widget, QPoint position);
// Comes from outside to the widget's middle, presses and releases.
void click(QWidget* widget);
// Moves out of the widget, to the outer corner of its window.
void moveAway(QWidget* widget);

} // namespace UserMouse
