// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "fatvolume.h"

#include <QString>

#include <memory>

// Where something has been mounted.
struct MountResult
{
    QString device;
    QString path;
    // Why it was not, one line for the user; empty on success.
    QString error;
};

// What changes disks and mounts: the system's own tools for root, the desktop's disk service for
// everybody else, which asks the user where it has to. Nothing weaker stands behind either. Used by
// the stand-ins, which have judged the disk before. Operations without a result of their own return
// why they failed, one line for the user, empty on success; they block until done.
class VolumeService
{
public:
    virtual ~VolumeService() = default;

    // Mounts an image read-only where no path holds white space.
    virtual MountResult mountImage(const QString& image) = 0;
    // Unmounts an image by the path that mountImage() named.
    virtual QString unmountImage(const QString& path, bool force) = 0;
    // Unmounts whatever is mounted of one device.
    virtual QString unmount(const QString& device) = 0;
    // Mounts a partition where the user's desktop would.
    virtual MountResult mount(const QString& partition, const QString& label) = 0;
    // Replaces everything on the disk by a table with one partition from 1 MiB to the end.
    virtual QString createPartition(const QString& disk, const FatVolume& volume) = 0;
    // Makes the file system. Everything on the partition is lost. Where the service chooses the
    // FAT's bits itself, it does so by the size of the partition.
    virtual QString format(const QString& partition, const FatVolume& volume) = 0;
    virtual bool choosesFatBits() const = 0;
    // Ejects the medium; nothing of it is mounted any more.
    virtual QString eject(const QString& device) = 0;
    // A folder of this user's alone for what is forgotten when the session ends. Need not exist.
    virtual QString sessionFolder() const = 0;
};

// The one for this process's user.
std::unique_ptr<VolumeService> volumeService();
