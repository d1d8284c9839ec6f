// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "commands.h"

QStringList unmountArguments(const QString& mountPoint)
{
    return {QStringLiteral("--"), mountPoint};
}

QStringList installArguments(const QString& partition)
{
    return {QStringLiteral("--install"), partition};
}

QStringList syncArguments(const QString& mountPoint)
{
    return {QStringLiteral("--file-system"), QStringLiteral("--"), mountPoint};
}

// "flush" writes early, so that a stick that is pulled out too soon has lost less. "utf8" keeps
// names of every language.
QStringList mountArguments(const QString& partition, const QString& mountPoint, uid_t user,
                           gid_t group)
{
    const QString options =
        QStringLiteral("rw,nosuid,nodev,uid=%1,gid=%2,fmask=0022,dmask=0022,utf8,flush")
            .arg(user)
            .arg(group);
    return {QStringLiteral("-t"),
            QStringLiteral("vfat"),
            QStringLiteral("-o"),
            options,
            QStringLiteral("--"),
            partition,
            mountPoint};
}

QStringList diskutilMountArguments(const QString& partition, const QString& mountPoint)
{
    return {QStringLiteral("mount"), QStringLiteral("-mountPoint"), mountPoint, partition};
}

QStringList diskutilUnmountDiskArguments(const QString& disk)
{
    return {QStringLiteral("unmountDisk"), disk};
}

QStringList serviceMountArguments(const QString& partition, uid_t user, gid_t group)
{
    return {QStringLiteral("--reuid=%1").arg(user),
            QStringLiteral("--regid=%1").arg(group),
            QStringLiteral("--init-groups"),
            QStringLiteral("--"),
            QStringLiteral("udisksctl"),
            QStringLiteral("mount"),
            QStringLiteral("--no-user-interaction"),
            QStringLiteral("--block-device"),
            partition};
}
