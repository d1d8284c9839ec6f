// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// What a terminal would show of a text in which backspaces rub out what stands before them. A
// backspace with nothing before it does nothing. Used by the readers of progress.
QString eraseBackspaces(const QString& text);

// The text without control characters, fit for a label.
QString withoutControlCharacters(const QString& text);
