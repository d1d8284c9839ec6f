// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "blockdevice.h"
#include "bootfiles.h"
#include "diskfile.h"
#include "request.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <functional>
#include <memory>
#include <sys/types.h>

// Makes a freshly partitioned disk bootable, step by step, and stops at the first step that fails.
// main() creates one and runs it once, as root. The programs lsblk, umount, syslinux, mount and
// sync are found on PATH; the caller sees to it that PATH is one to trust.
class BootableDisk
{
public:
    struct Setup
    {
        Request request;
        BootFiles bootFiles;
        // Who owns the files of the mounted partition.
        uid_t user = 0;
        gid_t group = 0;
        // Is told each step in one line.
        std::function<void(const QString&)> say;
        // Set from a signal handler: the step that runs is finished, the next does not begin.
        const std::atomic<bool>* stopped = nullptr;
    };

    explicit BootableDisk(const Setup& settings);

    // Returns the step that failed and why, as one line; empty on success. Until the line "Writing
    // the boot code" has been said, the disk is as it was.
    QString make();

private:
    // Each step returns why it failed, or an empty text.
    QString look();
    QString unmount();
    QString writeBootCode();
    QString installBootLoader();
    QString mount();
    QString copyModules();
    QString writeOut();

    // Asks for the facts anew; fails when another disk has the name by now.
    QString renewFacts();
    QString createMountPoint() const;
    // The path of the first partition's device node.
    QString partitionPath() const;

    Setup setup;
    BlockDevice disk;
    QByteArray table;
    // Holds the lock, from before the first change to the end.
    std::unique_ptr<DiskFile> locked;
};
