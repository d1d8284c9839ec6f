// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

// The command lines of the archiver that ships beside the executable. Pure: nothing is run.

QString sevenZipProgram();

QStringList sevenZipListArguments(const QString& isoPath);
// The same with the names in UTF-8 whatever the tool takes the console to speak.
QStringList sevenZipListUtf8Arguments(const QString& isoPath);

// Extracts entries, given by their paths inside the image, below outputDir. A path that is named
// twice is passed once.
QStringList sevenZipExtractArguments(const QString& isoPath, const QString& outputDir,
                                     const QStringList& entryPaths);

// Extracts everything into outputDir, over what is there.
QStringList sevenZipExtractAllArguments(const QString& isoPath, const QString& outputDir);

// The argument that names one entry. It is the entry's path, except where the archiver or its
// command line would take that for something else: a switch, a list file or the command itself.
QString sevenZipEntryArgument(const QString& entryPath);
