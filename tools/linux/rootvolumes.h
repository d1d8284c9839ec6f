// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "volumeservice.h"

// VolumeService for root, on top of the system's tools on PATH.
class RootVolumes : public VolumeService
{
public:
    // The folders below which media of the user and images are mounted.
    explicit RootVolumes(const QString& mediaFolder = defaultMediaFolder(),
                         const QString& imageFolder = "/run/korvex-iso-editor");

    // "/media/" and the name of the user for whom root acts.
    static QString defaultMediaFolder();

    MountResult mountImage(const QString& image) override;
    QString unmountImage(const QString& path, bool force) override;
    QString unmount(const QString& device) override;
    MountResult mount(const QString& partition, const QString& label) override;
    QString createPartition(const QString& disk, const FatVolume& volume) override;
    QString format(const QString& partition, const FatVolume& volume) override;
    bool choosesFatBits() const override { return false; }
    QString eject(const QString& device) override;
    QString sessionFolder() const override { return images; }

private:
    QString unmountPath(const QString& path, const QStringList& options) const;

    QString media;
    QString images;
};
