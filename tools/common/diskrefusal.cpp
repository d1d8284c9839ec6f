// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskrefusal.h"

#include <QDir>

#include <algorithm>
#include <array>

namespace
{

// Folders below which media of the user are mounted. Everything else counts as the system's: a list
// of the system's own places would miss those of the next live system.
constexpr std::array<const char*, 5> mediaFolders = {"/media/", "/run/media/", "/mnt/", "/Volumes/",
                                                     "/tmp/"};

// Below /home it takes a user's name and a folder of that user's; the rest is the system's.
bool isInHomeOfUser(const QString& mountPoint)
{
    return mountPoint.startsWith(QLatin1String("/home/")) &&
           mountPoint.count(QLatin1Char('/')) >= 3;
}

// The first of the device and what lies on it that the system runs from, or null; mountPoint
// receives where.
const BlockDevice* systemPart(const BlockDevice& device, QString* mountPoint)
{
    for (const QString& candidate : device.mountPoints) {
        if (!isPlaceForMedia(candidate)) {
            *mountPoint = candidate;
            return &device;
        }
    }
    for (const BlockDevice& child : device.children) {
        if (const BlockDevice* found = systemPart(child, mountPoint))
            return found;
    }
    return nullptr;
}

// A drive bay may call its disk removable, yet the disk in it is a built-in one.
bool isBuiltIn(const BlockDevice& disk)
{
    constexpr std::array<const char*, 6> buses = {"sata", "ata", "nvme", "sas", "fc", "iscsi"};
    const bool onInnerBus = std::any_of(buses.begin(), buses.end(), [&disk](const char* bus) {
        return disk.transport == QLatin1String(bus);
    });
    return !disk.isUsb() && (onInnerBus || !disk.removable);
}

} // namespace

QString refusal(const BlockDevice& disk)
{
    if (disk.isOptical())
        return QStringLiteral("%1 is an optical drive").arg(disk.path);
    if (!disk.isDisk())
        return QStringLiteral("%1 is not a whole disk").arg(disk.path);
    QString mountPoint;
    if (const BlockDevice* part = systemPart(disk, &mountPoint))
        return QStringLiteral("The system runs from %1: %2 is in use as %3")
            .arg(disk.path, part->path, mountPoint);
    if (isBuiltIn(disk))
        return QStringLiteral("%1 is neither a USB disk nor a removable one").arg(disk.path);
    if (disk.size <= 0)
        return QStringLiteral("There is no medium in %1").arg(disk.path);
    if (disk.readOnly)
        return QStringLiteral("%1 is write-protected").arg(disk.path);
    return {};
}

bool isPlaceForMedia(const QString& mountPoint)
{
    const QString clean = QDir::cleanPath(mountPoint);
    if (clean == QLatin1String("/mnt") || isInHomeOfUser(clean))
        return true;
    return std::any_of(mediaFolders.begin(), mediaFolders.end(), [&clean](const char* folder) {
        return clean.startsWith(QLatin1String(folder));
    });
}
