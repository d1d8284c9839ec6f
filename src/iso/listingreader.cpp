// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "listingreader.h"

namespace
{

// A rule of dashes under the date column frames the table, above and below.
const QLatin1String separator("-------------------");

// Columns of an entry line: where they begin and how wide they are, in characters.
constexpr int timeWidth = 19;
constexpr int attributeColumn = 20;
constexpr int attributeWidth = 5;
constexpr int sizeColumn = 26;
constexpr int sizeWidth = 12;
constexpr int nameColumn = 53;

// A line that is too short for a field leaves the field as it is.
Item readColumns(const QString& line)
{
    Item entry;
    entry.isDir = false;
    if (line.size() >= timeWidth)
        entry.timeText = line.left(timeWidth);
    if (line.size() >= attributeColumn + attributeWidth)
        entry.isDir = line.midRef(attributeColumn, attributeWidth).contains('D');
    if (line.size() >= sizeColumn + sizeWidth)
        entry.sizeText = line.midRef(sizeColumn, sizeWidth).trimmed().toString();
    entry.path = line.mid(nameColumn);
    return entry;
}

} // namespace

void ListingReader::reset()
{
    listing = false;
}

ListingReader::Line ListingReader::read(QString line, Item& entry)
{
    if (line.contains(separator)) {
        listing = !listing;
        return listing ? Line::Began : Line::Ended;
    }
    if (!listing)
        return Line::Ignored;
    line.remove('\r').remove('\n');
    if (line.size() <= nameColumn)
        return Line::Ignored;
    entry = readColumns(line);
    return Line::Entry;
}
