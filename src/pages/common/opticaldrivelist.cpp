// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "opticaldrivelist.h"

#include <QComboBox>

OpticalDriveList::OpticalDriveList(QComboBox* driveList, QString& remembered,
                                   OpticalDriveReader::Pending& pending)
    : list(driveList)
    , current(remembered)
    , reader(pending)
{
}

void OpticalDriveList::startReading()
{
    reader.start();
}

void OpticalDriveList::clear()
{
    current = list->currentText();
    list->clear();
}

void OpticalDriveList::readLine(const QString& line)
{
    const auto drive = reader.read(line);
    if (!drive)
        return;
    list->addItem(drive->text, drive->device);
    if (current == drive->text)
        list->setCurrentIndex(list->count() - 1);
}
