// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "mkisofscommand.h"
#include "sampleimage.h"
#include "slowedtool.h"
#include "tour.h"
#include "tour_common.h"
#include "tourfailure.h"

#include <QFileInfo>

namespace
{

const char* const page = "CPage5";
const char* const device = "/dev/disk4";
const char* const success = "Copy CD/DVD successfully!";

// The disc is the folder that the sample image was made of. On Linux, the program's own tool takes
// its files; elsewhere the copy is scripted as well.
bool isImageMade()
{
    return QFileInfo::exists(KORVEX_PLATFORM_TOOLS "/hdiutil");
}

void addDisc(Tour& tour)
{
    tour.drives.addOptical(" MATSHITA DVD-RAM UJ8E2 S   1.00", device, tour.sample.source);
    const QStringList making =
        isImageMade()
            ? QStringList(DriveScenario::becoming(KORVEX_PLATFORM_TOOLS "/hdiutil"))
            : QStringList({DriveScenario::printing(DriveTexts::makingHybrid({"0.1", "0.42"})),
                           tour.drives.holding("copied")});
    tour.drives.on("hdiutil", {"makehybrid", "..."}, making);
}

void openPage(Tour& tour, const QString& isoPath)
{
    tour.user.click("MainWindow", "copy");
    tour.user.waitForWindow(page);
    const QStringList drives = waitForEntries(tour, page, "dvdlist", 1);
    tour.user.typeInto(page, "lineEdit", isoPath);
    tour.user.movePointerAway();
    tour.album.add("disccopy-filled", tour.user.photograph(),
                   "Copy Disk clicked on the home screen, the new image's path typed",
                   {"optical drives: " + drives.join(", "),
                    "scripted: the drive and its disc, which is the folder " + tour.sample.source});
}

void copyForReal(Tour& tour)
{
    {
        const QString program = QFileInfo(mkisofsProgram()).canonicalFilePath();
        SlowedTool author(QFileInfo(program).fileName());
        tour.user.click(page, "start");
        photographProgress(tour, author, "disccopy-progress",
                           "Start clicked; the image is made by the program's tool for Linux, with "
                           "mkisofs paused for the picture");
    }
    closeSuccess(tour, success, "disccopy-success", "The image has been made");
}

void copyScripted(Tour& tour)
{
    tour.user.click(page, "start");
    photographProgressAt(tour, 42, "disccopy-progress",
                         "Start clicked; the progress is scripted, no image is made");
    tour.drives.release("copied");
    closeSuccess(tour, success, "disccopy-success", "The scripted copy has ended");
}

} // namespace

void tourDiscCopy(Tour& tour)
{
    // As seen from home, where the tour takes place.
    const QString isoPath = "Documents/Disc.iso";
    addDisc(tour);
    openPage(tour, isoPath);
    if (isImageMade()) {
        copyForReal(tour);
        compareImage(tour, tour.home + '/' + isoPath, hashesOf(tour.sample.source));
    } else {
        copyScripted(tour);
    }
    tour.user.click(page, "eject");
    tour.user.waitFor("the call that ejects the disc",
                      [&] { return tour.drives.callsOf("hdiutil").contains({"eject", device}); });
    tour.album.note("Eject clicked", {QString("hdiutil eject %1 (scripted)").arg(device)});
    const QList<QStringList> unforeseen = tour.drives.unmatchedCalls();
    require(unforeseen.isEmpty(), unforeseen.isEmpty()
                                      ? QString()
                                      : "Not in the script: " + unforeseen.first().join(' '));
    tour.user.click(page, "back");
    tour.user.waitUntilGone(page);
    tour.drives.removeDisk(device);
}
