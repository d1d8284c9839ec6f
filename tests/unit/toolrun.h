// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cruncommandthread.h"

#include <QTest>

#include <atomic>
#include <memory>

// What the runner's tests have in common.

// The stand-in tool beside the test executable.
inline QString toolPath()
{
    return QCoreApplication::applicationDirPath() + "/7z/7z";
}

// Only a test that fails needs so long.
constexpr int limitMs = 60000;

// Waits until the tool of a runner, if it is silent, has been so for a step of the runner; whether
// that comes in time.
inline bool hasPaused(QObject* runner)
{
    // A call that is queued for the runner is handled between two steps. What the tool has written
    // by now arrives in the first of them at the latest.
    const auto steps = std::make_shared<std::atomic<int>>(0);
    for (int step = 1; step <= 3; ++step) {
        QMetaObject::invokeMethod(runner, [steps] { ++*steps; }, Qt::QueuedConnection);
        for (int waited = 0; *steps < step; ++waited) {
            if (waited == limitMs)
                return false;
            QThread::msleep(1);
        }
    }
    return true;
}

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

    bool waitForEnd(int ends = 1)
    {
        return QTest::qWaitFor([this, ends] { return finished == ends; }, limitMs);
    }

    bool finish()
    {
        runner.start(QThread::InheritPriority);
        return waitForEnd();
    }

    // Until the worker has left, stopped or not, and all that it sent has been received.
    bool waitForWorker()
    {
        const bool hasLeft = runner.wait(limitMs);
        QCoreApplication::processEvents();
        return hasLeft;
    }

    bool waitForPieces(int count)
    {
        return QTest::qWaitFor([this, count] { return pieces.size() >= count; }, limitMs);
    }

    QObject receiver;
    CRunCommandThread runner{nullptr};
    QStringList pieces;
    int finished = 0;
    int terminating = 0;
};
