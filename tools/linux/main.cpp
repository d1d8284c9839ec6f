// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskutil.h"
#include "drutil.h"
#include "hdiutil.h"
#include "mount.h"
#include "printing.h"
#include "systempath.h"
#include "toolenvironment.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <sys/stat.h>

// One program under four names; the name it is called by says which tool it stands in for.
int main(int argc, char* argv[])
{
    // The program itself lets everybody write what it makes. Folders that root mounts in are not of
    // that kind.
    ::umask(022);
    useUtf8Codec();
    const QCoreApplication application(argc, argv);
    qputenv("PATH", systemPath(qgetenv("PATH"), QCoreApplication::applicationDirPath()));
    QStringList arguments = QCoreApplication::arguments();
    const QString name = QFileInfo(arguments.takeFirst()).fileName();
    if (name == "mount")
        return mountTool(arguments);
    if (name == "drutil")
        return drutilTool(arguments);
    const std::unique_ptr<VolumeService> volumes = volumeService();
    if (name == "diskutil")
        return diskutilTool(arguments, *volumes);
    if (name == "hdiutil")
        return hdiutilTool(arguments, *volumes);
    return complain("Call this as diskutil, drutil, hdiutil or mount");
}
