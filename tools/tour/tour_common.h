// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tour.h"

class SlowedTool;

// What several pages' tours do in the same way.

// Photographs the progress dialog somewhere in the middle of a paused tool's work.
void photographProgress(Tour& tour, SlowedTool& tool, const QString& picture, const QString& done);
// Photographs it once it has come to this percentage.
void photographProgressAt(Tour& tour, int percent, const QString& picture, const QString& done);
// Accepts the open file dialog and photographs the progress of the image that is then written.
void acceptAndPhotographAuthoring(Tour& tour, const QString& picture, const QString& done);
// Takes an image apart with the archiver: it has to hold these files, byte for byte, and no more.
void compareImage(Tour& tour, const QString& isoPath, const QMap<QString, QString>& expected);
// Waits for the success message, photographs it and presses OK. It has to say this.
void closeSuccess(Tour& tour, const QString& message, const QString& picture, const QString& done);
// Waits until the combo box of this page shows as many entries, and returns them.
QStringList waitForEntries(Tour& tour, const QString& page, const QString& name, int count);
// The names of what lies in a folder.
QStringList entryNames(const QString& folder);
// Throws unless both hold the same texts, in whatever order.
void requireSame(QStringList shown, QStringList expected);
