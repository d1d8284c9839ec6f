// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "discprogress.h"

namespace
{

const QLatin1String key("DRStatusPercentCompleteKey");
const QLatin1String keyAndColon("DRStatusPercentCompleteKey:");

// Beyond every share of a work and, times any whole, within an int.
constexpr double absurd = 1000;

} // namespace

std::optional<int> readDiscProgress(const QString& line, int whole)
{
    if (!line.contains(key))
        return std::nullopt;
    QString number = line;
    number.remove('\r').remove('\n').remove(keyAndColon);
    const double done = number.trimmed().toDouble();
    // Written so that "nan" fails as well.
    if (!(done > 0 && done < absurd))
        return std::nullopt;
    return static_cast<int>(done * whole);
}
