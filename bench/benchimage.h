// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// Images for the measurements, made with the real mkisofs (-R -J) below folder; an image that is
// there already is taken as it is. They return its path.

// Small files in so many folders, their names 5 to 120 characters long, with blanks, accents and
// Chinese characters.
QString makeImageOfNames(const QString& folder, int folders, int filesInEach);
// Files of so many megabytes of random bytes at the top of the image: 00.bin, 01.bin, …
QString makeImageOfFiles(const QString& folder, int files, int megabytes);

// A folder of such a number of folders and files, all of the same random bytes; one that is there
// already is taken as it is. Returns its path.
QString makeTree(const QString& folder, int folders, int filesInEach, int bytes);
