// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskservice.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QFile>

namespace
{

const QString busName = "diskservice";
const QString service = "org.freedesktop.UDisks2";
const QString root = "/org/freedesktop/UDisks2";

QString textOf(const QVariant& argument)
{
    if (argument.userType() == qMetaTypeId<QDBusUnixFileDescriptor>())
        return "file";
    if (argument.userType() != qMetaTypeId<QDBusArgument>())
        return argument.toString();
    const auto map = qdbus_cast<QVariantMap>(argument);
    QStringList pairs;
    for (auto pair = map.begin(); pair != map.end(); ++pair)
        pairs << pair.key() + '=' + pair->toString();
    return '{' + pairs.join(' ') + '}';
}

QVariant object(const QString& name)
{
    return QVariant::fromValue(QDBusObjectPath(root + name));
}

} // namespace

DiskService::DiskService()
{
    QDBusConnection connection =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, busName);
    if (!connection.registerVirtualObject(root, this, QDBusConnection::SubPath))
        qFatal("No session bus for the test");
    moveToThread(&thread);
    thread.start();
    if (!connection.registerService(service))
        qFatal("The disk service's name is taken");
}

DiskService::~DiskService()
{
    QDBusConnection connection(busName);
    connection.unregisterService(service);
    connection.unregisterObject(root);
    QDBusConnection::disconnectFromBus(busName);
    thread.quit();
    thread.wait();
}

QStringList DiskService::calls() const
{
    const QMutexLocker locker(&mutex);
    return recorded;
}

void DiskService::fail(const QString& method, const QStringList& errors)
{
    const QMutexLocker locker(&mutex);
    failures[method] = errors;
}

void DiskService::setMountPath(const QString& path)
{
    const QMutexLocker locker(&mutex);
    mountPath = path;
}

QByteArray DiskService::receivedFile() const
{
    const QMutexLocker locker(&mutex);
    return file;
}

QString DiskService::introspect(const QString& /*path*/) const
{
    return {};
}

bool DiskService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    const QMutexLocker locker(&mutex);
    QStringList texts;
    const QVariantList arguments = message.arguments();
    for (const QVariant& argument : arguments)
        texts << textOf(argument);
    recorded << (message.path().mid(root.size() + 1) + ' ' + message.interface().section('.', -1) +
                 '.' + message.member() + ' ' + texts.join(", "))
                    .trimmed();
    QStringList& errors = failures[message.member()];
    if (!errors.isEmpty())
        return connection.send(message.createErrorReply(errors.takeFirst(), "the service says no"));
    return connection.send(message.createReply(answerTo(message.member(), arguments)));
}

QVariantList DiskService::answerTo(const QString& method, const QVariantList& arguments)
{
    if (method == "ResolveDevice") {
        const QString path = qdbus_cast<QVariantMap>(arguments.value(0)).value("path").toString();
        QList<QDBusObjectPath> found;
        if (!path.contains("unknown"))
            found << QDBusObjectPath(root + "/block_devices/" + path.section('/', -1));
        return {QVariant::fromValue(found)};
    }
    if (method == "LoopSetup") {
        const auto descriptor = qvariant_cast<QDBusUnixFileDescriptor>(arguments.value(0));
        QFile received;
        if (received.open(descriptor.fileDescriptor(), QIODevice::ReadOnly))
            file = received.readAll();
        return {object("/block_devices/loop3")};
    }
    if (method == "CreatePartition")
        return {object("/block_devices/sdb1")};
    if (method == "Get")
        return {QVariant::fromValue(QDBusVariant(object("/drives/Cruzer")))};
    if (method == "Mount")
        return {mountPath};
    return {};
}
