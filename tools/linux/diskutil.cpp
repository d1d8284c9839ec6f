// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskutil.h"

#include "devicename.h"
#include "diskpartitioner.h"
#include "diskutiltext.h"
#include "lsblk.h"
#include "printing.h"

#include <algorithm>

namespace
{

void sayAll(const QStringList& lines)
{
    for (const QString& line : lines)
        say(line);
}

// The drive among them with that device, or null.
const OpticalDrive* driveAt(const QList<OpticalDrive>& drives, const QString& device)
{
    const auto found =
        std::find_if(drives.begin(), drives.end(),
                     [&device](const OpticalDrive& drive) { return drive.device == device; });
    return found == drives.end() ? nullptr : &*found;
}

int list()
{
    const BlockDevices all = blockDevices();
    if (!all.error.isEmpty())
        return complain(all.error);
    const QList<OpticalDrive> drives = opticalDrives();
    for (const BlockDevice& disk : all.devices) {
        const OpticalDrive* const drive = driveAt(drives, disk.path);
        const bool hasMedium = disk.isOptical() ? drive && drive->hasMedium() : disk.size > 0;
        if ((disk.isDisk() || disk.isOptical()) && hasMedium)
            sayAll(diskListLines(disk) << "");
    }
    return 0;
}

const BlockDevice* deviceBelow(const BlockDevice& device, const QString& path)
{
    if (device.path == path)
        return &device;
    for (const BlockDevice& child : device.children)
        if (const BlockDevice* const found = deviceBelow(child, path))
            return found;
    return nullptr;
}

int info(const QString& name)
{
    const QString path = devicePath(name);
    const BlockDevices all = blockDevices();
    if (!all.error.isEmpty())
        return complain(all.error);
    for (const BlockDevice& disk : all.devices) {
        const BlockDevice* const part = deviceBelow(disk, path);
        if (!part)
            continue;
        const QList<OpticalDrive> drives =
            disk.isOptical() ? opticalDrives() : QList<OpticalDrive>();
        OpticalDrive unknown;
        readDriveProperties({}, unknown);
        const OpticalDrive* const drive = driveAt(drives, disk.path);
        sayAll(diskInfoLines(disk, *part, disk.isOptical() && !drive ? &unknown : drive));
        return 0;
    }
    return complain("Could not find disk: " + name);
}

} // namespace

int diskutilTool(const QStringList& arguments, VolumeService& volumes)
{
    const QString verb = arguments.value(0);
    if (verb == "list" && arguments.size() == 1)
        return list();
    if (verb == "info" && arguments.size() == 2)
        return info(arguments[1]);
    DiskPartitioner partitioner(volumes);
    if (verb == "unmountDisk" && arguments.size() == 2)
        return partitioner.unmountDisk(devicePath(arguments[1]));
    if (verb == "partitionDisk" && arguments.size() == 7 && arguments[2] == "1" &&
        arguments[3] == "MBR" && arguments[6] == "R")
        return partitioner.partitionDisk(devicePath(arguments[1]),
                                         fatVolumeFrom(arguments[4], arguments[5]));
    return complain("Usage: diskutil list | info DEVICE | unmountDisk DISK | "
                    "partitionDisk DISK 1 MBR FILE-SYSTEM NAME R");
}
