// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

// Reads one line of the authoring tool's output: the progress in hundredths of a percent,
// truncated, or nothing when the line tells none. A number that cannot be read is 0.
std::optional<int> readMkisofsProgress(const QString& line);
