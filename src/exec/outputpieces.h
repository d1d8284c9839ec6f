// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

// What one read of a tool's output is split into: the parts between carriage returns that hold more
// than white space, as they are. A line end stays on the last part. Used by the runner.
QStringList outputPieces(const QString& text);

// Whether output that no line feed ends yet can be read at once: a tool that draws its progress in
// place writes carriage returns or backspaces and no line feeds for minutes.
bool isDrawnInPlace(const QByteArray& unfinished);

// How many of these bytes make whole UTF-8 characters: all but one that has only begun at their
// end. What is no UTF-8 counts as whole.
int wholeCharacters(const QByteArray& bytes);
