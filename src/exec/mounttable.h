// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

// Reads one line of "mount": the mount point of the device, if the line begins with its name. That
// of a device whose name goes on, such as one of its partitions, counts as well.
std::optional<QString> mountPointInLine(const QString& line, const QString& device);
