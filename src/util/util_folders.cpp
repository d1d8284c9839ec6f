// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "util.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

QString goldUser;

namespace
{

// Where the platform puts the superuser's data; the program keeps none there.
const QLatin1String superuserHome("/var/root");

} // namespace

QString Util::GetCurrentExePath()
{
    return QCoreApplication::applicationDirPath();
}

void Util::SetCurrentWorkPath()
{
    QDir::setCurrent(GetCurrentExePath());
}

QString Util::GetCurrentWorkPath()
{
    return QDir::currentPath();
}

QString Util::GetTempDir()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (folder.isEmpty() || folder.startsWith(superuserHome))
        folder = goldUser;
    if (!QDir(folder).exists())
        QDir().mkpath(folder);
    return folder;
}
