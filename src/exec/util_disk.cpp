// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "commandtext.h"
#include "diskutilinfo.h"
#include "util.h"

#include <QDebug>

namespace
{

// Volume names may hold any character, so the text is UTF-8.
QString diskInfo(const QString& disk)
{
    const QString info =
        QString::fromUtf8(runCommandText("diskutil info " + disk, {}, Patience::Limited));
    qDebug() << info;
    return info;
}

} // namespace

qint64 Util::DiskSpaceTotal(QString disk)
{
    return diskSizeOf(diskInfo(disk));
}

QString Util::GetMountPoint(QString disk)
{
    return mountPointOf(diskInfo(disk));
}
