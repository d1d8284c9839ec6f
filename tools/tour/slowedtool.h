// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <atomic>
#include <thread>

// Slows a running tool down so that its progress can be looked at: the tool is paused and goes on
// for a moment at a time. It does its whole work and writes its own progress, only later than it
// would. Goes on at full speed when this object is destroyed.
class SlowedTool
{
public:
    // From now on watches for the tool and pauses it as soon as it runs. name is that of its
    // executable file; none of that name may run already.
    explicit SlowedTool(const QString& name);
    ~SlowedTool();
    SlowedTool(const SlowedTool&) = delete;
    SlowedTool& operator=(const SlowedTool&) = delete;

    // Returns when the tool has been paused; throws TourFailure when it does not start.
    void waitForPause() const;
    // Lets it work for a moment and pauses it again.
    void step();

private:
    void watch();
    void signal(int number) const;

    QString name;
    std::atomic<qint64> process{0};
    std::atomic<bool> isWanted{true};
    std::thread watcher;
};
