// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "toolstopper.h"

#include "processcounts.h"
#include "testfiles.h"

#include <QElapsedTimer>
#include <QTest>
#include <QThread>

#include <csignal>

namespace
{

constexpr int limitMs = 20000;
constexpr int workUs = 1000;
constexpr int lookUs = 200;

} // namespace

ToolStopper::ToolStopper(const QByteArray& toolArgument)
    : argument(toolArgument)
    , watcher([this] { watch(); })
{
}

ToolStopper::~ToolStopper()
{
    isWanted = false;
    watcher.join();
}

void ToolStopper::watch()
{
    while (isWanted && process == 0) {
        const QList<qint64> children = childProcesses();
        for (const qint64 child : children) {
            const QByteArray line = readFile(QString("/proc/%1/cmdline").arg(child));
            if (!line.split('\0').contains(argument))
                continue;
            ::kill(pid_t(child), SIGSTOP);
            process = child;
            return;
        }
        QThread::usleep(lookUs);
    }
}

int ToolStopper::catchWhen(const std::function<bool()>& condition)
{
    if (!QTest::qWaitFor([this] { return process != 0; }, limitMs))
        qFatal("No tool was started with %s", argument.constData());
    const pid_t tool = pid_t(process);
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        ::kill(tool, SIGCONT);
        QThread::usleep(workUs);
        ::kill(tool, SIGSTOP);
        QTest::qWait(1);
        if (clock.hasExpired(limitMs))
            qFatal("The tool did not come so far");
    }
    return tool;
}
