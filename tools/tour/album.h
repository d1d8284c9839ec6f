// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

// What the tour leaves behind: a numbered picture of every step and results.txt, which says what
// was done and what came out. Failures throw TourFailure.
class Album
{
public:
    // Makes the folder where it is missing and removes the pictures of an earlier tour from it.
    explicit Album(const QString& folder);

    // A step with its picture, saved as <number>-<name>.png: what was done, in a sentence, and what
    // came out.
    void add(const QString& name, const QImage& picture, const QString& done,
             const QStringList& outcome = {});
    // A step without a picture.
    void note(const QString& done, const QStringList& outcome);
    // Copies the picture of the step with this name.
    void copyPicture(const QString& name, const QString& destination) const;

private:
    void write(const QString& heading, const QStringList& lines);
    QString pathOf(const QString& file) const;

    QString folder;
    // In the order of the steps, as <number>-<name>.png.
    QStringList pictures;
    int steps = 0;
};
