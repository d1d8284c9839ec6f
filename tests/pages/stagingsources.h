// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "copyplug.h"
#include "stagingmodel.h"

#include <QTemporaryDir>

#include <memory>
#include <vector>

// The files and folders that the random test adds. Their names meet each other in the image: the
// same in two places, a blank at either end, a folder with the name of a file.
class StagingSources
{
public:
    static constexpr int plugCount = 2;

    StagingSources();

    // Writes again what is gone, as some clashes delete sources.
    void restore() const;
    // All of it, the plugs included.
    const StagingModel::Disk& content() const { return disk; }
    // What may be added, by absolute path.
    const QStringList& files() const { return filePaths; }
    const QStringList& folders() const { return folderPaths; }
    CopyPlug& plug(int number) const { return *plugs.at(size_t(number)); }

private:
    QTemporaryDir folder;
    StagingModel::Disk disk;
    QStringList filePaths;
    QStringList folderPaths;
    std::vector<std::unique_ptr<CopyPlug>> plugs;
};
