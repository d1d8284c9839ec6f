// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "drivescenario.h"

#include <QRegularExpression>

// What the tools say about the drives of a scenario.

DriveScenario::Rule DriveScenario::unknownDisk(const QString& device)
{
    return {"diskutil", {"info", device}, {complaining(DriveTexts::noSuchDisk(device)), "exit 1"}};
}

QList<DriveScenario::Rule> DriveScenario::usbRules() const
{
    QList<Rule> made;
    for (const auto& [device, disk] : usbDisks) {
        made +=
            {{"diskutil", {"info", device}, {printing(DriveTexts::diskInfo(device, disk))}},
             {"diskutil",
              {"partitionDisk", device, "..."},
              {printing(DriveTexts::partitionedDisk(device, disk))}},
             {"diskutil", {"unmountDisk", device}, {printing(DriveTexts::unmountedDisk(device))}},
             // Through a shell, which splits a mount point at blanks and drops an empty one.
             {"mkbootable", (device + ' ' + disk.mountPoint).split(' ', Qt::SkipEmptyParts), {}}};
        const QString partition = device + "s1";
        if (disk.name.isEmpty())
            made.append(unknownDisk(partition));
        else
            made.append({"diskutil",
                         {"info", partition},
                         {printing(DriveTexts::partitionInfo(device, disk))}});
    }
    // After the rules of those that have come back.
    for (const QString& device : goneDevices)
        made += {unknownDisk(device), unknownDisk(device + "s1")};
    return made;
}

QList<DriveScenario::Rule> DriveScenario::opticalRules() const
{
    QList<Rule> made;
    QStringList status;
    for (const OpticalDrive& drive : opticalDrives) {
        status.append(printing(DriveTexts::opticalStatus(drive)));
        if (!drive.mountPoint.isEmpty()) {
            const QString info = DriveTexts::opticalInfo(drive);
            made.append({"diskutil", {"info", drive.device}, {printing(info)}});
        }
        if (!drive.device.isEmpty()) {
            const QString ejected = '"' + drive.device.section('/', -1) + "\" ejected.\n";
            made.append({"hdiutil", {"eject", drive.device}, {printing(ejected)}});
        }
    }
    made.append({"drutil", {"status"}, status});
    return made;
}

// Mount points are passed on without the blanks of the volume's name, and once right behind the
// verb; the tool refuses both.
QList<DriveScenario::Rule> DriveScenario::imageRules() const
{
    QList<Rule> made;
    for (const Image& image : images) {
        const QStringList done = {printing(DriveTexts::unmountedImage(image.mountPoint))};
        const QString listed = DriveTexts::mountedImage(image.device, image.mountPoint);
        const QString joined = QString(image.mountPoint).remove(QRegularExpression("\\s"));
        made +=
            {{"hdiutil", {"mount", image.path}, {printing(listed)}},
             {"hdiutil", {"unmount", image.mountPoint}, done},
             {"hdiutil", {"unmount", "-force", image.mountPoint}, done},
             {"hdiutil",
              {"unmount" + joined},
              {complaining("Usage: hdiutil <verb> <options>\n"), "exit 1"}},
             {"hdiutil",
              {"unmount", "-force", joined},
              {complaining("hdiutil: unmount failed - No such file or directory\n"), "exit 1"}}};
    }
    return made;
}

QList<DriveScenario::Rule> DriveScenario::driveRules() const
{
    QString listed = DriveTexts::listedInternalDisk();
    QString mounted = DriveTexts::systemVolumes();
    for (const auto& [device, disk] : usbDisks) {
        listed += DriveTexts::listedUsbDisk(device, disk);
        if (!disk.mountPoint.isEmpty())
            mounted += DriveTexts::mountedVolume(device + "s1", disk.mountPoint, "msdos");
    }
    for (const OpticalDrive& drive : opticalDrives) {
        if (drive.mountPoint.isEmpty())
            continue;
        listed += DriveTexts::listedDisc(drive);
        mounted += DriveTexts::mountedVolume(drive.device, drive.mountPoint, "cd9660");
    }
    return usbRules() + opticalRules() + imageRules() +
           QList<Rule>{{"diskutil", {"list"}, {printing(listed)}},
                       {"mount", {}, {printing(mounted)}},
                       {"sync", {}, {}},
                       {"sudo", {"--askpass", "..."}, {"ask", "execute"}}};
}
