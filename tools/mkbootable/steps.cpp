// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "steps.h"

QString runSteps(const QVector<Step>& steps, const std::function<void(const QString&)>& say,
                 const std::atomic<bool>* stopped)
{
    for (const Step& step : steps) {
        if (stopped && *stopped)
            return QStringLiteral("Stopped before: %1").arg(step.name);
        say(step.name);
        const QString error = step.run();
        if (!error.isEmpty())
            return QStringLiteral("%1 failed: %2").arg(step.name, error);
    }
    return {};
}
