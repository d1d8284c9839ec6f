// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "hdiutil.h"

#include "devicename.h"
#include "discburner.h"
#include "diskpartitioner.h"
#include "diskrefusal.h"
#include "hybridimage.h"
#include "imagenote.h"
#include "lsblk.h"
#include "outlivingwork.h"
#include "printing.h"

#include <QFileInfo>

#include <csignal>
#include <cstdio>

namespace
{

const QLatin1String gluedUnmount("unmount/");

int fail(const QString& verb, const QString& reason)
{
    return complain("hdiutil: " + verb + " failed - " + reason);
}

// The program kills a tool that takes too long, or ends itself meanwhile, and does not know then
// what there is to unmount.
int mountForCaller(const QString& image, const std::function<bool()>& isAwaited,
                   VolumeService& volumes)
{
    const MountResult mounted = volumes.mountImage(image);
    if (!mounted.error.isEmpty())
        return fail("mount", mounted.error);
    if (isAwaited()) {
        std::signal(SIGPIPE, SIG_IGN);
        say(imageLine(mounted));
        if (!std::ferror(stdout))
            return 0;
    }
    volumes.unmountImage(mounted.path, true);
    return 1;
}

int mountImage(const QString& image, VolumeService& volumes)
{
    const QFileInfo file(image);
    if (!file.isFile())
        return fail("mount", "No such file or directory");
    // First, as an image that cannot be mounted is written to a disk all the same.
    leaveImageNote(volumes.sessionFolder(), file.canonicalFilePath());
    return runOutliving([&](const std::function<bool()>& isAwaited) {
        return mountForCaller(file.absoluteFilePath(), isAwaited, volumes);
    });
}

int unmountImage(const QString& path, bool force, VolumeService& volumes)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    if (target.isEmpty())
        return fail("unmount", "No such file or directory");
    QString error = imageRefusal(volumeMountedAt(mountTable(), target));
    if (error.isEmpty())
        error = volumes.unmountImage(path, force);
    if (!error.isEmpty())
        return fail("unmount", error);
    say('"' + path + "\" unmounted successfully.");
    return 0;
}

int burn(const QString& image)
{
    const QString drive = blankDiscDrive(opticalDrives());
    if (drive.isEmpty())
        return fail("burn", "There is no blank disc in a drive.");
    return burnImage(image, drive);
}

int eject(const QString& name, VolumeService& volumes)
{
    const QString path = devicePath(name);
    const BlockDevices found = blockDevices(path);
    if (found.devices.size() != 1)
        return fail("eject", "No such file or directory");
    const BlockDevice disk = found.devices.first();
    QString error = disk.isOptical() ? QString() : refusal(disk);
    if (error.isEmpty())
        error = unmountEverything(disk, volumes);
    if (error.isEmpty())
        error = volumes.eject(path);
    if (!error.isEmpty())
        return complain("hdiutil: couldn't eject \"" + deviceName(path) + "\" - " + error);
    say('"' + deviceName(path) + "\" ejected.");
    return 0;
}

} // namespace

QString imageLine(const MountResult& mounted)
{
    return mounted.device.leftJustified(20) + '\t' + QString(31, ' ') + '\t' + mounted.path;
}

QString imageRefusal(const MountedVolume& volume)
{
    if (volume.path.isEmpty())
        return "Nothing is mounted there";
    if (volume.source.startsWith("/dev/loop") &&
        QStringList{"iso9660", "udf"}.contains(volume.type))
        return {};
    return volume.path + " is not a mounted image";
}

int hdiutilTool(const QStringList& arguments, VolumeService& volumes)
{
    const QString verb = arguments.value(0);
    const int count = arguments.size();
    if (verb == "mount" && count == 2)
        return mountImage(arguments[1], volumes);
    if (verb.startsWith(gluedUnmount) && count == 1)
        return unmountImage(verb.mid(gluedUnmount.size() - 1), false, volumes);
    if (verb == "unmount" && count == 2)
        return unmountImage(arguments[1], false, volumes);
    if (verb == "unmount" && count == 3 && arguments[1] == "-force")
        return unmountImage(arguments[2], true, volumes);
    if (count == 4 && arguments.mid(0, 3) == QStringList{"burn", "-verbose", "-noverifyburn"})
        return burn(arguments[3]);
    if (count == 8 &&
        arguments.mid(0, 6) == QStringList{"makehybrid", "-iso", "-joliet", "-debug", "-ov", "-o"})
        return makeHybridImage(arguments[6], arguments[7]);
    if (verb == "eject" && count == 2)
        return eject(arguments[1], volumes);
    return complain("Usage: hdiutil mount IMAGE | unmount [-force] PATH | "
                    "burn -verbose -noverifyburn IMAGE | "
                    "makehybrid -iso -joliet -debug -ov -o IMAGE FOLDER | eject DEVICE");
}
