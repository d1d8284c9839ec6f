// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "startup.h"

#include "applicationlook.h"
#include "toolenvironment.h"
#include "util.h"

#include <QApplication>
#include <QDebug>
#include <QTextCodec>

#include <sys/stat.h>
#include <sys/types.h>

namespace
{

const QLatin1String mountedImages("/Volumes");

} // namespace

void prepareProcess()
{
    // Everybody may read and write what the program and its tools create.
    ::umask(0);
    useUtf8Codec();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

bool refuseToRunFrom(const QString& executableFolder)
{
    if (!executableFolder.startsWith(mountedImages))
        return false;
    Util::ShowError(
        QCoreApplication::translate("main", "Please drag the icon to Application folder first!"));
    return true;
}

void setApplicationLook()
{
    useApplicationLook();
    qDebug() << "codec" << QTextCodec::codecForLocale()->name() << Util::GetTempDir();
}
