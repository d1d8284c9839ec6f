// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "sevenzipcommand.h"

#include "util.h"

namespace
{

const QLatin1String extractCommand("x");

} // namespace

QString sevenZipProgram()
{
    return Util::GetCurrentExePath() + "/7z/7z";
}

QStringList sevenZipListArguments(const QString& isoPath)
{
    return {"l", isoPath};
}

QStringList sevenZipListUtf8Arguments(const QString& isoPath)
{
    return {"-scsUTF-8", "l", isoPath};
}

QStringList sevenZipExtractAllArguments(const QString& isoPath, const QString& outputDir)
{
    return {extractCommand, "-y", "-bb3", "-bsp2", "-o" + outputDir, isoPath};
}

QStringList sevenZipExtractArguments(const QString& isoPath, const QString& outputDir,
                                     const QStringList& entryPaths)
{
    QStringList arguments{extractCommand, isoPath, "-y", "-bb3", "-bsp2", "-o" + outputDir};
    for (const QString& path : entryPaths) {
        const QString argument = sevenZipEntryArgument(path);
        if (!arguments.contains(argument))
            arguments.append(argument);
    }
    arguments.append("-r");
    return arguments;
}

QString sevenZipEntryArgument(const QString& entryPath)
{
    const bool isSwitchOrList = entryPath.startsWith('-') || entryPath.startsWith('@');
    if (!isSwitchOrList && entryPath != extractCommand)
        return entryPath;
    // "Include, here only": recursion is off because an include would otherwise match the name in
    // every folder.
    return "-ir-!" + entryPath;
}
