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

// The same for an image that was edited. With a boot image, its pair of arguments stands between
// "-o" and the path, where it has always stood.
QStringList mkisofsSaveArguments(const QString& isoPath, const QString& sourceDir,
                                 bool withBootImage);

// The name of the boot image, at the root of the image and where it is kept on disk.
QString bootImageName();
