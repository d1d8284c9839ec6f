// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "startup.h"

#include "applicationlook.h"
#include "toolenvironment.h"
#include "util.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
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

void usePlatformTools(const QString& executableFolder)
{
#ifdef Q_OS_LINUX
    const QString folder = executableFolder + "/platform-tools";
    if (!QFileInfo(folder).isDir())
        return;
    // An empty PATH must not end up as an empty entry, which means the current folder.
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder) + (path.isEmpty() ? QByteArray() : ':' + path));
#else
    Q_UNUSED(executableFolder)
#endif
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
