// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QString>

#include <optional>

// How far burning or copying a disc has come, from the real tool's lines to ours.

// The part (0 to 1) that a line of the burning tool names, "… 12 of 57 MB written …".
std::optional<double> readBurnProgress(const QString& line);

// "DRStatusPercentCompleteKey: 0.1234568"
QString progressLine(double part);

// Says how far the work is: rising values only, and 1 for nothing but success. The real tools tell
// every megabyte; whoever follows would paint hundreds of times a second, so only as many are
// passed on as an eye can follow.
class ProgressTeller
{
public:
    // The least time between two values, in milliseconds.
    explicit ProgressTeller(int leastInterval = 200);

    // Says the part when it is more than what was said before and that is long enough ago.
    void reach(double part);
    // Says that all is done.
    static void finish();

private:
    int interval;
    double told = 0;
    // Started by the first value.
    QElapsedTimer sinceTold;
};
