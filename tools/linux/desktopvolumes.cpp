// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "desktopvolumes.h"

#include "devicename.h"
#include "mountedvolumes.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>

#include <utility>

namespace
{

const QLatin1String serviceName("org.freedesktop.UDisks2");
const QLatin1String managerObject("/org/freedesktop/UDisks2/Manager");
constexpr const char* managerInterface = "org.freedesktop.UDisks2.Manager";
constexpr const char* blockInterface = "org.freedesktop.UDisks2.Block";
constexpr const char* tableInterface = "org.freedesktop.UDisks2.PartitionTable";
constexpr const char* volumeInterface = "org.freedesktop.UDisks2.Filesystem";
constexpr const char* loopInterface = "org.freedesktop.UDisks2.Loop";
constexpr const char* driveInterface = "org.freedesktop.UDisks2.Drive";
constexpr quint64 partitionStart = quint64(1024) * 1024;
// Formatting takes its time, and so does a user who looks for a password.
constexpr int answerLimitMs = 15 * 60 * 1000;
constexpr int pollMs = 100;

QString errorOf(const QDBusMessage& reply)
{
    return reply.type() == QDBusMessage::ErrorMessage ? reply.errorMessage() : QString();
}

template<typename Value>
Value firstOf(const QDBusMessage& reply)
{
    return reply.arguments().isEmpty() ? Value() : qvariant_cast<Value>(reply.arguments().first());
}

// Not there yet, as opposed to refused.
bool isMissing(const QDBusMessage& reply)
{
    const QString name = reply.errorName();
    return name == "org.freedesktop.DBus.Error.UnknownObject" ||
           name == "org.freedesktop.DBus.Error.UnknownInterface" ||
           name == "org.freedesktop.DBus.Error.UnknownMethod";
}

QString mountPathOfDevice(const QString& device)
{
    const QList<MountedVolume> table = mountTable();
    for (const MountedVolume& volume : table)
        if (volume.source == device)
            return volume.path;
    return {};
}

} // namespace

DesktopVolumes::DesktopVolumes(std::optional<QDBusConnection> bus, const QString& folder)
    : connection(std::move(bus))
    , links(folder)
{
}

QString DesktopVolumes::sessionFolder() const
{
    if (!links.isEmpty())
        return links;
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + "/korvex-iso-editor";
}

QDBusMessage DesktopVolumes::call(const QString& object, const char* interface, const char* method,
                                  const QVariantList& arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(serviceName, object, interface, method);
    message.setArguments(arguments);
    message.setInteractiveAuthorizationAllowed(true);
    return (connection ? *connection : QDBusConnection::systemBus())
        .call(message, QDBus::Block, answerLimitMs);
}

QDBusMessage DesktopVolumes::callOnceThere(const QString& object, const char* interface,
                                           const char* method, const QVariantList& arguments) const
{
    QElapsedTimer timer;
    timer.start();
    QDBusMessage reply = call(object, interface, method, arguments);
    while (isMissing(reply) && timer.elapsed() < patience) {
        QThread::msleep(pollMs);
        reply = call(object, interface, method, arguments);
    }
    return reply;
}

QString DesktopVolumes::objectOf(const QString& device, QString* error) const
{
    const QVariantMap wanted{{"path", device}};
    const QDBusMessage reply =
        call(managerObject, managerInterface, "ResolveDevice", {wanted, QVariantMap()});
    *error = errorOf(reply);
    if (!error->isEmpty())
        return {};
    const auto found = qdbus_cast<QList<QDBusObjectPath>>(firstOf<QDBusArgument>(reply));
    if (found.isEmpty())
        *error = "The disk service does not know " + device;
    return found.isEmpty() ? QString() : found.first().path();
}

QVariant DesktopVolumes::property(const QString& object, const char* interface,
                                  const char* name) const
{
    const QDBusMessage reply =
        call(object, "org.freedesktop.DBus.Properties", "Get", {interface, name});
    return firstOf<QDBusVariant>(reply).variant();
}

MountResult DesktopVolumes::mountObject(const QString& object, const QVariantMap& options) const
{
    const QDBusMessage reply = callOnceThere(object, volumeInterface, "Mount", {options});
    return {{}, firstOf<QString>(reply), errorOf(reply)};
}

MountResult DesktopVolumes::mountImage(const QString& image)
{
    QFile file(image);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, {}, file.errorString()};
    const QVariantMap options{{"read-only", true}, {"no-part-scan", true}};
    const QDBusMessage reply =
        call(managerObject, managerInterface, "LoopSetup",
             {QVariant::fromValue(QDBusUnixFileDescriptor(file.handle())), options});
    if (!errorOf(reply).isEmpty())
        return {{}, {}, errorOf(reply)};
    const QString object = firstOf<QDBusObjectPath>(reply).path();
    MountResult result = mountObject(object, {{"options", "ro"}});
    if (!result.error.isEmpty()) {
        call(object, loopInterface, "Delete", {QVariantMap()});
        return result;
    }
    // Unmounting releases the image then.
    call(object, loopInterface, "SetAutoclear", {true, QVariantMap()});
    result.device = "/dev/" + object.section('/', -1);
    result.path = pathWithoutBlanks(result.path, result.device);
    return result;
}

QString DesktopVolumes::pathWithoutBlanks(const QString& path, const QString& device) const
{
    if (!path.contains(QRegularExpression("\\s")))
        return path;
    const QString link = sessionFolder() + '/' + deviceName(device);
    QDir().mkpath(sessionFolder());
    QFile::remove(link);
    return QFile::link(path, link) ? link : path;
}

QString DesktopVolumes::unmountImage(const QString& path, bool force)
{
    const QString target = QFile::symLinkTarget(path);
    const bool isLink = !target.isEmpty() && path.startsWith(sessionFolder() + '/');
    const QString device = volumeMountedAt(mountTable(), isLink ? target : path).source;
    if (device.isEmpty())
        return "Nothing is mounted at " + path;
    QString error;
    const QString object = objectOf(device, &error);
    if (!error.isEmpty())
        return error;
    QVariantMap options;
    if (force)
        options.insert("force", true);
    error = errorOf(call(object, volumeInterface, "Unmount", {options}));
    if (error.isEmpty() && isLink)
        QFile::remove(path);
    return error;
}

QString DesktopVolumes::unmount(const QString& device)
{
    QString error;
    const QString object = objectOf(device, &error);
    const QList<MountedVolume> table = mountTable();
    for (const MountedVolume& volume : table) {
        if (volume.source == device && error.isEmpty())
            error = errorOf(call(object, volumeInterface, "Unmount", {QVariantMap()}));
    }
    return error;
}

MountResult DesktopVolumes::mount(const QString& partition, const QString& /*label*/)
{
    QString error;
    const QString object = objectOf(partition, &error);
    if (!error.isEmpty())
        return {{}, {}, error};
    MountResult result = mountObject(object, {});
    result.device = partition;
    // The desktop may have been faster.
    const QString path = mountPathOfDevice(partition);
    if (!result.error.isEmpty() && !path.isEmpty())
        return {partition, path, {}};
    return result;
}

QString DesktopVolumes::createPartition(const QString& disk, const FatVolume& volume)
{
    QString error;
    const QString object = objectOf(disk, &error);
    if (!error.isEmpty())
        return error;
    error = errorOf(call(object, blockInterface, "Format", {"dos", QVariantMap()}));
    if (!error.isEmpty())
        return error;
    // A size of 0 means all there is.
    return errorOf(
        callOnceThere(object, tableInterface, "CreatePartition",
                      {QVariant::fromValue(partitionStart), QVariant::fromValue(quint64(0)),
                       "0x" + volume.partitionType(), "", QVariantMap()}));
}

QString DesktopVolumes::format(const QString& partition, const FatVolume& volume)
{
    QString error;
    const QString object = objectOf(partition, &error);
    if (!error.isEmpty())
        return error;
    const QVariantMap options{{"label", volume.label}, {"update-partition-type", true}};
    return errorOf(callOnceThere(object, blockInterface, "Format", {"vfat", options}));
}

QString DesktopVolumes::eject(const QString& device)
{
    QString error;
    const QString object = objectOf(device, &error);
    if (!error.isEmpty())
        return error;
    const auto drive = qvariant_cast<QDBusObjectPath>(property(object, blockInterface, "Drive"));
    return errorOf(call(drive.path(), driveInterface, "Eject", {QVariantMap()}));
}
