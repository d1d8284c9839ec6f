// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskutilfacts.h"

#include "diskrefusal.h"
#include "plist.h"
#include "programrun.h"

namespace
{

// It waits for disks that have to spin up first.
constexpr int limitMs = 60000;

QString typeOf(const QVariantMap& facts)
{
    if (!facts.value(QStringLiteral("OpticalDeviceType")).toString().isEmpty() ||
        !facts.value(QStringLiteral("OpticalMediaType")).toString().isEmpty())
        return QStringLiteral("rom");
    return facts.value(QStringLiteral("WholeDisk")).toBool() ? QStringLiteral("disk")
                                                             : QStringLiteral("part");
}

// The first of the keys that is there; systems name some facts differently.
QVariant firstOf(const QVariantMap& facts, const QStringList& keys)
{
    for (const QString& key : keys) {
        if (facts.contains(key))
            return facts.value(key);
    }
    return {};
}

BlockDevice deviceOf(const QVariantMap& facts)
{
    BlockDevice device;
    device.path = facts.value(QStringLiteral("DeviceNode")).toString();
    device.type = typeOf(facts);
    device.size =
        firstOf(facts, {QStringLiteral("TotalSize"), QStringLiteral("Size")}).toLongLong();
    device.removable =
        firstOf(facts, {QStringLiteral("RemovableMedia"), QStringLiteral("Removable")}).toBool();
    device.transport = facts.value(QStringLiteral("BusProtocol")).toString().toLower();
    device.readOnly =
        !firstOf(facts, {QStringLiteral("WritableMedia"), QStringLiteral("Writable")}).toBool();
    device.model = facts.value(QStringLiteral("MediaName")).toString().trimmed();
    device.serial = facts.value(QStringLiteral("DeviceTreePath")).toString();
    device.label = facts.value(QStringLiteral("VolumeName")).toString();
    device.fileSystem = facts.value(QStringLiteral("FilesystemType")).toString();
    const QString mountPoint = facts.value(QStringLiteral("MountPoint")).toString();
    if (!mountPoint.isEmpty())
        device.mountPoints.append(mountPoint);
    return device;
}

} // namespace

QStringList diskutilInfoArguments(const QString& device)
{
    return {QStringLiteral("info"), QStringLiteral("-plist"), device};
}

DiskutilFacts readDiskutilInfo(const QByteArray& plist)
{
    DiskutilFacts read;
    const Plist list = readPlist(plist);
    const QVariantMap facts = list.value.toMap();
    const QString message = facts.value(QStringLiteral("ErrorMessage")).toString();
    if (!list.error.isEmpty())
        read.error = QStringLiteral("The answer of diskutil cannot be read: ") + list.error;
    else if (!message.isEmpty())
        read.error = QStringLiteral("diskutil failed: ") + message;
    else if (!facts.contains(QStringLiteral("DeviceNode")))
        read.error = QStringLiteral("The answer of diskutil tells of no device");
    if (!read.error.isEmpty())
        return read;
    read.device = deviceOf(facts);
    const QVariant internal = facts.value(QStringLiteral("Internal"));
    read.isExternal = internal.isValid() && !internal.toBool();
    // Older systems do not tell, and have no other devices but images.
    const QString kind = facts.value(QStringLiteral("VirtualOrPhysical")).toString();
    read.isPhysical =
        kind != QLatin1String("Virtual") && read.device.transport != QLatin1String("disk image");
    read.blockSize = facts.value(QStringLiteral("DeviceBlockSize")).toLongLong();
    return read;
}

DiskutilFacts diskutilInfo(const QString& device)
{
    const ProgramResult result =
        runProgram(QStringLiteral("diskutil"), diskutilInfoArguments(device), limitMs);
    DiskutilFacts read = readDiskutilInfo(result.output);
    // A failing diskutil may tell why in its answer.
    if (!result.error.isEmpty() && !read.error.startsWith(QLatin1String("diskutil failed")))
        read.error = result.error;
    return read;
}

QString diskutilRefusal(const DiskutilFacts& disk)
{
    const QString refused = refusal(disk.device);
    if (!refused.isEmpty())
        return refused;
    if (!disk.isPhysical)
        return QStringLiteral("%1 is not a piece of hardware").arg(disk.device.path);
    if (!disk.isExternal)
        return QStringLiteral("%1 is built in").arg(disk.device.path);
    if (!disk.device.removable)
        return QStringLiteral("%1 is not removable").arg(disk.device.path);
    return {};
}

QString rawNode(const QString& device)
{
    const QString nodes = QStringLiteral("/dev/disk");
    return device.startsWith(nodes) ? QStringLiteral("/dev/rdisk") + device.mid(nodes.size())
                                    : device;
}

QString diskutilPartition(const QString& disk, int number)
{
    return disk + QStringLiteral("s%1").arg(number);
}
