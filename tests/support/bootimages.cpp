// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootimages.h"

#include <QFile>
#include <QtEndian>

#include <fstream>
#include <string>

namespace
{

constexpr qint64 supportedBytes = qint64(1) << 31;
constexpr int recordOffset = 17 * sectorBytes;

template<typename Number>
QByteArray littleEndian(Number number)
{
    QByteArray bytes(int(sizeof number), Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

// The bytes that are there, at most count.
std::string bytesAt(std::ifstream& file, qint64 offset, qint64 count)
{
    std::string bytes(std::size_t(count), '\0');
    file.clear();
    file.seekg(offset);
    file.read(&bytes[0], count);
    bytes.resize(std::size_t(file.gcount()));
    return bytes;
}

qint64 numberAt(const std::string& bytes, std::size_t offset, std::size_t size)
{
    qint64 number = 0;
    for (std::size_t i = size; i-- > 0;)
        number = number * 256 + static_cast<unsigned char>(bytes[offset + i]);
    return number;
}

qint64 bootImageBytes(int media, qint64 namedSectors)
{
    switch (media) {
    case 1:
        return 1'228'800;
    case 2:
        return 1'474'560;
    case 3:
        return 2'949'120;
    default:
        return namedSectors * 512;
    }
}

std::optional<QByteArray> bootImageOf(std::ifstream& file, const std::string& entry)
{
    const qint64 size = bootImageBytes(entry[1] & 15, numberAt(entry, 6, 2));
    const qint64 offset = numberAt(entry, 8, 4) * sectorBytes;
    if (entry[0] != '\x88' || offset >= supportedBytes)
        return {};
    const std::string bytes = bytesAt(file, offset, size);
    if (qint64(bytes.size()) != size)
        return {};
    return QByteArray::fromStdString(bytes);
}

} // namespace

QByteArray patternBytes(int size)
{
    QByteArray bytes(size + 3, Qt::Uninitialized);
    for (int i = 0; i < size; i += 4)
        qToLittleEndian(quint32(i), bytes.data() + i);
    bytes.truncate(size);
    return bytes;
}

QByteArray bootRecord(quint32 catalogSector)
{
    QByteArray record = QByteArray(1, 0) + "CD001\1EL TORITO SPECIFICATION";
    record.append(71 - record.size(), 0);
    record += littleEndian(catalogSector);
    return record.append(sectorBytes - record.size(), 0);
}

QByteArray bootCatalog(const QByteArray& entry)
{
    QByteArray catalog(sectorBytes, 0);
    overwrite(catalog, 0, QByteArray(1, 1));
    overwrite(catalog, 28, "\xaa\x55\x55\xaa"); // the checksum of an entry with nothing else, keys
    overwrite(catalog, 32, entry);
    return catalog;
}

QByteArray bootEntry(int indicator, int media, int sectors, quint32 loadSector)
{
    QByteArray entry(32, 0);
    entry[0] = char(indicator);
    entry[1] = char(media);
    overwrite(entry, 6, littleEndian(quint16(sectors)));
    overwrite(entry, 8, littleEndian(loadSector));
    return entry;
}

QByteArray bootableImage(const QByteArray& entry, int sizeInSectors)
{
    QByteArray image = patternBytes(sizeInSectors * sectorBytes);
    overwrite(image, recordOffset, bootRecord(20));
    overwrite(image, 20 * sectorBytes, bootCatalog(entry));
    return image;
}

void overwrite(QByteArray& bytes, int offset, const QByteArray& by)
{
    if (offset < 0 || offset + by.size() > bytes.size())
        qFatal("%d bytes at %d lie outside", by.size(), offset);
    bytes.replace(offset, by.size(), by);
}

BootOutcome expectedBootOutcome(const QString& imagePath)
{
    std::ifstream file(QFile::encodeName(imagePath).toStdString(), std::ios::binary);
    const std::string record = bytesAt(file, recordOffset, sectorBytes);
    const std::string start = std::string(1, '\0') + "CD001\1EL TORITO SPECIFICATION";
    if (record.size() != sectorBytes || record.compare(0, start.size(), start) != 0)
        return {};
    const qint64 offset = numberAt(record, 71, 4) * sectorBytes;
    if (offset >= supportedBytes)
        return {};
    const std::string catalog = bytesAt(file, offset, sectorBytes);
    if (catalog.size() != sectorBytes || catalog[0] != 1 || catalog.compare(30, 2, "\x55\xaa") != 0)
        return {};
    return {true, bootImageOf(file, catalog.substr(32, 32))};
}

bool writeFromShortForm(const QByteArray& shortForm, const QString& imagePath)
{
    QByteArray bytes = shortForm.left(shortFormBytes);
    bytes.append(shortFormBytes - bytes.size(), 0);
    const qint64 size = qFromLittleEndian<quint32>(bytes.constData());
    const QByteArray record = bytes.mid(4, 75);
    const qint64 catalog =
        qint64(qFromLittleEndian<quint32>(record.constData() + 71)) * sectorBytes;

    static const QByteArray pattern = patternBytes(48 * sectorBytes);
    QFile image(imagePath);
    if (!image.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    image.write(pattern);
    if (catalog < size && image.seek(catalog))
        image.write(bytes.mid(79));
    image.seek(recordOffset);
    image.write(record);
    return image.flush() && image.resize(size);
}
