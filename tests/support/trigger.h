// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>

#include <functional>

// Does something once, as soon as a condition holds, from within whatever loop processes events:
// for tests of code that does not return before that.
class Trigger
{
public:
    Trigger(const std::function<bool()>& condition, const std::function<void()>& action)
    {
        QObject::connect(&timer, &QTimer::timeout, [this, condition, action] {
            if (!condition())
                return;
            timer.stop();
            fired = true;
            action();
        });
        timer.start(1);
    }

    bool hasFired() const { return fired; }

private:
    QTimer timer;
    bool fired = false;
};
