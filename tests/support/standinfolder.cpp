// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "standinfolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace
{

const QTemporaryDir& folder()
{
    static const QTemporaryDir theFolder;
    return theFolder;
}

QStringList& systemFolders()
{
    static QStringList folders;
    return folders;
}

void removeFolder(const QString& name)
{
    QDir(folder().filePath(name)).removeRecursively();
}

// Makes the stand-ins the only tools that this process and its children find.
void replaceTools()
{
    systemFolders() = QFile::decodeName(qgetenv("PATH")).split(':');
    qputenv("PATH", QFile::encodeName(folder().filePath("bin")));
    qputenv("KORVEX_SCENARIO", QFile::encodeName(StandInFolder::scenarioPath()));
    StandInFolder::clear();
}

Q_COREAPP_STARTUP_FUNCTION(replaceTools)

} // namespace

void StandInFolder::clear()
{
    QFile::remove(scenarioPath());
    QFile::remove(callsPath());
    removeFolder("bin");
    const QDir root(folder().path());
    if (!root.mkpath("bin"))
        qFatal("Cannot make %s", qPrintable(root.path()));
    for (const char* const program :
         {"diskutil", "drutil", "hdiutil", "mount", "osascript", "sudo", "sync"})
        QFile::link(KORVEX_SCRIPTED_DRIVE, toolPath(program));
}

QString StandInFolder::scenarioPath()
{
    return folder().filePath("scenario");
}

QString StandInFolder::callsPath()
{
    return scenarioPath() + ".calls";
}

QString StandInFolder::toolPath(const QString& program)
{
    return folder().filePath("bin/" + program);
}

QString StandInFolder::realToolPath(const QString& program)
{
    return QStandardPaths::findExecutable(program, systemFolders());
}
