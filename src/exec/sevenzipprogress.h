// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

// How far the archiver is with an extraction.
struct SevenZipProgress
{
    // Percent, as the archiver wrote it.
    int percent = 0;
    // The entry being extracted, without control characters.
    QString entry;
};

// Reads one piece of the archiver's output; nothing when the piece tells no progress. The archiver
// rubs its progress out with backspaces before it writes the next, at its own pace: a piece may end
// in the middle of that. What counts is the latest state of the line that tells a progress.
std::optional<SevenZipProgress> readSevenZipProgress(const QString& piece);

// Only the percentage, for which no entry has to be named: what stands before the first "% ", 0
// when that is no number.
std::optional<int> readSevenZipPercent(const QString& piece);

// The same, but of what stands before the first "% " only the last word counts.
std::optional<int> readSevenZipPercentWord(const QString& piece);
