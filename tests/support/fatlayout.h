// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// How the disk tool lays one FAT volume out on a whole disk, so that DriveTexts can print the same
// figures. All sizes are in sectors of 512 bytes.
class FatLayout
{
public:
    explicit FatLayout(qint64 sectorsOfDisk);

    bool isFat16() const { return isSmall; }
    qint64 firstSector() const { return isSmall ? 63 : 2048; }
    qint64 partitionSectors() const { return sectors; }
    qint64 dataSectors() const { return clusters * sectorsPerCluster; }
    // The two lines that formatting prints.
    QString formatReport(const QString& identifier) const;

private:
    bool isSmall;
    qint64 sectors;
    qint64 sectorsPerCluster;
    qint64 clusters;
    qint64 sectorsPerTable;
};
