// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// How our stand-ins for the disk tools speak: the program reads them line by line while they work.

// Writes a line to standard output at once.
void say(const QString& line);
// Writes a line to standard error and returns 1, the exit code of a failure.
int complain(const QString& line);
