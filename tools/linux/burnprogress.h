// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

// How far burning or copying a disc has come, from the real tool's lines to ours.

// The part (0 to 1) that a line of the burning tool names, "… 12 of 57 MB written …".
std::optional<double> readBurnProgress(const QString& line);

// "DRStatusPercentCompleteKey: 0.1234568"
QString progressLine(double part);

// Says how far the work is: rising values only, and 1 for nothing but success.
class ProgressTeller
{
public:
    // Says the part when it is more than what was said before.
    void reach(double part);
    // Says that all is done.
    static void finish();

private:
    double told = 0;
};
