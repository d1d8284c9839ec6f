// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "bootfiles.h"
#include "diskfile.h"
#include "diskutilfacts.h"
#include "loaderfile.h"
#include "request.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <functional>
#include <memory>

// Makes a freshly partitioned disk bootable where diskutil rules over the disks and there is no
// installer of the boot loader: the loader's files are copied into the mounted partition, and then
// its sectors are filled in while nothing is mounted. makeBootable() creates one and runs it once,
// as root. The programs diskutil and sync are found on PATH.
class MacBootableDisk
{
public:
    struct Setup
    {
        Request request;
        BootFiles bootFiles;
        // Is told each step in one line.
        std::function<void(const QString&)> say;
        // Set from a signal handler: the step that runs is finished, the next does not begin.
        const std::atomic<bool>* stopped = nullptr;
        // How long to wait before what the system did not let happen is tried again.
        int pauseMs = 1000;
    };

    explicit MacBootableDisk(const Setup& settings);

    // Returns the step that failed and why, as one line; empty on success. Until the line "Copying
    // the boot loader" has been said, nothing on the disk has been changed by us.
    QString make();

private:
    // Each step returns why it failed, or an empty text.
    QString look();
    QString mount();
    QString copyFiles();
    QString writeOut();
    QString unmount();
    QString installBootLoader();
    QString writeBootCode();

    // What look() makes sure of: that the files go together, and with what the disk holds.
    QString lookAtFiles();
    QString lookAtSectors();
    // Asks for the facts anew; fails when another disk has the name by now.
    QString renewFacts();
    QString readFacts();
    QString mountOnce();
    // Opens the disk for writing, which the system does not allow while a part of it is mounted.
    QString openForWriting();
    const BlockDevice& partition() const { return disk.device.children.first(); }

    Setup setup;
    DiskutilFacts disk;
    LoaderFile loader;
    QByteArray loaderCode;
    QByteArray table;
    // The table as it is to be, with the boot code.
    QByteArray bootableTable;
    // Open from the first sector that is written to the last: with every end of writing the system
    // looks at the disk anew, and mounts what it finds.
    std::unique_ptr<DiskFile> writing;
};
