// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

// The first sector of a disk and of a FAT partition as bytes: what mkbootable checks in them and
// changes. Nothing here touches a disk.

// Bytes of a sector as these structures use it, whatever the disk's own sectors are.
constexpr int sectorSize = 512;
// Bytes of boot code at the start of an MBR; the disk's signature and the partition table follow.
constexpr int bootCodeSize = 440;

// Why this is not the MBR of a disk of that size (bytes) with a FAT16 or FAT32 partition as the
// first and only one; one line for the user, empty when it is.
QString mbrRefusal(const QByteArray& sector, qint64 diskSize);

// Why this is not the first sector of a FAT16 or FAT32 file system; empty when it is.
QString fatRefusal(const QByteArray& sector);

// Where the first partition begins, in bytes, of an MBR that is not refused.
qint64 firstPartitionStart(const QByteArray& sector);

// The sector with that boot code (at most bootCodeSize bytes, the rest is filled with zeros) and
// with the first partition, and only it, active. Nothing else changes. Empty when the sector or the
// code has not the right size.
QByteArray bootableMbr(const QByteArray& sector, const QByteArray& bootCode);
