// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

// What a scenario says about a USB disk that has one FAT partition, or none when it has no name.
struct UsbDisk
{
    qint64 size = 8000000000;
    bool fixed = false;
    QString protocol = "USB";
    // Of the partition; empty while it is not mounted.
    QString mountPoint;
    QString name = "NONAME";
};

// An external drive with a mounted DVD, with a blank disc while it has no mount point, or without a
// disc while it has no device.
struct OpticalDrive
{
    // Vendor, product and revision as the tool prints them, with the blanks between them.
    QString identification;
    QString device;
    QString mountPoint;
};

// What the tools print about drives, to the byte as the transcripts in tests/data have it. Used by
// DriveScenario, and by tests that need a text alone. Devices are full paths such as /dev/disk2.
namespace DriveTexts
{

// Blocks of `diskutil list`, with the line that parts them from the next one.
QString listedInternalDisk();
QString listedUsbDisk(const QString& device, const UsbDisk& disk);
QString listedDisc(const OpticalDrive& drive);

// What `diskutil info` says about a disk, about its partition and about an optical drive.
QString diskInfo(const QString& device, const UsbDisk& disk);
QString partitionInfo(const QString& device, const UsbDisk& disk);
QString opticalInfo(const OpticalDrive& drive);
QString noSuchDisk(const QString& device);

QString partitionedDisk(const QString& device, const UsbDisk& disk);
QString unmountedDisk(const QString& device);

// One block of `drutil status`.
QString opticalStatus(const OpticalDrive& drive);

// Lines of `mount`: those of a machine without other volumes, and one volume.
QString systemVolumes();
QString mountedVolume(const QString& device, const QString& mountPoint, const QString& type);

QString mountedImage(const QString& device, const QString& mountPoint);
QString unmountedImage(const QString& mountPoint);

// The progress lines of `hdiutil burn` and `hdiutil makehybrid`, and all that they print on the way
// through these fractions; those are texts, so that a test can spell them as it likes.
QString discProgress(const QString& fraction);
QString burning(const QStringList& fractions);
QString makingHybrid(const QStringList& fractions);

} // namespace DriveTexts
