// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// The measurements, one per subject, each in a file of its own. They print their table and keep
// their input below folder.

// Load ISO until the image can be browsed, against the bare archiver's listing; where the rest of
// the time goes.
void benchListing(const QString& folder);
// Extraction through the page, against the bare archiver.
void benchExtract(const QString& folder);
// Create ISO with everything staged, against the bare authoring tool; how long the window is away
// while many files are waited for.
void benchCreate(const QString& folder);
// What the copy queue copies, against cp, and where the time goes; what asking it costs.
void benchStaging(const QString& folder);
// Loading into the Edit page and saving from it, against the bare tools; the search.
void benchEdit(const QString& folder);
// A tool's lines through the runner, against a bare pipe.
void benchRunner(const QString& folder);
// From the start of the process to the first picture, and the memory that a large image takes.
void benchWindow(const QString& folder);

// The parts of benchWindow() that run in a process of their own; they return its exit code.
int firstPaint(int argc, char* argv[], bool withMainWindow);
int memoryOfImage(int argc, char* argv[]);
