// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "rootvolumes.h"
#include "standins.h"

// What lsblk answers about a stick, without and with a partition.
extern const char* const noPartition;
extern const char* const onePartition;

// The stand-ins for the system's tools that "diskutil" runs as root. Used by the tests of
// partitioning.
class DiskMachine
{
public:
    // What lsblk answers at its first, second, … call, the last of them from then on.
    explicit DiskMachine(const QList<QByteArray>& answers);

    // What a call of "diskutil" says, its exit code last.
    QStringList run(const QStringList& words);
    // The calls but for those of lsblk.
    QStringList changes() const;

    StandIns tools;
    RootVolumes volumes;
};
