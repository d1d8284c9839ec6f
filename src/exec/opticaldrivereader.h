// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

// An optical drive with a disc as the drive lists show it.
struct DriveEntry
{
    // Vendor, product and revision, and the device in parentheses.
    QString text;
    // Device node of the disc in the drive.
    QString device;
};

// Reads the lines of "drutil status" for the drive lists of the Burn and the Copy Disk page.
class OpticalDriveReader
{
public:
    // What has been read of a drive whose entry is not complete. It outlives a reader, so that each
    // page keeps one for good.
    struct Pending
    {
        QString identification;
        QString device;
    };

    explicit OpticalDriveReader(Pending& pending);

    // Before the first line of a run.
    void start();
    // A line, and the drive that it completes, if any. A drive without a disc has no device and
    // never is complete.
    std::optional<DriveEntry> read(QString line);

private:
    Pending& pending;
    bool headerSeen = false;
};
