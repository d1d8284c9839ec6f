// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskpartitioner.h"

#include "devicename.h"
#include "diskrefusal.h"
#include "diskutiltext.h"
#include "imagenote.h"
#include "lsblk.h"
#include "mountedvolumes.h"
#include "printing.h"

#include <QElapsedTimer>
#include <QThread>

namespace
{

constexpr int pollMs = 200;
// A partition table of this kind counts sectors in 32 bits.
constexpr qint64 largestDisk = 512LL << 32;
constexpr qint64 largestFat16 = 4LL << 30;

} // namespace

QString unmountEverything(const BlockDevice& device, VolumeService& volumes)
{
    QString error;
    for (const BlockDevice& child : device.children)
        if (error.isEmpty())
            error = unmountEverything(child, volumes);
    if (error.isEmpty() && !mountPathOf(device).isEmpty())
        error = volumes.unmount(device.path);
    return error;
}

DiskPartitioner::DiskPartitioner(VolumeService& volumes)
    : service(volumes)
{
}

BlockDevice DiskPartitioner::judgedDisk(const QString& path, QString* error)
{
    const BlockDevices found = blockDevices(path);
    if (found.devices.size() != 1) {
        *error = "Could not find disk: " + path;
        return {};
    }
    *error = refusal(found.devices.first());
    return error->isEmpty() ? found.devices.first() : BlockDevice();
}

int DiskPartitioner::unmountDisk(const QString& path)
{
    QString error;
    const BlockDevice disk = judgedDisk(path, &error);
    if (!error.isEmpty())
        return complain("Unmount of " + deviceName(path) + " failed: " + error);
    error = unmountEverything(disk, service);
    if (!error.isEmpty())
        return complain("Unmount of " + deviceName(path) +
                        " failed: at least one volume could not be unmounted\n" + error);
    say("Unmount of all volumes on " + deviceName(path) + " was successful");
    return 0;
}

// Another stick may have been put in under the same name meanwhile, or something mounted again.
QString DiskPartitioner::checkStillSame(const BlockDevice& disk) const
{
    QString error;
    const BlockDevice now = judgedDisk(disk.path, &error);
    if (error.isEmpty() && !now.isSameDisk(disk))
        error = disk.path + " is another disk now";
    return error;
}

QString DiskPartitioner::newPartition(const BlockDevice& disk, QString* error) const
{
    QElapsedTimer timer;
    timer.start();
    do {
        const BlockDevice now = judgedDisk(disk.path, error);
        if (error->isEmpty() && !now.isSameDisk(disk))
            *error = disk.path + " is another disk now";
        if (!error->isEmpty())
            return {};
        if (const BlockDevice* const first = now.partition(1))
            return first->path;
        QThread::msleep(pollMs);
    } while (timer.elapsed() < patience);
    *error = "The new partition did not appear";
    return {};
}

QString DiskPartitioner::makeVolume(const BlockDevice& disk, const FatVolume& volume)
{
    say("Unmounting disk");
    QString error = unmountEverything(disk, service);
    if (!error.isEmpty())
        return "Error: -69888: Couldn't unmount disk: " + error;
    error = checkStillSame(disk);
    if (!error.isEmpty())
        return "Error: " + error;
    say("Creating the partition map");
    error = service.createPartition(disk.path, volume);
    if (!error.isEmpty())
        return "Error creating partition map: " + error;
    say("Waiting for partitions to activate");
    const QString partition = newPartition(disk, &error);
    if (!error.isEmpty())
        return "Error: " + error;
    const QString bits = service.choosesFatBits() ? QString() : QString::number(volume.bits);
    say(QString("Formatting %1 as MS-DOS (FAT%2) with name %3")
            .arg(deviceName(partition), bits, volume.label));
    error = service.format(partition, volume);
    if (!error.isEmpty())
        return "Error: " + error;
    say("Mounting disk");
    error = service.mount(partition, volume.label).error;
    return error.isEmpty() ? QString() : "Error: " + error;
}

QString DiskPartitioner::objection(const BlockDevice& disk, const FatVolume& volume) const
{
    const QString image = takeImageNote(service.sessionFolder());
    if (!image.isEmpty() && holdsVolume(disk, volumeHolding(mountTable(), image)))
        return "Error: The image that is to be written lies on this disk: " + image;
    if (disk.size > largestDisk)
        return "Error creating partition map: The disk is too large to be supported by the given "
               "partition scheme (-69659)";
    if (volume.bits == 16 && disk.size > largestFat16)
        return "Error: -69850: The chosen size is not valid for the chosen file system";
    return {};
}

// The program goes on and writes to whatever is mounted of the disk. So nothing stays mounted.
int DiskPartitioner::giveUp(const BlockDevice& disk, const QString& error)
{
    complain(error);
    const BlockDevices now = blockDevices(disk.path);
    const bool isSame = now.devices.size() == 1 && now.devices.first().isSameDisk(disk) &&
                        refusal(now.devices.first()).isEmpty();
    const QString left = isSame ? unmountEverything(now.devices.first(), service) : QString();
    return left.isEmpty() ? 1 : complain("Error: -69888: Couldn't unmount disk: " + left);
}

int DiskPartitioner::partitionDisk(const QString& path, const FatVolume& volume)
{
    if (!volume.refusal.isEmpty())
        return complain("Error: " + volume.refusal);
    QString error;
    const BlockDevice disk = judgedDisk(path, &error);
    if (!error.isEmpty())
        return complain("Error: " + error);
    error = objection(disk, volume);
    if (!error.isEmpty())
        return giveUp(disk, error);
    say("Started partitioning on " + deviceName(path));
    error = makeVolume(disk, volume);
    if (!error.isEmpty())
        return giveUp(disk, error);
    say("Finished partitioning on " + deviceName(path));
    const BlockDevices now = blockDevices(path);
    for (const BlockDevice& device : now.devices)
        for (const QString& line : diskListLines(device))
            say(line);
    return 0;
}
