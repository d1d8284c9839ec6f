// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

// The arguments of the disk image tool for discs. Pure: nothing is run.

QString discImageProgram();

// Writes the image to the disc in the system's default burner: whichever drive is chosen, the tool
// is not told.
QStringList burnDiscArguments(const QString& imagePath);

// Writes an image of the disc mounted at mountPoint over whatever lies at imagePath.
QStringList imageOfDiscArguments(const QString& imagePath, const QString& mountPoint);

QStringList ejectDiscArguments(const QString& device);
