// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "drivetexts.h"

#include "fatlayout.h"

namespace
{

const qint64 sectorSize = 512;
const qint64 discSize = 1561296896;

// "/dev/disk2" is "disk2" in most places.
QString identifierOf(const QString& device)
{
    return device.section('/', -1);
}

// The tools count in thousands.
QString rounded(qint64 bytes)
{
    if (bytes < 1000)
        return QString("%1 B").arg(bytes);
    const QStringList units = {"KB", "MB", "GB", "TB"};
    double value = double(bytes) / 1000;
    int unit = 0;
    for (; value >= 1000 && unit + 1 < units.size(); ++unit)
        value /= 1000;
    return QString("%1 %2").arg(value, 0, 'f', 1).arg(units[unit]);
}

QString listHeading(const QString& device, const QString& kind)
{
    return device + " (" + kind + "):\n" +
           "   #:                       TYPE NAME                    SIZE       IDENTIFIER\n";
}

QString listRow(int number, const QString& type, const QString& name, const QString& size,
                const QString& identifier)
{
    return QString("%1:%2 %3%4 %5\n")
        .arg(QString::number(number).rightJustified(4), type.rightJustified(27),
             name.leftJustified(23), size.leftJustified(11), identifier);
}

QString infoRow(const QString& label, const QString& value)
{
    return "   " + (label + ':').leftJustified(27) + value + '\n';
}

QString exactSize(qint64 bytes)
{
    return QString("%1 (%2 Bytes) (exactly %3 512-Byte-Units)")
        .arg(rounded(bytes))
        .arg(bytes)
        .arg(bytes / sectorSize);
}

QString locationRows(bool isFixed)
{
    return infoRow("Device Location", "External") +
           infoRow("Removable Media", isFixed ? "Fixed" : "Removable") +
           (isFixed ? "" : infoRow("Media Removal", "Software-Activated")) + '\n' +
           infoRow("Solid State", "Info not available");
}

QString identityRows(const QString& device, const QString& whole)
{
    return infoRow("Device Identifier", identifierOf(device)) + infoRow("Device Node", device) +
           infoRow("Whole", device == whole ? "Yes" : "No") +
           infoRow("Part of Whole", identifierOf(whole));
}

QString mediaRows(const QString& type, const QString& protocol)
{
    return infoRow("OS Can Be Installed", "No") + infoRow("Media Type", type) +
           infoRow("Protocol", protocol) + infoRow("SMART Status", "Not Supported");
}

QString volumeSizeRows(qint64 total, qint64 used)
{
    const auto share = [total](qint64 part) {
        return QString(" (%1%)").arg(100.0 * double(part) / double(total), 0, 'f', 1);
    };
    return infoRow("Volume Total Space", exactSize(total)) +
           infoRow("Volume Used Space", exactSize(used) + share(used)) +
           infoRow("Volume Free Space", exactSize(total - used) + share(total - used));
}

QString diskSizeRows(qint64 size, int blockSize)
{
    return infoRow("Disk Size", exactSize(size)) +
           infoRow("Device Block Size", QString("%1 Bytes").arg(blockSize));
}

QString writabilityRows(const QString& media, const QString& volume)
{
    return infoRow("Media OS Use Only", "No") + infoRow("Media Read-Only", media) +
           infoRow("Volume Read-Only", volume);
}

} // namespace

QString DriveTexts::listedInternalDisk()
{
    return listHeading("/dev/disk0", "internal, physical") +
           listRow(0, "GUID_partition_scheme", "", "*251.0 GB", "disk0") +
           listRow(1, "EFI", "EFI", " 314.6 MB", "disk0s1") +
           listRow(2, "Apple_APFS", "Container disk1", " 250.7 GB", "disk0s2") + '\n';
}

QString DriveTexts::listedUsbDisk(const QString& device, const UsbDisk& disk)
{
    const bool isPartitioned = !disk.name.isEmpty();
    QString text = listHeading(device, "external, physical");
    text += listRow(0, isPartitioned ? "FDisk_partition_scheme" : "", "", '*' + rounded(disk.size),
                    identifierOf(device));
    if (isPartitioned) {
        const FatLayout layout(disk.size / sectorSize);
        text += listRow(1, layout.isFat16() ? "DOS_FAT_16" : "DOS_FAT_32", disk.name,
                        ' ' + rounded(layout.partitionSectors() * sectorSize),
                        identifierOf(device) + "s1");
    }
    return text + '\n';
}

QString DriveTexts::listedDisc(const OpticalDrive& drive)
{
    return listHeading(drive.device, "external, physical") +
           listRow(0, "", identifierOf(drive.mountPoint), '*' + rounded(discSize),
                   identifierOf(drive.device)) +
           '\n';
}

QString DriveTexts::diskInfo(const QString& device, const UsbDisk& disk)
{
    const QString none = "Not applicable (no file system)";
    return identityRows(device, device) + infoRow("Device / Media Name", "Flash Disk") + '\n' +
           infoRow("Volume Name", none) + infoRow("Mounted", none) +
           infoRow("File System", "None") + '\n' +
           infoRow("Content (IOContent)", disk.name.isEmpty() ? "None" : "FDisk_partition_scheme") +
           mediaRows("Generic", disk.protocol) + '\n' + diskSizeRows(disk.size, 512) + '\n' +
           writabilityRows("No", none) + '\n' + locationRows(disk.fixed) +
           infoRow("Virtual", "No") + '\n';
}

QString DriveTexts::partitionInfo(const QString& device, const UsbDisk& disk)
{
    const FatLayout layout(disk.size / sectorSize);
    const bool isMounted = !disk.mountPoint.isEmpty();
    const QString bits = layout.isFat16() ? "16" : "32";
    const qint64 size = layout.partitionSectors() * sectorSize;
    return identityRows(device + "s1", device) + '\n' + infoRow("Volume Name", disk.name) +
           infoRow("Mounted", isMounted ? "Yes" : "No") +
           (isMounted ? infoRow("Mount Point", disk.mountPoint) : "") + '\n' +
           infoRow("Partition Type", "DOS_FAT_" + bits) +
           infoRow("File System Personality", "MS-DOS FAT" + bits) +
           infoRow("Type (Bundle)", "msdos") +
           infoRow("Name (User Visible)", "MS-DOS (FAT" + bits + ')') + '\n' +
           mediaRows("Generic", disk.protocol) +
           infoRow("Partition Offset", QString("%1 Bytes (%2 512-Byte-Device-Blocks)")
                                           .arg(layout.firstSector() * sectorSize)
                                           .arg(layout.firstSector())) +
           '\n' + diskSizeRows(size, 512) + '\n' +
           (isMounted ? volumeSizeRows(layout.dataSectors() * sectorSize, 0) +
                            infoRow("Allocation Block Size", "512 Bytes")
                      : infoRow("Volume Total Space", exactSize(0)) +
                            infoRow("Volume Free Space", exactSize(0))) +
           '\n' + writabilityRows("No", isMounted ? "No" : "Not applicable (not mounted)") + '\n' +
           locationRows(disk.fixed);
}

QString DriveTexts::opticalInfo(const OpticalDrive& drive)
{
    const QString mediaName = drive.identification.simplified().section(' ', 0, -2);
    return identityRows(drive.device, drive.device) + infoRow("Device / Media Name", mediaName) +
           '\n' + infoRow("Volume Name", identifierOf(drive.mountPoint)) +
           infoRow("Mounted", "Yes") + infoRow("Mount Point", drive.mountPoint) + '\n' +
           infoRow("Content (IOContent)", "None") + infoRow("File System Personality", "ISO") +
           infoRow("Type (Bundle)", "cd9660") + infoRow("Name (User Visible)", "ISO 9660") + '\n' +
           mediaRows("", "USB") + '\n' + diskSizeRows(discSize, 2048) + '\n' +
           volumeSizeRows(discSize, discSize) + infoRow("Allocation Block Size", "2048 Bytes") +
           '\n' + writabilityRows("Yes", "Yes (read-only mount flag set)") + '\n' +
           locationRows(false) + infoRow("Virtual", "No") + '\n' +
           infoRow("Optical Drive Type", "CD-ROM, CD-R, CD-RW, DVD-ROM, DVD-R, DVD-R DL, DVD-RW, "
                                         "DVD-RAM, DVD+R, DVD+R DL, DVD+RW") +
           infoRow("Optical Media Type", "DVD-ROM") + infoRow("Optical Media Erasable", "No");
}

QString DriveTexts::noSuchDisk(const QString& device)
{
    return "Could not find disk: " + device + '\n';
}

QString DriveTexts::partitionedDisk(const QString& device, const UsbDisk& disk)
{
    const QString identifier = identifierOf(device);
    const FatLayout layout(disk.size / sectorSize);
    return "Started partitioning on " + identifier +
           "\nUnmounting disk\nCreating the partition map\n"
           "Waiting for partitions to activate\nFormatting " +
           identifier + "s1 as MS-DOS (FAT" + (layout.isFat16() ? "16" : "32") + ") with name " +
           disk.name + "\n512 bytes per physical sector\n" + layout.formatReport(identifier) +
           "Mounting disk\nFinished partitioning on " + identifier + '\n' +
           listedUsbDisk(device, disk).chopped(1);
}

QString DriveTexts::unmountedDisk(const QString& device)
{
    return "Unmount of all volumes on " + identifierOf(device) + " was successful\n";
}
