// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "sampleimage.h"
#include "sevenzipcommand.h"
#include "slowedtool.h"
#include "tour.h"
#include "tour_common.h"
#include "tourfailure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace
{

const char* const page = "CBurnDialog";
const char* const bootMenu = "syslinux.cfg";
const char* const device = "/dev/disk2";

// As seen from home, where the tour takes place: the field of the page is narrow.
QString imagePath(const Tour& tour)
{
    return QDir(tour.home).relativeFilePath(tour.sample.path);
}

// What the stand-ins say, and what they do in place of the tools that need a real drive.
void addDrives(Tour& tour, const QString& stick)
{
    UsbDisk disk;
    disk.mountPoint = stick;
    disk.name = "HOLIDAY";
    tour.drives.addUsbDisk(device, disk);
    tour.drives.addOptical(" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk4");
    tour.drives.addImageMount(imagePath(tour), "/Volumes/HOLIDAY_2026");
    tour.drives.on("hdiutil", {"burn", "..."},
                   {DriveScenario::printing(DriveTexts::burning({"0.1", "0.42"})),
                    tour.drives.holding("burnt")});
    tour.drives.on("sudo", {"--askpass", "..."}, {});
    tour.album.note("Drives for Burn and Copy Disk",
                    {"all of them are scripted: no real drive is looked at or written to",
                     QString("optical drive with a blank disc; USB disk %1 of 8 GB, mounted at %2")
                         .arg(device, stick),
                     "scripted: what the disk tools print, formatting, the administrator's "
                     "password, making bootable, burning the disc",
                     "real: the archiver that copies the image to the USB disk's folder, the boot "
                     "menu that the program writes there"});
}

void openPage(Tour& tour)
{
    tour.user.click("MainWindow", "burn");
    tour.user.waitForWindow(page);
    const QStringList optical = waitForEntries(tour, page, "dvdlist", 1);
    const QStringList disks = waitForEntries(tour, page, "usblist", 1);
    require(disks == QStringList(device), "The USB disks are " + disks.join(", "));
    tour.user.typeInto(page, "isofile", imagePath(tour));
    tour.album.add("burn-disc", tour.user.photograph(),
                   "Burn clicked on the home screen, the image's path typed",
                   {"optical drives: " + optical.join(", "), "USB disks: " + disks.join(", ")});
}

void burnDisc(Tour& tour)
{
    tour.user.click(page, "burn");
    photographProgressAt(tour, 42, "burn-disc-progress",
                         "Burn clicked with the disc chosen; the progress is scripted");
    tour.drives.release("burnt");
    closeSuccess(tour, "Burning disc successfully.", "burn-disc-success",
                 "The scripted burn has ended");
    const QStringList expected = {"burn", "-verbose", "-noverifyburn", imagePath(tour)};
    require(tour.drives.callsOf("hdiutil").contains(expected), "The disc was not burnt.");
    tour.album.note("The burning tool's call", {"hdiutil " + expected.join(' ')});
}

void chooseStick(Tour& tour)
{
    tour.user.click(page, "rusb");
    waitForEntries(tour, page, "usblist", 1);
    tour.user.waitForEnabled(page, "volumelab");
    tour.user.typeInto(page, "volumelab", "HOLIDAY");
    tour.album.add("burn-stick", tour.user.photograph(), "USB chosen, a volume label typed",
                   {"texts: " + tour.user.texts(page).join(" | ")});
}

void writeStick(Tour& tour)
{
    tour.user.click(page, "burn");
    tour.user.waitForWindow("CommDialog");
    tour.album.add("burn-question", tour.user.photograph(), "Burn clicked",
                   {"question: " + tour.user.texts("CommDialog").join(" | ")});
    {
        const QString program = QFileInfo(sevenZipProgram()).canonicalFilePath();
        SlowedTool archiver(QFileInfo(program).fileName());
        tour.user.click("CommDialog", "btnok");
        photographProgress(tour, archiver, "burn-stick-progress",
                           "While the image is copied to the USB disk's folder, with the archiver "
                           "paused for the picture");
    }
    closeSuccess(tour, "Burning Successfully...", "burn-stick-success", "The image was copied");
}

void compareStick(Tour& tour, const QString& stick)
{
    QMap<QString, QString> found = hashesOf(stick);
    require(found.remove(bootMenu) == 1, "There is no boot menu.");
    require(!found.isEmpty() && found == hashesOf(tour.sample.source),
            "The USB disk's folder holds " + QStringList(found.keys()).join(", "));
    QFile menu(stick + '/' + bootMenu);
    require(menu.open(QIODevice::ReadOnly), "Cannot be read: " + menu.fileName());
    const QStringList lines = QString::fromUtf8(menu.readAll()).split('\n', Qt::SkipEmptyParts);
    QStringList outcome = {
        QString("%1 files, all equal to those in the image by SHA-256").arg(found.size()),
        QString("beside them %1:").arg(bootMenu)};
    for (const QString& line : lines)
        outcome.append("  " + line);
    outcome.append("calls of the scripted disk tool:");
    for (const QStringList& call : tour.drives.callsOf("diskutil")) {
        if (call.value(0) != "list" && call.value(0) != "info")
            outcome.append("  diskutil " + call.join(' '));
    }
    tour.album.note("The USB disk's folder compared with the image", outcome);
}

} // namespace

void tourBurn(Tour& tour)
{
    const QString stick = tour.home + "/USB disk";
    require(QDir().mkpath(stick), "Cannot be made: " + stick);
    addDrives(tour, stick);
    openPage(tour);
    burnDisc(tour);
    chooseStick(tour);
    writeStick(tour);
    compareStick(tour, stick);
    tour.user.click(page, "back");
    tour.user.waitUntilGone(page);
    tour.drives.removeDisk(device);
    tour.drives.removeDisk("/dev/disk4");
}
