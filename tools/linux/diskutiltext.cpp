// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskutiltext.h"

#include "devicename.h"

#include <array>

namespace
{

constexpr int labelWidth = 27;
constexpr int typeWidth = 27;
constexpr int nameWidth = 23;
constexpr int sizeWidth = 11;
const QLatin1String
    titles("   #:                       TYPE NAME                    SIZE       IDENTIFIER");

QString infoLine(const char* label, const QString& value)
{
    return "   " + (QString(label) + ':').leftJustified(labelWidth) + value;
}

// "31.9 GB", by powers of 1000.
QString roundedSize(qint64 bytes)
{
    static const std::array<const char*, 6> units = {"B", "KB", "MB", "GB", "TB", "PB"};
    double value = static_cast<double>(bytes);
    std::size_t unit = 0;
    for (; value >= 999.95 && unit + 1 < units.size(); ++unit)
        value /= 1000;
    return QString::number(value, 'f', unit == 0 ? 0 : 1) + ' ' + units[unit];
}

QString exactSize(qint64 bytes)
{
    return QString("%1 (%2 Bytes) (exactly %3 512-Byte-Units)")
        .arg(roundedSize(bytes))
        .arg(bytes)
        .arg(bytes / 512);
}

QString protocolOf(const BlockDevice& disk)
{
    if (disk.isUsb())
        return "USB";
    if (disk.transport == "nvme")
        return "PCI-Express";
    if (disk.transport == "mmc" || deviceName(disk.path).startsWith("mmcblk"))
        return "Secure Digital";
    return disk.transport.isEmpty() ? "Unknown" : disk.transport.toUpper();
}

QString contentOf(const BlockDevice& device)
{
    if (device.fileSystem == "vfat")
        return "DOS_FAT_32";
    if (device.fileSystem == "ntfs" || device.fileSystem == "exfat")
        return "Windows_NTFS";
    if (device.fileSystem.startsWith("ext"))
        return "Linux";
    return device.fileSystem;
}

// What a whole disk holds: its table, or a file system without one.
QString schemeOf(const BlockDevice& disk)
{
    if (disk.partitionTable == "dos")
        return "FDisk_partition_scheme";
    if (disk.partitionTable == "gpt")
        return "GUID_partition_scheme";
    return contentOf(disk);
}

QString listRow(int number, const BlockDevice& device, const QString& content, char sizeMark)
{
    return QString("%1: ").arg(number, 4) + content.rightJustified(typeWidth - 1) + ' ' +
           device.label.leftJustified(nameWidth, ' ', true) + sizeMark +
           roundedSize(device.size).leftJustified(sizeWidth) + deviceName(device.path);
}

QStringList volumeLines(const BlockDevice& part)
{
    const QString none("Not applicable (no file system)");
    const QString path = mountPathOf(part);
    QStringList lines;
    lines << infoLine("Volume Name", part.fileSystem.isEmpty() ? none : part.label);
    if (part.fileSystem.isEmpty())
        return lines << infoLine("Mounted", none) << infoLine("File System", "None");
    lines << infoLine("Mounted", path.isEmpty() ? "No" : "Yes");
    if (!path.isEmpty())
        lines << infoLine("Mount Point", path);
    return lines << "" << infoLine("Type (Bundle)", part.fileSystem);
}

} // namespace

bool isExternal(const BlockDevice& disk)
{
    return disk.isUsb() || disk.removable;
}

QString mountPathOf(const BlockDevice& device)
{
    for (const QString& path : device.mountPoints)
        if (path.startsWith('/'))
            return path;
    return {};
}

QStringList diskListLines(const BlockDevice& disk)
{
    QStringList lines;
    lines << disk.path + (isExternal(disk) ? " (external, physical):" : " (internal, physical):");
    lines << titles << listRow(0, disk, schemeOf(disk), '*');
    int number = 0;
    for (const BlockDevice& part : disk.children)
        lines << listRow(++number, part, contentOf(part), ' ');
    return lines;
}

QStringList diskInfoLines(const BlockDevice& disk, const BlockDevice& part,
                          const OpticalDrive* drive)
{
    const bool isWhole = part.path == disk.path;
    QStringList lines;
    lines << infoLine("Device Identifier", deviceName(part.path))
          << infoLine("Device Node", part.path) << infoLine("Whole", isWhole ? "Yes" : "No")
          << infoLine("Part of Whole", deviceName(disk.path));
    if (isWhole)
        lines << infoLine("Device / Media Name", (disk.vendor + ' ' + disk.model).trimmed());
    lines << "" << volumeLines(part) << "";
    lines << infoLine("Protocol", protocolOf(disk)) << "";
    lines << infoLine("Disk Size", exactSize(part.size)) << "";
    lines << infoLine("Media Read-Only", disk.readOnly ? "Yes" : "No") << "";
    lines << infoLine("Device Location", isExternal(disk) ? "External" : "Internal")
          << infoLine("Removable Media", disk.removable ? "Removable" : "Fixed");
    if (drive) {
        lines << "" << infoLine("Optical Drive Type", drive->capabilities)
              << infoLine("Optical Media Type", drive->medium);
    }
    return lines << "";
}
