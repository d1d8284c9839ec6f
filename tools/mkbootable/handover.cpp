// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "handover.h"

#include "blockdevice.h"
#include "commands.h"
#include "lsblk.h"
#include "programrun.h"

#include <QDir>
#include <QFileInfo>

namespace
{

constexpr int limitMs = 60000;

QStringList mountPointsOf(const QString& partition)
{
    return blockDevices(partition).devices.value(0).mountPoints;
}

QString unmount(const QString& mountPoint)
{
    return runProgram(QStringLiteral("umount"), unmountArguments(mountPoint), limitMs).error;
}

// Removes no more than an empty folder.
void removeFolder(const QString& path)
{
    QDir().rmdir(path);
}

} // namespace

QString handOver(const QString& disk, const QString& mountPoint, uid_t user, gid_t group)
{
    const QString partition = partitionPath(disk, 1);
    const QString place = QFileInfo(mountPoint).canonicalFilePath();
    // Still ours then, and still mounted.
    if (!unmount(place).isEmpty())
        return {};
    // The service would take another name beside it.
    removeFolder(place);
    runProgram(QStringLiteral("setpriv"), serviceMountArguments(partition, user, group), limitMs);
    const QStringList mounted = mountPointsOf(partition);
    if (mounted == QStringList(place))
        return {};
    for (const QString& elsewhere : mounted) {
        const QString error = unmount(elsewhere);
        if (!error.isEmpty())
            return error;
    }
    if (!QDir().mkpath(place))
        return QStringLiteral("%1 cannot be created").arg(place);
    return runProgram(QStringLiteral("mount"), mountArguments(partition, place, user, group),
                      limitMs)
        .error;
}
