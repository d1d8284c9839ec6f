// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "drivetexts.h"

// What the tools for discs and images print.

QString DriveTexts::opticalStatus(const OpticalDrive& drive)
{
    const QString head = " Vendor   Product           Rev \n" + drive.identification + "\n\n";
    const QString none = "   00:00:00         blocks:        0 /   0.00MB /   0.00MiB\n";
    const QString type = "           Type: %1%2\n";
    if (drive.device.isEmpty())
        return head + "           Type: No Media Inserted\n\n";
    const QString name = "Name: " + drive.device;
    if (drive.mountPoint.isEmpty()) {
        const QString room = "   79:57:69         blocks:   359844 / 736.96MB / 702.82MiB\n";
        return head + type.arg(QString("CD-R").leftJustified(21), name) +
               "   Write Speeds: 8x, 24x\n" + "   Overwritable:" + room +
               "     Space Free:" + room + "     Space Used:" + none +
               "    Writability: appendable, blank, overwritable\n\n";
    }
    return head + type.arg(QString("DVD-ROM").leftJustified(21), name) +
           "       Sessions: 1                  Tracks: 1 \n" + "   Overwritable:" + none +
           "     Space Free:" + none +
           "     Space Used:  169:24:52         blocks:   762352 /   1.56GB /   1.45GiB\n"
           "    Writability: \n"
           "      Book Type: DVD-ROM (v1)\n";
}

QString DriveTexts::systemVolumes()
{
    return "/dev/disk1s5 on / (apfs, local, read-only, journaled)\n"
           "devfs on /dev (devfs, local, nobrowse)\n"
           "/dev/disk1s1 on /System/Volumes/Data (apfs, local, journaled, nobrowse)\n"
           "/dev/disk1s4 on /private/var/vm (apfs, local, journaled, nobrowse)\n"
           "map auto_home on /System/Volumes/Data/home (autofs, automounted, nobrowse)\n";
}

QString DriveTexts::mountedVolume(const QString& device, const QString& mountPoint,
                                  const QString& type)
{
    const QString access = type == "msdos" ? "" : "read-only, ";
    return device + " on " + mountPoint + " (" + type + ", local, nodev, nosuid, " + access +
           "noowners)\n";
}

QString DriveTexts::mountedImage(const QString& device, const QString& mountPoint)
{
    return device.leftJustified(20) + '\t' + QString(31, ' ') + '\t' + mountPoint + '\n';
}

QString DriveTexts::unmountedImage(const QString& mountPoint)
{
    return '"' + mountPoint + "\" unmounted successfully.\n";
}

QString DriveTexts::discProgress(const QString& fraction)
{
    return "DRStatusPercentCompleteKey: " + fraction + '\n';
}

QString DriveTexts::burning(const QStringList& fractions)
{
    QString text = "Preparing data for burn\nOpening session\nOpening track\nWriting track\n";
    for (const QString& fraction : fractions)
        text += discProgress(fraction) + "DRStatusStateKey: DRStatusStateTrackWrite\n";
    return text + "Closing track\nClosing session\nFinishing burn\nBurn completed successfully\n"
                  "hdiutil: burn: completed\n";
}

QString DriveTexts::makingHybrid(const QStringList& fractions)
{
    QString text = "Creating hybrid image...\n";
    for (const QString& fraction : fractions)
        text += discProgress(fraction);
    return text;
}
