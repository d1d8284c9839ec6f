// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

// Real images for tests, made with the mkisofs that the build has laid beside the test executable,
// and what the real archiver says of them.

// Makes an image with Rock Ridge names of everything below folder, with further options of the
// authoring tool; stops the test run when it cannot.
void makeImage(const QString& folder, const QString& imagePath, const QStringList& options = {});
// The content of one file of an image as the archiver extracts it.
QByteArray extractedFile(const QString& imagePath, const QString& entryPath);
// Extracts everything in an image with the archiver; ends the test run when it fails.
void extractImage(const QString& imagePath, const QString& folder);
// Writes a file of pseudo-random bytes that depend on the seed alone.
void writeRandomFile(const QString& path, qint64 bytes, quint32 seed);
// The paths of all entries that the archiver's technical listing names, sorted.
QStringList technicalListing(const QString& imagePath);
// The hash of every file below a folder, by its path there; folders have an empty hash.
QMap<QString, QByteArray> hashesBelow(const QString& folder);
