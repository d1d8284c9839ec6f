// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "blockdevice.h"

#include <QString>
#include <QStringList>

// What mkbootable is asked to do, from its command line, and which places it does not mount at.
struct Request
{
    // Device node of the whole disk.
    QString disk;
    // Folder where its first partition is mounted in the end.
    QString mountPoint;
    // Why the command line cannot be followed; empty when it can.
    QString error;
};

// Reads the arguments without the program's name. Everything after the first is one mount point,
// joined by single blanks: the caller's shell has taken a label's blanks for separators.
Request readRequest(const QStringList& arguments);

// Whether something is mounted at the folder.
bool isMountPoint(const QString& folder);

// Why partition must not be mounted at mountPoint; one line for the user, empty when it may. The
// folder may be absent, empty, or the one where the partition is mounted already.
QString mountPointRefusal(const QString& mountPoint, const BlockDevice& partition);
