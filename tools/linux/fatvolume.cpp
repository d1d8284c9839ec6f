// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "fatvolume.h"

#include <algorithm>

namespace
{

constexpr int longestLabel = 11;
const QLatin1String forbidden("\"*/:<>?\\|+,.;=[]");

// Beyond ASCII a label's bytes mean something else on every system.
bool isLabelCharacter(QChar character)
{
    return character >= ' ' && character < QChar(0x7f) && !QString(forbidden).contains(character);
}

QString labelRefusal(const QString& label)
{
    if (label.size() > longestLabel)
        return QString("The name %1 is longer than %2 characters").arg(label).arg(longestLabel);
    const auto bad = std::find_if_not(label.begin(), label.end(), isLabelCharacter);
    if (bad != label.end())
        return QString("The name %1 holds a character that FAT cannot hold: %2").arg(label, *bad);
    return {};
}

} // namespace

FatVolume fatVolumeFrom(const QString& fileSystem, const QString& name)
{
    FatVolume volume;
    QString kind = fileSystem;
    // The quotes are part of the argument.
    kind.remove('"');
    if (kind == "MS-DOS FAT16")
        volume.bits = 16;
    else if (kind != "FAT32" && kind != "MS-DOS FAT32")
        volume.refusal = "Unknown file system: " + fileSystem;
    volume.label = name.trimmed().toUpper();
    if (volume.label.isEmpty())
        volume.label = "NONAME";
    if (volume.refusal.isEmpty())
        volume.refusal = labelRefusal(volume.label);
    return volume;
}
