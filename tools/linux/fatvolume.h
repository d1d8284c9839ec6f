// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// What is to be made of a disk: one FAT partition that fills it, behind an MBR partition table.
// Made by fatVolumeFrom(), carried out by a VolumeService.
struct FatVolume
{
    // 16 or 32
    int bits = 32;
    QString label;
    // Why it cannot be made, one line for the user; empty when it can.
    QString refusal;

    // The partition's type in the table, in hexadecimal: FAT with block addresses.
    QString partitionType() const { return bits == 16 ? "0e" : "0c"; }
};

// The volume for the file system and the name as they are given to "diskutil partitionDisk". The
// name is trimmed and put in upper case.
FatVolume fatVolumeFrom(const QString& fileSystem, const QString& name);
