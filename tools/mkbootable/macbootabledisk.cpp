// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "macbootabledisk.h"

#include "commands.h"
#include "fatreader.h"
#include "loaderinstaller.h"
#include "mbr.h"
#include "modules.h"
#include "programrun.h"
#include "steps.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

namespace
{

// A slow stick with much to write takes minutes.
constexpr int commandLimitMs = 300000;
// After every change the system looks at a disk for a while, and its partition is gone meanwhile.
constexpr int tries = 5;

QString runDiskutil(const QStringList& arguments)
{
    return runProgram(QStringLiteral("diskutil"), arguments, commandLimitMs).error;
}

} // namespace

MacBootableDisk::MacBootableDisk(const Setup& settings)
    : setup(settings)
    , loader(fileContent(setup.bootFiles.loader))
    , loaderCode(fileContent(setup.bootFiles.bootSector))
{
}

QString MacBootableDisk::make()
{
    const auto step = [this](const QString& name, QString (MacBootableDisk::*run)()) {
        return Step{name, [this, run] { return (this->*run)(); }};
    };
    const QString& whole = setup.request.disk;
    const QString first = diskutilPartition(whole, 1);
    const QString mounting =
        QStringLiteral("Mounting %1 at %2").arg(first, setup.request.mountPoint);
    const QVector<Step> steps{
        step(QStringLiteral("Checking %1").arg(whole), &MacBootableDisk::look),
        step(mounting, &MacBootableDisk::mount),
        step(QStringLiteral("Copying the boot loader"), &MacBootableDisk::copyFiles),
        step(QStringLiteral("Writing everything out"), &MacBootableDisk::writeOut),
        step(QStringLiteral("Unmounting %1").arg(whole), &MacBootableDisk::unmount),
        step(QStringLiteral("Installing the boot loader on %1").arg(first),
             &MacBootableDisk::installBootLoader),
        step(QStringLiteral("Writing the boot code to %1").arg(whole),
             &MacBootableDisk::writeBootCode),
        step(mounting, &MacBootableDisk::mount),
    };
    return runSteps(steps, setup.say, setup.stopped);
}

QString MacBootableDisk::look()
{
    const QString wrongFiles = lookAtFiles();
    if (!wrongFiles.isEmpty())
        return wrongFiles;
    const QString unknown = readFacts();
    if (!unknown.isEmpty())
        return unknown;
    const QString wrongSectors = lookAtSectors();
    if (!wrongSectors.isEmpty())
        return wrongSectors;
    return mountPointRefusal(setup.request.mountPoint, partition());
}

QString MacBootableDisk::lookAtFiles()
{
    if (!setup.bootFiles.error.isEmpty())
        return setup.bootFiles.error;
    if (!loader.error().isEmpty())
        return QStringLiteral("%1 %2").arg(setup.bootFiles.loader, loader.error());
    return {};
}

QString MacBootableDisk::lookAtSectors()
{
    if (disk.blockSize != sectorSize)
        return QStringLiteral("%1 has sectors of %2 bytes, the boot loader needs %3")
            .arg(disk.device.path)
            .arg(disk.blockSize)
            .arg(sectorSize);
    DiskFile whole(rawNode(disk.device.path), DiskFile::Access::Read);
    table = whole.firstSector();
    if (!whole.error().isEmpty())
        return whole.error();
    const QString wrongTable = mbrRefusal(table, disk.device.size);
    if (!wrongTable.isEmpty())
        return wrongTable;
    bootableTable = bootableMbr(table, fileContent(setup.bootFiles.bootCode));
    if (bootableTable.isEmpty())
        return QStringLiteral("%1 is no boot code").arg(setup.bootFiles.bootCode);
    FatReader volume(whole, firstPartitionStart(table));
    if (!volume.error().isEmpty())
        return volume.error();
    if (loader.bootSector(loaderCode, volume.read(0, sectorSize), 0).isEmpty())
        return QStringLiteral("%1 does not belong to %2")
            .arg(setup.bootFiles.bootSector, setup.bootFiles.loader);
    return {};
}

QString MacBootableDisk::readFacts()
{
    disk = diskutilInfo(setup.request.disk);
    if (!disk.error.isEmpty())
        return disk.error;
    const DiskutilFacts first = diskutilInfo(diskutilPartition(disk.device.path, 1));
    if (!first.error.isEmpty())
        return first.error;
    disk.device.children = {first.device};
    return diskutilRefusal(disk);
}

QString MacBootableDisk::renewFacts()
{
    const BlockDevice before = disk.device;
    const QString error = readFacts();
    if (error.isEmpty() && !disk.device.isSameDisk(before))
        return QStringLiteral("%1 is another disk than before").arg(before.path);
    if (!error.isEmpty())
        disk.device = before;
    return error;
}

QString MacBootableDisk::mountOnce()
{
    QString error = renewFacts();
    if (!error.isEmpty())
        return error;
    const auto isMountedThere = [this] {
        return partition().mountPoints ==
               QStringList(QFileInfo(setup.request.mountPoint).canonicalFilePath());
    };
    if (isMountedThere())
        return {};
    // The desktop has been quicker and mounted it somewhere.
    if (!partition().mountPoints.isEmpty())
        error = unmount();
    if (error.isEmpty())
        error = mountPointRefusal(setup.request.mountPoint, partition());
    if (!error.isEmpty())
        return error;
    if (!QDir().mkpath(setup.request.mountPoint))
        return QStringLiteral("%1 cannot be created").arg(setup.request.mountPoint);
    error = runDiskutil(diskutilMountArguments(partition().path, setup.request.mountPoint));
    if (error.isEmpty())
        error = renewFacts();
    if (!error.isEmpty() || isMountedThere())
        return error;
    return QStringLiteral("%1 is mounted at: %2")
        .arg(partition().path, partition().mountPoints.join(QStringLiteral(", ")));
}

QString MacBootableDisk::mount()
{
    QString error = mountOnce();
    for (int again = 1; again < tries && !error.isEmpty(); ++again) {
        QThread::msleep(static_cast<unsigned long>(setup.pauseMs));
        error = mountOnce();
    }
    return error;
}

QString MacBootableDisk::copyFiles()
{
    const QString error =
        writeInto(setup.request.mountPoint + QStringLiteral("/ldlinux.sys"), loader.content());
    return error.isEmpty() ? copyModules(setup.bootFiles, setup.request.mountPoint) : error;
}

QString MacBootableDisk::writeOut()
{
    return runProgram(QStringLiteral("sync"), {}, commandLimitMs).error;
}

QString MacBootableDisk::unmount()
{
    QString error = renewFacts();
    if (error.isEmpty())
        error = runDiskutil(diskutilUnmountDiskArguments(disk.device.path));
    if (error.isEmpty())
        error = renewFacts();
    if (error.isEmpty() && !partition().mountPoints.isEmpty())
        return QStringLiteral("%1 is still mounted").arg(partition().path);
    return error;
}

QString MacBootableDisk::openForWriting()
{
    QString error;
    for (int attempt = 0; attempt < tries; ++attempt) {
        error = renewFacts();
        if (error.isEmpty() && !partition().mountPoints.isEmpty())
            error = unmount();
        if (error.isEmpty()) {
            writing =
                std::make_unique<DiskFile>(rawNode(disk.device.path), DiskFile::Access::Exclusive);
            error = writing->error();
        }
        if (error.isEmpty())
            return {};
        QThread::msleep(static_cast<unsigned long>(setup.pauseMs));
    }
    return error;
}

QString MacBootableDisk::installBootLoader()
{
    const QString error = openForWriting();
    if (!error.isEmpty())
        return error;
    if (writing->firstSector() != table)
        return QStringLiteral("%1 has changed since it was checked").arg(disk.device.path);
    return installLoader(*writing, firstPartitionStart(table), loader, loaderCode);
}

QString MacBootableDisk::writeBootCode()
{
    if (!writing->writeFirstSector(bootableTable))
        return writing->error();
    const QByteArray written = writing->firstSector();
    writing.reset();
    if (written != bootableTable)
        return QStringLiteral("%1 does not hold what was written").arg(disk.device.path);
    return {};
}
