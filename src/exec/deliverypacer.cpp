// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "deliverypacer.h"

#include "toollimits.h"

#include <QElapsedTimer>
#include <QMetaObject>
#include <QTimer>

namespace
{

constexpr int piecesPerReceipt = 256;
constexpr int receiptsInFlight = 8;
constexpr int waitStepMs = 50;

} // namespace

void DeliveryPacer::reset()
{
    unreceipted = 0;
    receiptsOutstanding = 0;
    isAnswered = true;
    receipts = std::make_shared<QSemaphore>();
}

void DeliveryPacer::afterEmitting(int pieces, const std::function<bool()>& isStopped)
{
    unreceipted += pieces;
    if (unreceipted < piecesPerReceipt)
        return;
    unreceipted = 0;
    takeReceipts();
    // Requests that nobody answers must not pile up either.
    if (isAnswered || receiptsOutstanding <= receiptsInFlight)
        requestReceipt();
    if (isAnswered)
        waitForReceipts(isStopped);
}

void DeliveryPacer::takeReceipts()
{
    while (receiptsOutstanding > 0 && receipts->tryAcquire()) {
        --receiptsOutstanding;
        isAnswered = true;
    }
}

void DeliveryPacer::waitForReceipts(const std::function<bool()>& isStopped)
{
    QElapsedTimer silence;
    silence.start();
    while (receiptsOutstanding > receiptsInFlight && !isStopped()) {
        if (receipts->tryAcquire(1, waitStepMs)) {
            --receiptsOutstanding;
            silence.start();
        } else if (silence.elapsed() >= toolLimits().deliveryMs) {
            isAnswered = false;
            return;
        }
    }
}

// Events of one thread to another arrive in order: when this one is handled, the pieces before it
// have been. The receipt itself comes from a timer, which has its turn only after the events that
// wait: so a flood lets the thread return to its other timers and to painting in between.
void DeliveryPacer::requestReceipt()
{
    ++receiptsOutstanding;
    const auto counter = receipts;
    QMetaObject::invokeMethod(
        this, [this, counter] { QTimer::singleShot(0, this, [counter] { counter->release(); }); },
        Qt::QueuedConnection);
}
