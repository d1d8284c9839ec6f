// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// Boots a second machine from a stick, as a PC with a BIOS does, to see whether the stick is truly
// bootable. Called by tests that have written one; it must not be plugged in elsewhere any more.
//
// Returns the 25 lines of the text screen, as soon as they contain the awaited text and otherwise
// when the time has passed; empty when there is no machine. The file stays as it is.
QString bootStick(const QString& file, const QString& awaited, int limitSeconds = 300);
