// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

// The stand-in for "mount": without arguments it prints what is mounted in the form that the
// program reads; with arguments it becomes the system's own mount. Returns the exit code.
int mountTool(const QStringList& arguments);
