// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>

// Counts how often the window's thread has come back to its events since construction, a hundred
// times a second at most: for tests that a window lives while something lasts.
class Heartbeat
{
public:
    Heartbeat()
    {
        QObject::connect(&timer, &QTimer::timeout, [this] { ++beats; });
        timer.start(10);
    }

    int count() const { return beats; }

private:
    QTimer timer;
    int beats = 0;
};
