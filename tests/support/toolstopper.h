// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <atomic>
#include <functional>
#include <thread>

// Catches a real tool in the middle of its work, however fast it is: from the construction on, the
// first child process that is started with the given argument is stopped as soon as it runs.
class ToolStopper
{
public:
    explicit ToolStopper(const QByteArray& argument);
    // A process that was caught stays stopped.
    ~ToolStopper();
    ToolStopper(const ToolStopper&) = delete;
    ToolStopper& operator=(const ToolStopper&) = delete;

    // Waits until the tool has been caught and lets it work, a moment at a time, until the
    // condition holds. Returns its process number; stops the test run when that does not come.
    int catchWhen(const std::function<bool()>& condition = [] { return true; });

private:
    void watch();

    QByteArray argument;
    std::atomic<qint64> process{0};
    std::atomic<bool> isWanted{true};
    std::thread watcher;
};
