// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// An optical drive and the disc in it, as the drive list, the burner and the disk information see
// it.
struct OpticalDrive
{
    // "/dev/sr0"
    QString device;
    QString vendor;
    QString product;
    QString revision;
    // What lies in it, such as "DVD-ROM"; empty without a disc.
    QString medium;
    // The kinds of disc it takes, such as "CD-ROM, DVD-ROM, DVD-R".
    QString capabilities;
    bool isBlank = false;

    bool hasMedium() const { return !medium.isEmpty(); }
};

// Adds to the drive what udev's properties of it (NAME=value lines) tell about drive and disc.
void readDriveProperties(const QByteArray& properties, OpticalDrive& drive);

// The drives of this machine by number. The names come from the kernel's folder of block devices,
// the discs from udevadm on PATH.
QList<OpticalDrive> opticalDrives(const QString& blockFolder = "/sys/block");
