// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "item.h"

// Reads the archiver's plain listing line by line. Only the two separator lines and the column
// positions count; the banner, the header and the totals are passed over. Fed by the pages that
// list an image, knows no process.
class ListingReader
{
public:
    enum class Line
    {
        Ignored, // outside the table, or too short to name an entry
        Began,   // the first separator: entries follow
        Entry,   // an entry was read
        Ended    // the second separator: the listing is complete
    };

    // Forgets a listing that was under way.
    void reset();
    // True between the two separators.
    bool isListing() const { return listing; }
    // Reads one line, with or without its line end. For Line::Entry, entry holds what it says.
    Line read(QString line, Item& entry);

private:
    bool listing = false;
};
