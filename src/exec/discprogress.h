// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

// Reads one line that the disk image tool prints while it burns or reads a disc: how much is done,
// as a part of whole, truncated. Nothing when the line tells no progress, or none that is above 0.
std::optional<int> readDiscProgress(const QString& line, int whole);
