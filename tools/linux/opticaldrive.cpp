// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "opticaldrive.h"

#include "programrun.h"

#include <QDir>
#include <QFile>
#include <QMap>

#include <algorithm>

namespace
{

constexpr int udevLimitMs = 10000;

// udev's words for kinds of disc, the more special one of two that may both be set first.
const struct
{
    const char* property;
    const char* name;
} discKinds[] = {
    {"CD_RW", "CD-RW"},
    {"CD_R", "CD-R"},
    {"DVD_PLUS_R_DL", "DVD+R DL"},
    {"DVD_PLUS_RW_DL", "DVD+RW DL"},
    {"DVD_PLUS_R", "DVD+R"},
    {"DVD_PLUS_RW", "DVD+RW"},
    {"DVD_R_DL_SEQ", "DVD-R DL"},
    {"DVD_R_DL_JR", "DVD-R DL"},
    {"DVD_R_DL", "DVD-R DL"},
    {"DVD_R", "DVD-R"},
    {"DVD_RW_RO", "DVD-RW"},
    {"DVD_RW_SEQ", "DVD-RW"},
    {"DVD_RW", "DVD-RW"},
    {"DVD_RAM", "DVD-RAM"},
    {"BD_RE", "BD-RE"},
    {"BD_R", "BD-R"},
    {"BD", "BD-ROM"},
    {"DVD", "DVD-ROM"},
    {"CD", "CD-ROM"},
};

QString wordOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromLatin1(file.readAll()).trimmed();
}

} // namespace

void readDriveProperties(const QByteArray& properties, OpticalDrive& drive)
{
    QMap<QByteArray, QByteArray> values;
    const QList<QByteArray> lines = properties.split('\n');
    for (const QByteArray& line : lines) {
        const int equals = line.indexOf('=');
        values.insert(line.left(equals), line.mid(equals + 1).trimmed());
    }
    const bool hasMedium = values.value("ID_CDROM_MEDIA") == "1";
    QString medium = hasMedium ? "Unknown" : "";
    QStringList taken;
    for (const auto& kind : discKinds) {
        if (values.value(QByteArray("ID_CDROM_") + kind.property) == "1")
            taken << kind.name;
        if (hasMedium && medium == "Unknown" &&
            values.value(QByteArray("ID_CDROM_MEDIA_") + kind.property) == "1")
            medium = kind.name;
    }
    taken.removeDuplicates();
    drive.medium = medium;
    drive.capabilities = taken.isEmpty() ? "CD-ROM" : taken.join(", ");
    drive.isBlank = hasMedium && values.value("ID_CDROM_MEDIA_STATE") == "blank";
}

QList<OpticalDrive> opticalDrives(const QString& blockFolder)
{
    QStringList names = QDir(blockFolder).entryList({"sr*"}, QDir::AllEntries | QDir::System);
    std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
        return a.midRef(2).toInt() < b.midRef(2).toInt();
    });
    QList<OpticalDrive> drives;
    for (const QString& name : qAsConst(names)) {
        const QString folder = blockFolder + '/' + name + "/device/";
        OpticalDrive drive;
        drive.device = "/dev/" + name;
        drive.vendor = wordOf(folder + "vendor");
        drive.product = wordOf(folder + "model");
        drive.revision = wordOf(folder + "rev");
        const ProgramResult udev = runProgram(
            "udevadm", {"info", "--query=property", "--name=" + drive.device}, udevLimitMs);
        readDriveProperties(udev.output, drive);
        drives.append(drive);
    }
    return drives;
}
