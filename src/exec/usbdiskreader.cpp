// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "usbdiskreader.h"

#include <QStringList>

#include <algorithm>

namespace
{

const QLatin1String externalMark("external, physical");
const QLatin1String headingEnd("(external, physical):");
const QLatin1String opticalMark("Optical Drive Type:");
const QLatin1String protocolLabel("Protocol:");
const QLatin1String removableLabel("Removable Media:");

bool namesUsb(const QString& line)
{
    return line.contains(protocolLabel) && line.contains("USB");
}

// The label holds the word itself: only one behind its start is a value.
bool namesRemovable(const QString& line)
{
    const int label = line.indexOf(removableLabel);
    return label >= 0 && line.indexOf("Removable", label + 1) > label;
}

} // namespace

std::optional<QString> externalDiskOf(const QString& line)
{
    if (!line.contains(externalMark))
        return std::nullopt;
    QString device = line;
    device.remove('\n').remove('\r').remove(headingEnd);
    return device.trimmed();
}

bool isRemovableUsbDisk(const QString& info)
{
    if (info.contains(opticalMark))
        return false;
    const QStringList lines = info.split('\n');
    return std::any_of(lines.begin(), lines.end(), namesUsb) &&
           std::any_of(lines.begin(), lines.end(), namesRemovable);
}
