// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "mkisofscommand.h"

#include "util.h"

namespace
{

QString typeFlag(BackupType type)
{
    switch (type) {
    case BackupType::Joliet:
        return "-joliet";
    case BackupType::Iso9660:
        return "-l";
    case BackupType::Udf:
        break;
    }
    return "-udf";
}

} // namespace

QString mkisofsProgram()
{
    return Util::GetCurrentExePath() + "/cdrtools/mkisofs";
}

QStringList mkisofsCreateArguments(BackupType type, const QString& isoPath,
                                   const QString& sourceDir)
{
    return {typeFlag(type), "-R", "-r", "-o", isoPath, sourceDir};
}

QStringList mkisofsSaveArguments(const QString& isoPath, const QString& sourceDir,
                                 bool withBootImage)
{
    QStringList arguments{"-udf", "-R", "-o"};
    if (withBootImage)
        arguments += {"-b", bootImageName()};
    return arguments += {isoPath, sourceDir};
}

QString bootImageName()
{
    return "boot.bin";
}
