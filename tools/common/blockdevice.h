// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

// What the system tells about one block device: a disk, a partition, or what lies on one of them
// (LUKS, LVM, RAID). Read by lsblk.h; our disk tools decide by it what they may touch.
struct BlockDevice
{
    // The system's own name of the device, such as "/dev/sdb".
    QString path;
    // What lsblk calls it: "disk", "part", "rom", "loop", "crypt", "lvm", "raid1", ...
    QString type;
    // Bytes; 0 for a drive without a medium.
    qint64 size = 0;
    bool removable = false;
    bool hotplug = false;
    // "usb", "sata", "nvme", ...; empty where the system names none.
    QString transport;
    bool readOnly = false;
    QString vendor;
    QString model;
    QString serial;
    QString label;
    QString fileSystem;
    // "dos", "gpt", ...; for a partition the table that it belongs to.
    QString partitionTable;
    // Every place where it is mounted; "[SWAP]" for swap space in use.
    QStringList mountPoints;
    // What lies on it: a disk's partitions, the volume in an encrypted partition.
    QVector<BlockDevice> children;

    bool isDisk() const { return type == QLatin1String("disk"); }
    bool isPartition() const { return type == QLatin1String("part"); }
    bool isOptical() const { return type == QLatin1String("rom"); }
    bool isUsb() const { return transport == QLatin1String("usb"); }

    // Its partition of that number (from 1), or null. Valid as long as this device.
    const BlockDevice* partition(int number) const;

    // Whether other describes the same piece of hardware with the same medium: the name, the size,
    // the vendor, the model and the serial number. Partitions and mounts do not count, they change
    // while one works.
    bool isSameDisk(const BlockDevice& other) const;
};

// Name of a partition by the kernel's rule: "/dev/sdb1", but "/dev/mmcblk0p1".
QString partitionPath(const QString& disk, int number);
