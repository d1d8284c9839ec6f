// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QMap>
#include <QMutex>
#include <QThread>

// A stand-in for the desktop's disk service on the session bus. It knows the disk /dev/sdb and what
// is made of it, answers from a thread of its own, and records every call.
class DiskService : public QDBusVirtualObject
{
    Q_OBJECT

public:
    DiskService();
    ~DiskService() override;

    // Calls since construction: "object Interface.Method argument, argument".
    QStringList calls() const;
    // Lets the next calls of a method fail, one after the other, by these D-Bus errors.
    void fail(const QString& method, const QStringList& errors);
    // What the service answers to a mount.
    void setMountPath(const QString& path);
    // The content of the file behind the descriptor that was handed over last.
    QByteArray receivedFile() const;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    QVariantList answerTo(const QString& method, const QVariantList& arguments);

    mutable QMutex mutex;
    QThread thread;
    QStringList recorded;
    QMap<QString, QStringList> failures;
    QString mountPath = "/media/user/X";
    QByteArray file;
};
