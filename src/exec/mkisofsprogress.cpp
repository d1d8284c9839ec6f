// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "mkisofsprogress.h"

#include <cmath>

namespace
{

// Beyond every percentage and well within an int.
constexpr float absurd = 1e9F;

const QLatin1String progressMark("% done, estimate finish");

} // namespace

std::optional<int> readMkisofsProgress(const QString& line)
{
    const int markAt = line.indexOf(progressMark);
    if (markAt <= 0)
        return std::nullopt;
    // In single precision by definition, so that the truncation is the same everywhere.
    const float hundredths = line.left(markAt).toFloat() * 100.0F;
    // Written so that "nan" fails as well.
    return std::abs(hundredths) < absurd ? static_cast<int>(hundredths) : 0;
}
