// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

// The command lines of the authoring tool that ships beside the executable. Pure: nothing is run.

// What an image's file system is built on, besides the Rock Ridge names that every type gets.
enum class BackupType
{
    Joliet,
    Iso9660,
    Udf
};

QString mkisofsProgram();

// Writes the image isoPath with the content of sourceDir as its root.
QStringList mkisofsCreateArguments(BackupType type, const QString& isoPath,
                                   const QString& sourceDir);
