// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "opticaldrivereader.h"

#include <QStringList>

namespace
{

const QLatin1String header("Vendor   Product           Rev");
const QLatin1String nameLabel(" Name:");

QString withSingleBlanks(const QString& line)
{
    QStringList words;
    for (const QString& piece : line.split(' ')) {
        if (!piece.trimmed().isEmpty())
            words.append(piece);
    }
    return words.join(' ');
}

} // namespace

OpticalDriveReader::OpticalDriveReader(Pending& pagePending)
    : pending(pagePending)
{
}

void OpticalDriveReader::start()
{
    headerSeen = false;
}

std::optional<DriveEntry> OpticalDriveReader::read(QString line)
{
    line.remove('\r').remove('\n');
    if (line.contains(header)) {
        headerSeen = true;
        return std::nullopt;
    }
    if (headerSeen && pending.identification.isEmpty())
        pending.identification = withSingleBlanks(line);
    const int label = line.indexOf(nameLabel);
    if (label > 0)
        pending.device = line.mid(label + nameLabel.size()).trimmed();
    if (pending.device.isEmpty())
        return std::nullopt;
    headerSeen = false;
    const DriveEntry drive{pending.identification + " (" + pending.device + ')', pending.device};
    pending = Pending();
    return drive;
}
