// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "lsblk.h"

#include "programrun.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace
{

constexpr int limitMs = 10000;

// Missing values are null; vendors and models are padded with blanks.
QString textOf(const QJsonValue& value)
{
    return value.toString().trimmed();
}

// Bytes, 0 for what is no size. Older versions write every value as a text.
qint64 sizeOf(const QJsonValue& value)
{
    if (value.isString())
        return std::max(value.toString().toLongLong(), 0LL);
    // The first number that a qint64 does not hold; converting it or more is undefined.
    constexpr double tooLarge = 9223372036854775808.0;
    const double bytes = value.toDouble();
    return bytes > 0 && bytes < tooLarge ? static_cast<qint64>(bytes) : 0;
}

bool flagOf(const QJsonValue& value)
{
    if (value.isString())
        return value.toString() == QLatin1String("1");
    return value.toBool();
}

// A blank may begin or end the name of a folder, so nothing is trimmed here.
QStringList mountPointsOf(const QJsonObject& object)
{
    QJsonArray values = object.value(QLatin1String("mountpoints")).toArray();
    values.append(object.value(QLatin1String("mountpoint")));
    QStringList mountPoints;
    for (const auto& value : qAsConst(values)) {
        const QString mountPoint = value.toString();
        if (!mountPoint.isEmpty() && !mountPoints.contains(mountPoint))
            mountPoints.append(mountPoint);
    }
    return mountPoints;
}

BlockDevice deviceOf(const QJsonObject& object)
{
    BlockDevice device;
    device.path = textOf(object.value(QLatin1String("path")));
    device.type = textOf(object.value(QLatin1String("type")));
    device.size = sizeOf(object.value(QLatin1String("size")));
    device.removable = flagOf(object.value(QLatin1String("rm")));
    device.hotplug = flagOf(object.value(QLatin1String("hotplug")));
    device.transport = textOf(object.value(QLatin1String("tran")));
    device.readOnly = flagOf(object.value(QLatin1String("ro")));
    device.vendor = textOf(object.value(QLatin1String("vendor")));
    device.model = textOf(object.value(QLatin1String("model")));
    device.serial = textOf(object.value(QLatin1String("serial")));
    device.label = object.value(QLatin1String("label")).toString();
    device.fileSystem = textOf(object.value(QLatin1String("fstype")));
    device.partitionTable = textOf(object.value(QLatin1String("pttype")));
    device.mountPoints = mountPointsOf(object);
    const QJsonArray children = object.value(QLatin1String("children")).toArray();
    for (const auto& child : children)
        device.children.append(deviceOf(child.toObject()));
    return device;
}

} // namespace

QStringList lsblkArguments(const QString& device)
{
    QStringList arguments{
        QStringLiteral("--json"), QStringLiteral("--bytes"), QStringLiteral("--output"),
        // Without NAME it tells nothing of what lies on what, but lists all devices side by side.
        QStringLiteral(
            "NAME,PATH,TYPE,SIZE,RM,HOTPLUG,TRAN,RO,VENDOR,MODEL,SERIAL,LABEL,FSTYPE,PTTYPE,"
            "MOUNTPOINTS")};
    if (!device.isEmpty())
        arguments << QStringLiteral("--") << device;
    return arguments;
}

BlockDevices readBlockDevices(const QByteArray& json)
{
    QJsonParseError parseError{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    const QJsonValue list = document.object().value(QLatin1String("blockdevices"));
    if (!list.isArray()) {
        const QString why = parseError.error == QJsonParseError::NoError
                                ? QStringLiteral("no list of devices")
                                : parseError.errorString();
        return {{}, QStringLiteral("The answer of lsblk cannot be read: ") + why};
    }
    BlockDevices read;
    const QJsonArray values = list.toArray();
    for (const auto& value : values)
        read.devices.append(deviceOf(value.toObject()));
    return read;
}

BlockDevices blockDevices(const QString& device)
{
    const ProgramResult result =
        runProgram(QStringLiteral("lsblk"), lsblkArguments(device), limitMs);
    if (!result.error.isEmpty())
        return {{}, result.error};
    return readBlockDevices(result.output);
}
