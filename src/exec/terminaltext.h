// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

// What a terminal shows in the end of a text in which backspaces rub out what stands before them. A
// backspace with nothing before it does nothing. Used by the readers of progress.
QString eraseBackspaces(const QString& text);

// What the line showed each time before something was rubbed out, oldest first, and what it shows
// in the end. A text without backspaces has one state, itself.
QStringList lineStates(const QString& text);

// The text without control characters, fit for a label.
QString withoutControlCharacters(const QString& text);
