// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// Why the tour cannot go on, in a sentence for whoever takes it. Thrown by whatever a page's tour
// calls, so that the tours read as a list of steps; caught where they are started.
struct TourFailure
{
    QString reason;
};

// Ends the tour with this reason unless the condition holds.
inline void require(bool condition, const QString& reason)
{
    if (!condition)
        throw TourFailure{reason};
}
