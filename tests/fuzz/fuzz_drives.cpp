// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "discprogress.h"
#include "diskutilinfo.h"
#include "imagemount.h"
#include "mounttable.h"
#include "opticaldrivereader.h"
#include "require.h"
#include "usbdiskreader.h"

#include <QStringList>

// Gives what the disk tools might print to every reader of drives, line by line and whole, and
// stops where one answers what its declaration excludes.

namespace
{

constexpr int whole = 100;

void readWhole(const QString& text)
{
    isRemovableUsbDisk(text);
    diskSizeOf(text);
    const QString mountPoint = mountPointOf(text);
    require(mountPoint.isEmpty() || mountPoint.startsWith('/'), "no mount point of a disk");
    const std::optional<QString> image = imageMountPointOf(text);
    require(!image || image->simplified().remove(' ') == *image, "white space in a mount point");
}

void readLine(const QString& line, const QString& device, OpticalDriveReader& drives)
{
    const std::optional<QString> disk = externalDiskOf(line);
    require(!disk || *disk == disk->trimmed(), "blanks around a disk's name");
    const std::optional<QString> mountPoint = mountPointInLine(line, device);
    require(!mountPoint || mountPoint->isEmpty() || mountPoint->startsWith('/'),
            "no mount point of a device");
    const std::optional<int> progress = readDiscProgress(line, whole);
    require(!progress || *progress >= 0, "a progress below 0");
    const std::optional<DriveEntry> drive = drives.read(line);
    require(!drive ||
                (!drive->device.isEmpty() && drive->text.endsWith(" (" + drive->device + ')')),
            "a drive without its device");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QString text = QString::fromUtf8(inputBytes(data, size));
    const QStringList lines = text.split('\n');
    readWhole(text);
    // The first word stands for the device that is looked for.
    const QString device = text.section(' ', 0, 0);
    OpticalDriveReader::Pending pending;
    OpticalDriveReader drives(pending);
    drives.start();
    for (const QString& line : lines)
        readLine(line, device, drives);
    return 0;
}
