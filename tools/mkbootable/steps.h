// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

#include <atomic>
#include <functional>

// A list of steps that change a disk, run one after another until one fails. What makes a disk
// bootable, on each system, is such a list.
struct Step
{
    // What is being done, for the user.
    QString name;
    // Returns why it failed, or an empty text.
    std::function<QString()> run;
};

// Says each step before it runs. When stopped is set, the step that runs is finished and the next
// does not begin; it may be null. Returns the step that failed and why, as one line; empty when all
// have run.
QString runSteps(const QVector<Step>& steps, const std::function<void(const QString&)>& say,
                 const std::atomic<bool>* stopped);
