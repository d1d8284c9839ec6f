// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cruncommandthread.h"

#include <QTest>

// What the runner's tests have in common.

// The stand-in tool beside the test executable.
inline QString toolPath()
{
    return QCoreApplication::applicationDirPath() + "/7z/7z";
}

constexpr int stopLimitMs = 2000;

// The longest time between two turns of the event loop, which is how long a window would not
// answer.
class LoopWatch : public QObject
{
public:
    LoopWatch()
    {
        sinceTurn.start();
        startTimer(5);
    }
    qint64 longestMs = 0;

protected:
    void timerEvent(QTimerEvent*) override { longestMs = qMax(longestMs, sinceTurn.restart()); }

private:
    QElapsedTimer sinceTurn;
};

// A runner of the stand-in tool and what this thread has received from it.
struct Run
{
    explicit Run(const QStringList& arguments = {"argument"})
    {
        QObject::connect(&runner, &CRunCommandThread::standoutputline, &receiver,
                         [this](const QString& piece) { pieces.append(piece); });
        QObject::connect(&runner, &CRunCommandThread::sigfinished, &receiver,
                         [this] { ++finished; });
        QObject::connect(&runner, &CRunCommandThread::terminateprocess, &receiver,
                         [this] { ++terminating; });
        runner.SetRunCmd(toolPath(), arguments);
    }

    bool waitForEnd(int limitMs = 10000, int ends = 1)
    {
        return QTest::qWaitFor([this, ends] { return finished == ends; }, limitMs);
    }

    bool finish(int limitMs = 10000)
    {
        runner.start(QThread::InheritPriority);
        return waitForEnd(limitMs);
    }

    bool waitForPieces(int count, int limitMs = 5000)
    {
        return QTest::qWaitFor([this, count] { return pieces.size() >= count; }, limitMs);
    }

    QObject receiver;
    CRunCommandThread runner{nullptr};
    QStringList pieces;
    int finished = 0;
    int terminating = 0;
};
