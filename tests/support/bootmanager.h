// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

// What the tests of bootable sticks put on them to see them start.

// A boot manager that prints its text and stops the processor; it is loaded as those of Windows.
QByteArray bootManager(const QByteArray& text);

// The boot menu that the USB writer writes. It starts the file /bootmgr.
extern const QByteArray bootMenu;
