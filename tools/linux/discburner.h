// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "burnprogress.h"
#include "opticaldrive.h"

#include <QString>
#include <QStringList>

// Writes an image to a disc with xorriso. Used by the stand-in for "hdiutil".

// The first drive with a blank disc, empty when there is none. No other disc is written to: nobody
// has been asked whether its content may go.
QString blankDiscDrive(const QList<OpticalDrive>& drives);

// Arguments of xorriso that write the image to the drive and eject the disc.
QStringList burnArguments(const QString& image, const QString& driveAddress);

// Burns, says the steps and, as the teller does, the progress, and returns the exit code.
int burnImage(const QString& image, const QString& driveAddress,
              ProgressTeller progress = ProgressTeller());
