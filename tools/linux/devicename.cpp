// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "devicename.h"

#include "blockdevice.h"

#include <QRegularExpression>

namespace
{

const QLatin1String folder("/dev/");

} // namespace

QString devicePath(const QString& name)
{
    static const QRegularExpression slice(
        "^(/dev/(?:(?:sd|hd|vd|xvd)[a-z]+|mmcblk\\d+|nvme\\d+n\\d+|loop\\d+|sr\\d+))s([1-9]\\d*)$");
    const QString path = name.startsWith('/') ? name : folder + name;
    const QRegularExpressionMatch match = slice.match(path);
    return match.hasMatch() ? partitionPath(match.captured(1), match.captured(2).toInt()) : path;
}

QString deviceName(const QString& path)
{
    return path.startsWith(folder) ? path.mid(folder.size()) : path;
}
