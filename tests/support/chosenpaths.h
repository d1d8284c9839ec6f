// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

// Stands in for the file dialogs of a test that is about what is chosen, not about choosing it.
// Linked into the test itself, it takes the place of the program's pickers.
namespace ChosenPaths
{

// What every picker gives from now on; nothing is the user's Cancel.
void set(const QStringList& paths);

} // namespace ChosenPaths
