// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "drutil.h"

#include "printing.h"

#include <algorithm>

namespace
{

const QLatin1String heading(" Vendor   Product           Rev ");

QStringList statusOf(const OpticalDrive& drive, bool withHeading)
{
    QStringList lines;
    if (withHeading)
        lines << heading;
    lines << ' ' + drive.vendor.leftJustified(8, ' ', true) + ' ' +
                 drive.product.leftJustified(17, ' ', true) + ' ' + drive.revision.left(4);
    lines << "";
    lines << (drive.hasMedium()
                  ? "           Type: " + drive.medium.leftJustified(21) + "Name: " + drive.device
                  : "           Type: No Media Inserted");
    lines << "";
    return lines;
}

} // namespace

QStringList driveStatusLines(const QList<OpticalDrive>& drives)
{
    QList<OpticalDrive> ordered = drives;
    std::stable_partition(ordered.begin(), ordered.end(),
                          [](const OpticalDrive& drive) { return drive.hasMedium(); });
    QStringList lines;
    for (const OpticalDrive& drive : qAsConst(ordered))
        lines << statusOf(drive, drive.hasMedium() || drives.size() == 1);
    return lines;
}

int drutilTool(const QStringList& arguments)
{
    if (arguments != QStringList("status"))
        return complain("Usage: drutil status");
    const QStringList lines = driveStatusLines(opticalDrives());
    for (const QString& line : lines)
        say(line);
    return 0;
}
