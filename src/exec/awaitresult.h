// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QEventLoop>
#include <QThread>

#include <memory>
#include <optional>
#include <type_traits>

// Runs a function that blocks, such as a short command, on a thread of its own and returns its
// result. Meanwhile the caller's events are processed, so that its windows are painted; what the
// user does waits until the function has returned, as if it had blocked the windows.
template<class Function>
auto awaitResult(Function function)
{
    std::optional<std::invoke_result_t<Function>> result;
    const std::unique_ptr<QThread> worker(
        QThread::create([&result, &function] { result = function(); }));
    QEventLoop loop;
    QObject::connect(worker.get(), SIGNAL(finished()), &loop, SLOT(quit()));
    worker->start();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    // The loop leaves early when the application quits meanwhile.
    worker->wait();
    return *result;
}
