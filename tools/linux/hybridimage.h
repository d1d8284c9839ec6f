// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "burnprogress.h"
#include "mountedvolumes.h"

#include <QString>
#include <QStringList>

// Makes an image of a mounted disc's files with mkisofs. Used by the stand-in for "hdiutil".

// The most characters a volume label of an image can have.
constexpr int longestVolumeLabel = 32;

// Arguments of mkisofs. Files of 4 GiB and more need UDF beside the other names, which cannot
// describe them.
QStringList hybridArguments(const QString& image, const QString& folder, const QString& label,
                            bool hasLargeFiles);

// Whether a file below the folder is too large for one extent.
bool holdsLargeFile(const QString& folder);

// The label of the disc that is mounted at the folder by that table, or the folder's name.
QString volumeLabelOf(const QString& folder, const QList<MountedVolume>& table);

// Makes the image, replacing one that exists once the new one is complete; says the progress as the
// teller does and returns the exit code.
int makeHybridImage(const QString& image, const QString& folder,
                    ProgressTeller progress = ProgressTeller());
