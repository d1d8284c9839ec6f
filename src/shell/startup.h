// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// The steps between the process entry and the main window, each on its own so that it can be
// tested. Called by main() in this order.

// Before the application object exists: the file-creation mask, the text codec, high density.
void prepareProcess();

// On Linux, which has no disk tools under the names that the pages call: puts the folder with our
// own ones, beside the executable, in front of PATH, where there is one. Before any tool is run.
void usePlatformTools(const QString& executableFolder);

// The program does not run straight from a mounted disc image. True for a folder below /Volumes,
// after the user has been told.
bool refuseToRunFrom(const QString& executableFolder);

// Font, icon and style sheet of the application.
void setApplicationLook();
