// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>

// Does something when a signal comes, for tests that have to act in the middle of an emission:
// connect the signal to SLOT(call()).
class Receiver : public QObject
{
    Q_OBJECT

public:
    explicit Receiver(const std::function<void()>& what)
        : action(what)
    {
    }

public slots:
    void call() { action(); }

private:
    std::function<void()> action;
};
