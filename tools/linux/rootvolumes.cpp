// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "rootvolumes.h"

#include "followedprogram.h"
#include "mountedvolumes.h"
#include "programrun.h"

#include <QDir>
#include <QTemporaryDir>

#include <pwd.h>
#include <unistd.h>

namespace
{

constexpr int toolLimitMs = 120000;

const passwd* actingUser()
{
    for (const char* const variable : {"SUDO_UID", "PKEXEC_UID"}) {
        bool isNumber = false;
        const uint id = qEnvironmentVariable(variable).toUInt(&isNumber);
        if (isNumber)
            return ::getpwuid(id);
    }
    return ::getpwuid(::geteuid());
}

QString errorOf(const QString& program, const QStringList& arguments)
{
    return runProgram(program, arguments, toolLimitMs).error;
}

// A new folder of that name, with a number behind it where there is one already.
QString newFolder(const QString& parent, const QString& name)
{
    if (!QDir().mkpath(parent))
        return {};
    for (int number = 0; number < 100; ++number) {
        const QString path =
            parent + '/' + name + (number > 0 ? QString::number(number) : QString());
        if (QDir().mkdir(path))
            return path;
    }
    return {};
}

} // namespace

RootVolumes::RootVolumes(const QString& mediaFolder, const QString& imageFolder)
    : media(mediaFolder)
    , images(imageFolder)
{
}

QString RootVolumes::defaultMediaFolder()
{
    const passwd* const user = actingUser();
    return "/media/" + (user ? QString::fromLocal8Bit(user->pw_name) : QString("root"));
}

MountResult RootVolumes::mountImage(const QString& image)
{
    QDir().mkpath(images);
    QTemporaryDir folder(images + "/image-XXXXXX");
    if (!folder.isValid())
        return {{}, {}, folder.errorString()};
    // Only the file systems of discs: the kernel's other drivers are no place for foreign images.
    const QString error = errorOf(
        "mount", {"-t", "udf,iso9660", "-o", "loop,ro,nosuid,nodev", "--", image, folder.path()});
    if (!error.isEmpty())
        return {{}, {}, error};
    folder.setAutoRemove(false);
    return {volumeMountedAt(mountTable(), folder.path()).source, folder.path(), {}};
}

QString RootVolumes::unmountImage(const QString& path, bool force)
{
    return unmountPath(path, force ? QStringList("--lazy") : QStringList());
}

QString RootVolumes::unmountPath(const QString& path, const QStringList& options) const
{
    const QString error = errorOf("umount", options + QStringList{"--", path});
    // Removes empty folders alone.
    if (error.isEmpty() && (path.startsWith(images + '/') || path.startsWith(media + '/')))
        QDir().rmdir(path);
    return error;
}

QString RootVolumes::unmount(const QString& device)
{
    const QList<MountedVolume> table = mountTable();
    for (auto volume = table.crbegin(); volume != table.crend(); ++volume) {
        if (volume->source != device)
            continue;
        const QString error = unmountPath(volume->path, {});
        if (!error.isEmpty())
            return error;
    }
    return {};
}

MountResult RootVolumes::mount(const QString& partition, const QString& label)
{
    const QString folder = newFolder(media, label);
    if (folder.isEmpty())
        return {{}, {}, "No folder could be made below " + media};
    const passwd* const user = actingUser();
    const QString owner =
        user ? QString(",uid=%1,gid=%2").arg(user->pw_uid).arg(user->pw_gid) : QString();
    const QString error = errorOf(
        "mount", {"-t", "vfat", "-o", "rw,nosuid,nodev,utf8,shortname=mixed,umask=0022" + owner,
                  "--", partition, folder});
    if (error.isEmpty())
        return {partition, folder, {}};
    QDir().rmdir(folder);
    return {{}, {}, error};
}

QString RootVolumes::createPartition(const QString& disk, const FatVolume& volume)
{
    const QByteArray table =
        "label: dos\nstart=1MiB, type=" + volume.partitionType().toLatin1() + '\n';
    const QString error = followProgram(
        "sfdisk", {"--lock=yes", "--wipe", "always", "--wipe-partitions", "always", "--", disk},
        [](const QString&) {}, table);
    if (error.isEmpty())
        errorOf("udevadm", {"settle", "--timeout=10"});
    return error;
}

QString RootVolumes::format(const QString& partition, const FatVolume& volume)
{
    return errorOf("mkfs.vfat",
                   {"-F", QString::number(volume.bits), "-n", volume.label, partition});
}

QString RootVolumes::eject(const QString& device)
{
    return errorOf("eject", {device});
}
