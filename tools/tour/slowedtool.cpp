// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "slowedtool.h"

#include "processcounts.h"
#include "tourfailure.h"

#include <QThread>

#include <csignal>
#include <sys/types.h>

namespace
{

constexpr int startMs = 10000;
// The archiver writes its progress at most five times a second, so the pauses last longer.
constexpr int workMs = 5;
constexpr int pauseMs = 250;

} // namespace

SlowedTool::SlowedTool(const QString& executableName)
    : name(executableName)
    , watcher([this] { watch(); })
{
}

SlowedTool::~SlowedTool()
{
    isWanted = false;
    watcher.join();
    signal(SIGCONT);
}

void SlowedTool::watch()
{
    while (isWanted && process == 0) {
        const qint64 found = processesOf(name).value(0);
        if (found != 0) {
            ::kill(pid_t(found), SIGSTOP);
            process = found;
        }
        QThread::usleep(500);
    }
}

void SlowedTool::waitForPause() const
{
    for (int waited = 0; process == 0; ++waited) {
        require(waited < startMs, "The tool was not started: " + name);
        QThread::msleep(1);
    }
}

void SlowedTool::step()
{
    signal(SIGCONT);
    QThread::msleep(workMs);
    signal(SIGSTOP);
    QThread::msleep(pauseMs);
}

void SlowedTool::signal(int number) const
{
    if (process != 0)
        ::kill(pid_t(process), number);
}
