// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "copywait.h"

#include "cfilecopy.h"
#include "cprogressdialog.h"

#include <QCoreApplication>
#include <QDebug>
#include <QElapsedTimer>
#include <QTimer>

#include <chrono>
#include <future>
#include <limits>

namespace
{

constexpr int pollMs = 100;
// How long the window may be away for a measurement that is nearly there.
constexpr std::chrono::milliseconds shortMeasurement(5);

int toBar(qint64 kilobytes)
{
    return int(qBound<qint64>(0, kilobytes, std::numeric_limits<int>::max()));
}

// Measuring many files takes a while: on a thread of its own, with the window alive.
qint64 measureLeft(CFileCopy& queue)
{
    auto measuring = std::async(std::launch::async, [&queue] { return queue.GetLeftTaskBytes(); });
    while (measuring.wait_for(shortMeasurement) != std::future_status::ready)
        QCoreApplication::processEvents();
    return measuring.get();
}

} // namespace

void processEventsFor(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    QTimer wake;
    wake.start(milliseconds);
    do
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    while (clock.elapsed() < milliseconds);
}

bool waitForCopies(CFileCopy& queue, CProgressDialog& progress, const QString& text,
                   const char* logTag)
{
    const qint64 start = measureLeft(queue);
    // What has no bytes is no less to be copied: the size alone would let an empty file be missed.
    if (start > 0 || queue.HasTasks()) {
        progress.SetText(text);
        progress.SetRange(0, toBar(start >> 10));
    }
    qDebug() << start;
    int shown = 0;
    qint64 left = start;
    while (!queue.IsStopped() && (left > 0 || queue.HasTasks())) {
        // The counter of copied bytes and the list change one after the other; in between, the bar
        // would jump back.
        shown = qMax(shown, toBar((start - left) / 1024));
        progress.SetValue(shown);
        processEventsFor(pollMs);
        qDebug() << logTag << start << left;
        left = measureLeft(queue);
    }
    return !queue.IsStopped();
}
