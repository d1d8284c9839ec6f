// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "fatlayout.h"

namespace
{

const qint64 sectorSize = 512;
const qint64 sectorsOfFourGigabytes = 8388608;
const qint64 rootDirectorySectors = 32;
const qint64 tables = 2;

} // namespace

FatLayout::FatLayout(qint64 sectorsOfDisk)
    : isSmall(sectorsOfDisk < sectorsOfFourGigabytes)
    , sectors(sectorsOfDisk - firstSector())
    , sectorsPerCluster(isSmall ? 1 : 8)
{
    const qint64 bytesPerEntry = isSmall ? 2 : 4;
    const qint64 reserved = isSmall ? 1 + rootDirectorySectors : 32;
    // FAT16 cannot number more clusters.
    while (isSmall && sectors / sectorsPerCluster > 65524)
        sectorsPerCluster *= 2;
    // The larger the tables, the fewer clusters there are for them to number.
    const qint64 room = sectors - reserved;
    const qint64 share = sectorSize * sectorsPerCluster + tables * bytesPerEntry;
    sectorsPerTable = ((room + 2 * sectorsPerCluster) * bytesPerEntry + share - 1) / share;
    clusters = (room - tables * sectorsPerTable) / sectorsPerCluster;
}

QString FatLayout::formatReport(const QString& identifier) const
{
    const QString head =
        QString("/dev/r%1s1: %2 sectors in %3 FAT%4 clusters (%5 bytes/cluster)\nbps=512 spc=%6 ")
            .arg(identifier)
            .arg(dataSectors())
            .arg(clusters)
            .arg(isSmall ? 16 : 32)
            .arg(sectorsPerCluster * sectorSize)
            .arg(sectorsPerCluster);
    const QString tail = isSmall
                             ? QString("res=1 nft=2 rde=512 mid=0xf8 spf=%1 spt=32 hds=54 hid=%2 "
                                       "drv=0x80 bsec=%3\n")
                             : QString("res=32 nft=2 mid=0xf8 spt=32 hds=255 hid=%2 drv=0x80 "
                                       "bsec=%3 bspf=%1 rdcl=2 infs=1 bkbs=6\n");
    return head + tail.arg(sectorsPerTable).arg(firstSector()).arg(sectors);
}
