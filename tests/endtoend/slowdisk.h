// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "processcounts.h"

#include <QObject>

#include <csignal>

// Lets the tools that run work for a tenth of the time while it lives. The archiver reports five
// times a second and a fast disk takes it all in half a second, which no progress bar could show.
class SlowDisk : public QObject
{
public:
    SlowDisk() { startTimer(20); }
    ~SlowDisk() override { signalAll(SIGCONT); }

protected:
    void timerEvent(QTimerEvent*) override
    {
        turn = (turn + 1) % 10;
        signalAll(turn == 0 ? SIGCONT : SIGSTOP);
    }

private:
    static void signalAll(int signal)
    {
        const QList<qint64> children = childProcesses();
        for (const qint64 process : children)
            ::kill(pid_t(process), signal);
    }

    int turn = 0;
};
