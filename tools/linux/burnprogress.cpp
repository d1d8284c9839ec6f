// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnprogress.h"

#include "printing.h"

#include <QRegularExpression>

#include <algorithm>

namespace
{

// The largest value below 1 that is written differently.
constexpr double almostAll = 0.9999999;

} // namespace

std::optional<double> readBurnProgress(const QString& line)
{
    static const QRegularExpression written("\\b(\\d+) of +(\\d+) MB written");
    const QRegularExpressionMatch match = written.match(line);
    const double total = match.captured(2).toDouble();
    if (total <= 0)
        return std::nullopt;
    return std::min(match.captured(1).toDouble() / total, 1.0);
}

QString progressLine(double part)
{
    QString number = QString::number(part, 'f', 7);
    while (number.endsWith('0'))
        number.chop(1);
    if (number.endsWith('.'))
        number.chop(1);
    return "DRStatusPercentCompleteKey: " + number;
}

ProgressTeller::ProgressTeller(int leastInterval)
    : interval(leastInterval)
{
}

void ProgressTeller::reach(double part)
{
    const double shown = std::min(part, almostAll);
    if (!(shown > told) || (sinceTold.isValid() && sinceTold.elapsed() < interval))
        return;
    told = shown;
    sinceTold.start();
    say(progressLine(shown));
}

void ProgressTeller::finish()
{
    say(progressLine(1));
}
