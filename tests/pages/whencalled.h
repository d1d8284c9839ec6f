// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "drivescenario.h"

#include <QTimer>

#include <functional>

// Does something as soon as a stand-in has been called, while the code under test waits for it: a
// page that looks for drives returns only when the tools have ended.
class WhenCalled
{
public:
    // The command is a program and its arguments, as DriveScenario::commands() has them. Only its
    // calls from now on count.
    WhenCalled(const DriveScenario& drives, const QStringList& command,
               const std::function<void()>& action)
        : scenario(drives)
        , awaited(command)
        , earlier(scenario.commands().count(command))
        , step(action)
    {
        timer.callOnTimeout([this] { look(); });
        timer.start(10);
    }
    WhenCalled(const WhenCalled&) = delete;
    WhenCalled& operator=(const WhenCalled&) = delete;

    // Whether the action has been done, or is being done.
    bool isDone() const { return done; }

private:
    void look()
    {
        if (scenario.commands().count(awaited) <= earlier)
            return;
        timer.stop();
        done = true;
        step();
    }

    const DriveScenario& scenario;
    const QStringList awaited;
    const int earlier;
    const std::function<void()> step;
    QTimer timer;
    bool done = false;
};
