// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "sampleimage.h"
#include "tour.h"
#include "tour_common.h"
#include "tourfailure.h"

namespace
{

const char* const page = "CPage3";
const char* const removedFile = "setup.exe";
const char* const addedFile = "Read me first.txt";

void openPage(Tour& tour)
{
    tour.user.click("MainWindow", "create");
    tour.user.waitForWindow(page);
    tour.album.add("create-empty", tour.user.photograph(), "Create clicked on the home screen",
                   {"texts: " + tour.user.texts(page).join(" | ")});
}

void createWithoutFiles(Tour& tour)
{
    tour.user.click(page, "create");
    tour.user.waitForWindow("CommDialog");
    const QStringList texts = tour.user.texts("CommDialog");
    require(texts == QStringList("Please add files or folders first!"),
            "The message says " + texts.join(" | "));
    tour.album.add("create-nothing-added", tour.user.photograph(),
                   "Create ISO clicked with nothing added", {"message: " + texts.join(" | ")});
    tour.user.click("CommDialog", "btnok");
    tour.user.waitUntilGone("CommDialog");
}

void add(Tour& tour, const QString& button, const QString& path)
{
    tour.user.click(page, button);
    tour.user.typePath(path);
    tour.user.acceptFileDialog();
}

void addEntries(Tour& tour)
{
    const QStringList folders = {"Documents", "Pictures", "Videos"};
    for (const QString& folder : folders)
        add(tour, "adddir", tour.sample.source + '/' + folder);
    add(tour, "addfile", tour.sample.source + '/' + addedFile);
    add(tour, "addfile", tour.sample.source + '/' + removedFile);
    const QStringList rows = tour.user.rows();
    requireSame(rows, entryNames(tour.sample.source));
    tour.album.add("create-filled", tour.user.photograph(), "Three folders and two files added",
                   {"entries: " + rows.join(", "), "texts: " + tour.user.texts(page).join(" | ")});
}

void removeEntry(Tour& tour)
{
    tour.user.clickRow(removedFile);
    tour.user.click(page, "remove");
    QStringList expected = entryNames(tour.sample.source);
    expected.removeOne(removedFile);
    const QStringList rows = tour.user.rows();
    requireSame(rows, expected);
    tour.album.add("create-removed", tour.user.photograph(),
                   QString("\"%1\" selected and removed").arg(removedFile),
                   {"entries: " + rows.join(", ")});
}

void create(Tour& tour, const QString& isoPath)
{
    tour.user.click(page, "udf");
    tour.user.click(page, "create");
    tour.user.typePath(isoPath);
    tour.album.add("create-choose-file", tour.user.photograph(),
                   "UDF chosen, Create ISO clicked, the new image's path typed",
                   {"path: " + isoPath});
    acceptAndPhotographAuthoring(tour, "create-progress",
                                 "While the image is written, with mkisofs paused for the picture");
    closeSuccess(tour, "Create ISO successfully!", "create-success", "The image has been written");
}

} // namespace

void tourCreate(Tour& tour)
{
    const QString isoPath = tour.home + "/Holiday again.iso";
    openPage(tour);
    createWithoutFiles(tour);
    addEntries(tour);
    removeEntry(tour);
    create(tour, isoPath);
    QMap<QString, QString> expected = hashesOf(tour.sample.source);
    expected.remove(removedFile);
    compareImage(tour, isoPath, expected);
    tour.user.click(page, "back");
    tour.user.waitUntilGone(page);
}
