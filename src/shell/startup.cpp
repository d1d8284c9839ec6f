// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "startup.h"

#include "toolenvironment.h"
#include "util.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QFont>
#include <QIcon>
#include <QTextCodec>

#include <sys/stat.h>
#include <sys/types.h>

namespace
{

const QLatin1String mountedImages("/Volumes");
const char* const fontFamily = "Microsoft YaHei";

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
    // Where the family is not installed, one with the same range of scripts stands in for it.
    QFont::insertSubstitutions(fontFamily, {"PingFang SC", "Noto Sans CJK SC", "Noto Sans"});
    QFont font;
    font.setFamily(fontFamily);
    QApplication::setFont(font);
    QApplication::setWindowIcon(QIcon(":nwu/logo"));
    QFile styleSheet(":/qss.qss");
    if (styleSheet.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(styleSheet.readAll()));
    qDebug() << "codec" << QTextCodec::codecForLocale()->name() << Util::GetTempDir();
}
