// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "eltorito.h"

#include <QtEndian>

#include <cstring>
#include <limits>

namespace
{

struct MediaType
{
    const char* text;
    // 0: as many sectors as the entry names.
    int fixedSectors;
};

constexpr MediaType mediaTypes[] = {
    {"No emulation\n", 0},         {"1.2 meg diskette\n", 2400},  {"1.44 meg diskette\n", 2880},
    {"2.88 meg diskette\n", 5760}, {"Hard disk (drive 80)\n", 0},
};
constexpr MediaType unknownMedia = {"Unknown\n", 0};

// The upper half of the byte holds flags that do not change what is copied.
const MediaType& mediaType(unsigned char value)
{
    const unsigned type = value & 0x0fU;
    return type < std::size(mediaTypes) ? mediaTypes[type] : unknownMedia;
}

template<std::size_t Size>
bool holds(const unsigned char* place, const char (&text)[Size])
{
    return std::memcmp(place, text, Size - 1) == 0;
}

} // namespace

int isoSectorOffset(quint32 sector)
{
    const qint64 offset = qint64(sector) * isoSectorSize;
    return offset <= std::numeric_limits<int>::max() ? int(offset) : -1;
}

const char* bootRecordFault(const unsigned char* record)
{
    if (record[0] != 0 || record[6] != 1)
        return "Invalid boot-record-volume!\n";
    if (!holds(record + 1, "CD001") || !holds(record + 7, "EL TORITO SPECIFICATION"))
        return "Invalid signature in boot-record-volume!\n";
    return nullptr;
}

quint32 bootCatalogSector(const unsigned char* record)
{
    return qFromLittleEndian<quint32>(record + 71);
}

bool isBootCatalog(const unsigned char* catalog)
{
    return catalog[0] == 1 && catalog[30] == 0x55 && catalog[31] == 0xaa;
}

BootEntry readBootEntry(const unsigned char* entry)
{
    const MediaType& media = mediaType(entry[1]);
    const int named = qFromLittleEndian<quint16>(entry + 6);
    return {entry[0] == 0x88, media.text, named, media.fixedSectors ? media.fixedSectors : named,
            qFromLittleEndian<quint32>(entry + 8)};
}
