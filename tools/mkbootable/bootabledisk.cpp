// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootabledisk.h"

#include "commands.h"
#include "diskrefusal.h"
#include "lsblk.h"
#include "mbr.h"
#include "modules.h"
#include "programrun.h"
#include "steps.h"

#include <QDir>
#include <QFileInfo>

namespace
{

// A slow stick with much to write takes minutes.
constexpr int commandLimitMs = 300000;
// The device manager holds a disk for as long as it reads what is on it.
constexpr int lockLimitMs = 10000;
constexpr int mountTries = 3;

} // namespace

BootableDisk::BootableDisk(const Setup& settings)
    : setup(settings)
{
}

QString BootableDisk::make()
{
    const auto step = [this](const QString& name, QString (BootableDisk::*run)()) {
        return Step{name, [this, run] { return (this->*run)(); }};
    };
    const QString partition = ::partitionPath(setup.request.disk, 1);
    const QVector<Step> steps{
        step(QStringLiteral("Checking %1").arg(setup.request.disk), &BootableDisk::look),
        step(QStringLiteral("Unmounting %1").arg(partition), &BootableDisk::unmount),
        step(QStringLiteral("Writing the boot code to %1").arg(setup.request.disk),
             &BootableDisk::writeBootCode),
        step(QStringLiteral("Installing the boot loader on %1").arg(partition),
             &BootableDisk::installBootLoader),
        step(QStringLiteral("Mounting %1 at %2").arg(partition, setup.request.mountPoint),
             &BootableDisk::mount),
        step(QStringLiteral("Copying the boot loader's modules"), &BootableDisk::copyModules),
        step(QStringLiteral("Writing everything out"), &BootableDisk::writeOut),
    };
    return runSteps(steps, setup.say, setup.stopped);
}

QString BootableDisk::look()
{
    if (!setup.bootFiles.error.isEmpty())
        return setup.bootFiles.error;
    const BlockDevices found = blockDevices(setup.request.disk);
    if (!found.error.isEmpty())
        return found.error;
    if (found.devices.size() != 1)
        return QStringLiteral("%1 is not one disk").arg(setup.request.disk);
    disk = found.devices.first();
    const QString refused = refusal(disk);
    if (!refused.isEmpty())
        return refused;
    const BlockDevice* partition = disk.partition(1);
    if (!partition)
        return QStringLiteral("%1 has no first partition").arg(disk.path);
    DiskFile whole(disk.path, DiskFile::Access::Read);
    table = whole.firstSector();
    if (!whole.error().isEmpty())
        return whole.error();
    const QString wrongTable = mbrRefusal(table, disk.size);
    if (!wrongTable.isEmpty())
        return wrongTable;
    DiskFile first(partition->path, DiskFile::Access::Read);
    const QByteArray sector = first.firstSector();
    if (!first.error().isEmpty())
        return first.error();
    const QString wrongFileSystem = fatRefusal(sector);
    if (!wrongFileSystem.isEmpty())
        return wrongFileSystem;
    return mountPointRefusal(setup.request.mountPoint, *partition);
}

QString BootableDisk::renewFacts()
{
    const BlockDevices found = blockDevices(disk.path);
    if (!found.error.isEmpty())
        return found.error;
    const BlockDevice now = found.devices.value(0);
    if (!now.isSameDisk(disk) || !now.partition(1))
        return QStringLiteral("%1 is another disk than before").arg(disk.path);
    disk = now;
    return refusal(disk);
}

QString BootableDisk::partitionPath() const
{
    return ::partitionPath(disk.path, 1);
}

// What was mounted last lies on top.
QString BootableDisk::unmount()
{
    if (!locked) {
        locked = std::make_unique<DiskFile>(disk.path, DiskFile::Access::Read);
        if (!locked->error().isEmpty() || !locked->lock(lockLimitMs))
            return locked->error();
    }
    const QString changed = renewFacts();
    if (!changed.isEmpty())
        return changed;
    const QStringList mountPoints = disk.partition(1)->mountPoints;
    for (int index = mountPoints.size() - 1; index >= 0; --index) {
        const ProgramResult result = runProgram(
            QStringLiteral("umount"), unmountArguments(mountPoints.at(index)), commandLimitMs);
        if (!result.error.isEmpty())
            return result.error;
    }
    return {};
}

QString BootableDisk::writeBootCode()
{
    const QString changed = renewFacts();
    if (!changed.isEmpty())
        return changed;
    const QByteArray bootCode = fileContent(setup.bootFiles.bootCode);
    const QByteArray wanted = bootableMbr(table, bootCode);
    if (wanted.isEmpty())
        return QStringLiteral("%1 is no boot code").arg(setup.bootFiles.bootCode);
    DiskFile whole(disk.path, DiskFile::Access::Exclusive);
    const QByteArray before = whole.firstSector();
    const qint64 size = whole.size();
    if (!whole.error().isEmpty())
        return whole.error();
    if (before != table || size != disk.size)
        return QStringLiteral("%1 has changed since it was checked").arg(disk.path);
    if (!whole.writeFirstSector(wanted))
        return whole.error();
    if (whole.firstSector() != wanted)
        return QStringLiteral("%1 does not hold what was written").arg(disk.path);
    return {};
}

QString BootableDisk::installBootLoader()
{
    const QString changed = renewFacts();
    if (!changed.isEmpty())
        return changed;
    if (!disk.partition(1)->mountPoints.isEmpty())
        return QStringLiteral("%1 has been mounted meanwhile").arg(partitionPath());
    return runProgram(QStringLiteral("syslinux"), installArguments(partitionPath()), commandLimitMs)
        .error;
}

QString BootableDisk::createMountPoint() const
{
    // Unmounting may have brought files to light that lay below.
    const QString refused = mountPointRefusal(setup.request.mountPoint, *disk.partition(1));
    if (!refused.isEmpty())
        return refused;
    if (!QDir().mkpath(setup.request.mountPoint))
        return QStringLiteral("%1 cannot be created").arg(setup.request.mountPoint);
    return {};
}

QString BootableDisk::mount()
{
    // The desktop may have been quicker and mounted it somewhere.
    QString error = unmount();
    if (error.isEmpty())
        error = renewFacts();
    if (!error.isEmpty())
        return error;
    const QStringList arguments =
        mountArguments(partitionPath(), setup.request.mountPoint, setup.user, setup.group);
    // Who mounted it before may just now remove the folder that we have found.
    for (int attempt = 0; attempt < mountTries; ++attempt) {
        error = createMountPoint();
        if (!error.isEmpty())
            return error;
        error = runProgram(QStringLiteral("mount"), arguments, commandLimitMs).error;
        if (error.isEmpty())
            break;
    }
    if (error.isEmpty())
        error = renewFacts();
    if (!error.isEmpty())
        return error;
    const QStringList mountPoints = disk.partition(1)->mountPoints;
    if (mountPoints != QStringList(QFileInfo(setup.request.mountPoint).canonicalFilePath()))
        return QStringLiteral("%1 is mounted at: %2")
            .arg(partitionPath(), mountPoints.join(QStringLiteral(", ")));
    return {};
}

QString BootableDisk::copyModules()
{
    return ::copyModules(setup.bootFiles, setup.request.mountPoint);
}

QString BootableDisk::writeOut()
{
    return runProgram(QStringLiteral("sync"), syncArguments(setup.request.mountPoint),
                      commandLimitMs)
        .error;
}
