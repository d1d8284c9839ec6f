// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

// The El Torito structures of a bootable image as they lie on the disc, for Util::BootExtract().
// Pure: bytes in, values out. Any thread.

// Logical sector of a disc and the virtual sector in which boot images are counted, in bytes.
constexpr int isoSectorSize = 2048;
constexpr int bootSectorSize = 512;

// The boot record volume descriptor's place is fixed.
constexpr quint32 bootRecordSector = 17;

// Byte offset of a logical sector; -1, where nothing can be read, from 2 GiB on.
int isoSectorOffset(quint32 sector);

// What is wrong with the sector taken for the boot record, as a line for the debug stream;
// nullptr for a boot record of El Torito.
const char* bootRecordFault(const unsigned char* record);

// Logical sector of the boot catalog that a boot record names.
quint32 bootCatalogSector(const unsigned char* record);

// Whether the boot catalog begins as one does. Platform, identifier and checksum do not matter:
// there are discs around that boot with any of them wrong.
bool isBootCatalog(const unsigned char* catalog);

// The initial/default entry lies here in the boot catalog.
constexpr int initialEntryOffset = 32;

// An entry of the boot catalog.
struct BootEntry
{
    bool bootable;
    // Kind of drive the firmware emulates, as a line for the debug stream.
    const char* media;
    // Virtual sectors the entry names, and those its boot image has: a diskette's are fixed.
    int namedSectors;
    int sectors;
    // First logical sector of the boot image.
    quint32 loadSector;
};

BootEntry readBootEntry(const unsigned char* entry);
