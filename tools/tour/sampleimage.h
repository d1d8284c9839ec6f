// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>

// The image that the tour takes into the program, and what was put into it.
struct SampleImage
{
    // The folder that the image was made of.
    QString source;
    QString path;
};

// Makes an image the way a user has one: folders, documents, names in several scripts and a few
// large files, made with the real mkisofs below home. Throws TourFailure.
SampleImage makeSampleImage(const QString& home);

// SHA-256 of every file below a folder, by its path relative to it.
QMap<QString, QString> hashesOf(const QString& folder);
