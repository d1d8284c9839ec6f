// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "opticaldrivereader.h"

class QComboBox;

// The list of optical drives of the Burn and the Copy Disk page, as "drutil status" fills it line
// by line. User-interface thread.
class OpticalDriveList
{
public:
    // Of list, whose entries get the device as data. current and pending are kept by the page's
    // class beyond its pages, current for the entry that was chosen when a list was last cleared:
    // it is chosen again when its drive is still there. All outlive this object.
    OpticalDriveList(QComboBox* list, QString& current, OpticalDriveReader::Pending& pending);

    // Before the tool is asked: the next line begins a new answer.
    void startReading();
    // Remembers the current entry and empties the list.
    void clear();
    // One line of the tool's output.
    void readLine(const QString& line);

private:
    QComboBox* list;
    QString& current;
    OpticalDriveReader reader;
};
