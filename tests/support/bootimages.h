// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// Bootable images for tests, made byte by byte: each part can be spoilt before it is laid into the
// image. Also what a second, separate reading of such an image says its boot image is.

constexpr int sectorBytes = 2048;

// Bytes of which every aligned group of four is its own byte offset, so that a piece shows where
// it was taken from.
QByteArray patternBytes(int size);

// Sound sectors of a bootable image, and one entry for bootCatalog().
QByteArray bootRecord(quint32 catalogSector);
QByteArray bootCatalog(const QByteArray& entry);
QByteArray bootEntry(int indicator, int media, int sectors, quint32 loadSector);

// Pattern bytes with a boot record in sector 17 and a boot catalog in sector 20.
QByteArray bootableImage(const QByteArray& entry, int sizeInSectors = 40);
// Replaces bytes from an offset on; stops the test run when that is not inside.
void overwrite(QByteArray& bytes, int offset, const QByteArray& by);

// What comes of reading the boot image of an image: whether its boot catalog is accepted, and the
// boot image, if there is one to be written.
struct BootOutcome
{
    bool accepted = false;
    std::optional<QByteArray> written;
};

// Reads the image with plain streams and 64-bit offsets, by nothing that the program has.
BootOutcome expectedBootOutcome(const QString& imagePath);

// A bootable image in short form, all that a reader of its boot image looks at. Bytes that are
// missing at the end are zero, those beyond are ignored.
//   0   4   length of the image in bytes, little-endian
//   4  75   begin of sector 17
//  79  64   begin of the boot catalog, in the sector that the boot record names
// The image's first sectors are filled with pattern bytes, the rest is a hole.
constexpr int shortFormBytes = 4 + 75 + 64;
// Writes the whole image; false when it cannot.
bool writeFromShortForm(const QByteArray& shortForm, const QString& imagePath);
