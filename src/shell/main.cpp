// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "languages.h"
#include "mainwindow.h"
#include "startup.h"
#include "util.h"

#include <QApplication>
#include <QDebug>
#include <QTranslator>

int main(int argc, char* argv[])
{
    prepareProcess();
    QApplication application(argc, argv);
    usePlatformTools(Util::GetCurrentExePath());
    qDebug() << "temporary folder" << Util::GetTempDir();
    if (refuseToRunFrom(Util::GetCurrentExePath()))
        return 0;
    setApplicationLook();
    QTranslator translator;
    loadTranslationOf(QLocale(), translator);
    QCoreApplication::installTranslator(&translator);
    MainWindow window(nullptr);
    window.show();
    return QApplication::exec();
}
