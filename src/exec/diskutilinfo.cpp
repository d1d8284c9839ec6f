// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskutilinfo.h"

#include <QStringList>

qint64 diskSizeOf(const QString& info)
{
    const QStringList lines = info.split('\n');
    for (const QString& line : lines) {
        const int end = line.indexOf(" Bytes)");
        if (end < 0 || !line.contains("Disk Size:"))
            continue;
        const int open = line.lastIndexOf('(', end);
        if (open > 0)
            return line.mid(open + 1, end - open).trimmed().toLongLong();
    }
    return 0;
}

QString mountPointOf(const QString& info)
{
    const QStringList lines = info.split('\n');
    for (const QString& line : lines) {
        if (!line.contains("Mount Point:"))
            continue;
        const int path = line.indexOf('/');
        if (path > 0)
            return line.mid(path).trimmed();
    }
    return {};
}
