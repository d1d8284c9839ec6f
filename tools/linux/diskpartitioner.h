// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "blockdevice.h"
#include "volumeservice.h"

// Unmounts the device and whatever lies on it. Returns why that failed, empty on success.
QString unmountEverything(const BlockDevice& device, VolumeService& volumes);

// The steps that make one FAT partition of a whole disk, in their order, and the unmounting of a
// disk. Before anything is written, and again between the steps, it makes sure that the disk is
// still the one that was judged. Used by the stand-in for "diskutil".
class DiskPartitioner
{
public:
    // volumes has to live as long as this.
    explicit DiskPartitioner(VolumeService& volumes);

    // Both say their lines and return the exit code.
    int unmountDisk(const QString& path);
    int partitionDisk(const QString& path, const FatVolume& volume);

    // How long a new partition is waited for, in milliseconds.
    void setPatience(int milliseconds) { patience = milliseconds; }

private:
    // The disk as it is now, or one without a path and why it must not be touched.
    static BlockDevice judgedDisk(const QString& path, QString* error);
    QString checkStillSame(const BlockDevice& disk) const;
    // Waits until the disk has its first partition and names it.
    QString newPartition(const BlockDevice& disk, QString* error) const;
    // What keeps the volume from being made on that disk, empty when nothing does.
    QString objection(const BlockDevice& disk, const FatVolume& volume) const;
    QString makeVolume(const BlockDevice& disk, const FatVolume& volume);
    int giveUp(const BlockDevice& disk, const QString& error);

    VolumeService& service;
    int patience = 15000;
};
