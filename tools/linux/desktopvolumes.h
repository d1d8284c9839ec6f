// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "volumeservice.h"

#include <QDBusConnection>
#include <QString>
#include <QVariantMap>

#include <optional>

// VolumeService for everybody but root: asks the desktop's disk service (UDisks2), which decides by
// the system's rules and asks the user for a password where those say so.
class DesktopVolumes : public VolumeService
{
public:
    // folder is the session's, which also holds a link for every image whose mount point has white
    // space in its name; without one it is what the system has for that. Without a bus it is the
    // system's, which most commands never need and which is not connected to before.
    explicit DesktopVolumes(std::optional<QDBusConnection> bus = {}, const QString& folder = {});

    MountResult mountImage(const QString& image) override;
    QString unmountImage(const QString& path, bool force) override;
    QString unmount(const QString& device) override;
    MountResult mount(const QString& partition, const QString& label) override;
    QString createPartition(const QString& disk, const FatVolume& volume) override;
    QString format(const QString& partition, const FatVolume& volume) override;
    bool choosesFatBits() const override { return true; }
    QString eject(const QString& device) override;
    QString sessionFolder() const override;

    // How long a device that has just appeared is waited for, in milliseconds.
    void setPatience(int milliseconds) { patience = milliseconds; }

private:
    QDBusMessage call(const QString& object, const char* interface, const char* method,
                      const QVariantList& arguments) const;
    // The same, again and again while the object or the interface has not appeared yet.
    QDBusMessage callOnceThere(const QString& object, const char* interface, const char* method,
                               const QVariantList& arguments) const;
    // The service's object for a device, empty with error set when there is none.
    QString objectOf(const QString& device, QString* error) const;
    QVariant property(const QString& object, const char* interface, const char* name) const;
    MountResult mountObject(const QString& object, const QVariantMap& options) const;
    QString pathWithoutBlanks(const QString& path, const QString& device) const;

    std::optional<QDBusConnection> connection;
    QString links;
    int patience = 15000;
};
