// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "eltorito.h"
#include "util.h"

#include <QDataStream>
#include <QDebug>
#include <QFile>

#include <cstdio>
#include <memory>

namespace
{

// Every failure is reported as whoever reads the debug stream knows it, ends of lines included.
void report(const char* line)
{
    qDebug().noquote().nospace() << line;
}

int readSector(QDataStream& stream, quint32 sector, unsigned char* buffer)
{
    return Util::Read(stream, isoSectorOffset(sector), isoSectorSize, buffer);
}

} // namespace

bool Util::BootExtract(QString isoPath, QString outPath)
{
    QFile file(isoPath);
    if (!file.open(QIODevice::ReadOnly)) {
        report("Util::BootExtract open file error!");
        return false;
    }
    QDataStream stream(&file);
    unsigned char sector[isoSectorSize];
    if (readSector(stream, bootRecordSector, sector) != 0) {
        report("Could not read the file/drive\n");
        return false;
    }
    if (const char* const fault = bootRecordFault(sector)) {
        report(fault);
        return false;
    }
    const quint32 catalogSector = bootCatalogSector(sector);
    qDebug().nospace() << "\nReading boot-catalog from sector " << catalogSector;
    if (readSector(stream, catalogSector, sector) != 0) {
        report("Could not read the file/drive ");
        return false;
    }
    if (!isBootCatalog(sector)) {
        report("Invalid validation-entry in boot-catalog!\n");
        return false;
    }
    ProcessEntry(outPath, stream, sector + initialEntryOffset);
    return true;
}

void Util::ProcessEntry(QString& outPath, QDataStream& stream, unsigned char* entry)
{
    const BootEntry boot = readBootEntry(entry);
    if (!boot.bootable) {
        std::puts("  Boot-Indicator: Not Bootable");
        return;
    }
    std::puts("  Boot-Indicator: Bootable");
    report(boot.media);
    const int size = boot.sectors * bootSectorSize;
    if (boot.sectors != boot.namedSectors)
        std::printf("  Sector count to read: %d (%d bytes)\n", boot.sectors, size);

    // Not filled beforehand: what a damaged entry asks for in vain (up to 32 MiB) stays address
    // space that no memory is spent on.
    const std::unique_ptr<char[]> buffer(new char[std::size_t(size)]);
    if (Read(stream, isoSectorOffset(boot.loadSector), size, buffer.get()) == 0)
        WriteData(outPath, buffer.get(), size);
}

int Util::Read(QDataStream& stream, int offset, int size, void* buffer)
{
    QIODevice* const device = stream.device();
    if (!device || !device->seek(offset))
        return 25;
    if (size < 0 || stream.readRawData(static_cast<char*>(buffer), size) != size) {
        report("Util::Read error");
        return 32;
    }
    return 0;
}

void Util::WriteData(QString& path, void* data, int size)
{
    // Unbuffered, or a full disk would show only when it is too late to tell.
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        report("Util::WriteData can not open file");
        return;
    }
    if (file.write(static_cast<const char*>(data), size) < size)
        report("WriteData error");
}
