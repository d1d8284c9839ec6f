// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>

// Runs a tool the cheapest way there is: its output goes through a pipe into one large buffer until
// its end. Returns the output, standard error included. Ends the program when the tool fails.
QByteArray runBare(const QString& program, const QStringList& arguments);
