// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "mounttable.h"

std::optional<QString> mountPointInLine(const QString& line, const QString& device)
{
    if (!line.startsWith(device))
        return std::nullopt;
    const int begin = line.indexOf('/', device.size());
    if (begin < 0)
        return std::nullopt;
    const int options = line.indexOf('(', begin);
    const int end = options >= 0 ? options : line.size() - 1;
    return line.mid(begin, end - begin).trimmed();
}
