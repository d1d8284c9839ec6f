// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSemaphore>

#include <functional>
#include <memory>

// Keeps a runner's worker thread from running further ahead of the thread that receives its signals
// than a few thousand pieces: a tool that floods is slowed down to what the window can take,
// through its own full pipe. Lives in the receiving thread; the runner owns it.
class DeliveryPacer : public QObject
{
    Q_OBJECT

public:
    // Worker thread, before the first piece of a run.
    void reset();
    // Worker thread, after `pieces` signals were emitted. Waits while too many of them are still on
    // their way; gives up when isStopped() or when nothing is received for a while. A receiver that
    // does not listen (or gets its signals in the worker itself, while its own thread is away) is
    // not waited for again before it shows that it does.
    void afterEmitting(int pieces, const std::function<bool()>& isStopped);

private:
    void requestReceipt();
    void takeReceipts();
    void waitForReceipts(const std::function<bool()>& isStopped);

    int unreceipted = 0;
    int receiptsOutstanding = 0;
    bool isAnswered = true;
    std::shared_ptr<QSemaphore> receipts = std::make_shared<QSemaphore>();
};
