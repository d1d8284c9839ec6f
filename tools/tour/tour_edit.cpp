// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "sampleimage.h"
#include "tour.h"
#include "tour_common.h"
#include "tourfailure.h"

#include <QDir>
#include <QFile>

namespace
{

const char* const page = "CPage4";
const char* const deletedFolder = "Pictures";
const char* const oldName = "setup.exe";
const char* const newName = "install.exe";
const char* const addedFile = "Packing list.txt";
const char* const exportedFolder = "Documents";

void openPage(Tour& tour)
{
    tour.user.click("MainWindow", "edit");
    tour.user.waitForWindow(page);
    tour.album.add("edit-empty", tour.user.photograph(), "Edit clicked on the home screen");
}

void loadImage(Tour& tour)
{
    tour.user.click(page, "loadiso");
    tour.user.typePath(tour.sample.path);
    tour.user.acceptFileDialog();
    tour.user.waitForEnabled(page, "loadiso");
    const QStringList rows = tour.user.rows();
    requireSame(rows, entryNames(tour.sample.source));
    tour.album.add("edit-loaded", tour.user.photograph(),
                   "The image was listed; it is unpacked in the background",
                   {"entries, as in the image's folder: " + rows.join(", ")});
}

void change(Tour& tour, const QString& addedPath)
{
    tour.user.clickRow(deletedFolder);
    tour.user.click(page, "delete_2");

    tour.user.clickRow(oldName);
    tour.user.click(page, "rename");
    tour.user.typeInto("CInputDialog", "lineEdit", newName);
    tour.album.add("edit-rename", tour.user.photograph(),
                   QString("\"%1\" ticked, Rename clicked, the new name typed").arg(oldName));
    tour.user.click("CInputDialog", "btnok");
    tour.user.waitUntilGone("CInputDialog");

    tour.user.click(page, "add");
    tour.user.typePath(addedPath);
    tour.user.acceptFileDialog();
    QStringList expected = entryNames(tour.sample.source) << newName << addedFile;
    expected.removeOne(deletedFolder);
    expected.removeOne(oldName);
    const QStringList rows = tour.user.rows();
    requireSame(rows, expected);
    tour.album.add("edit-changed", tour.user.photograph(),
                   QString("\"%1\" deleted, \"%2\" added").arg(deletedFolder, addedFile),
                   {"entries: " + rows.join(", ")});
}

void search(Tour& tour)
{
    tour.user.typeInto(page, "search", "LIST");
    requireSame(tour.user.rows(), {addedFile});
    tour.album.add("edit-search", tour.user.photograph(), "\"LIST\" typed into the search field",
                   {"entries: " + tour.user.rows().join(", ")});
    tour.user.typeInto(page, "search", QString());
}

void exportFolder(Tour& tour, const QString& destination)
{
    tour.user.clickRow(exportedFolder);
    tour.user.click(page, "export_2");
    tour.user.typePath(destination);
    tour.user.acceptFileDialog();
    closeSuccess(tour, "Export Successfully !", "edit-exported",
                 QString("\"%1\" ticked and exported").arg(exportedFolder));
    const QMap<QString, QString> exported = hashesOf(destination + '/' + exportedFolder);
    require(!exported.isEmpty() && exported == hashesOf(tour.sample.source + '/' + exportedFolder),
            "Not exported as it was: " + QStringList(exported.keys()).join(", "));
    tour.album.note("Exported files compared with the originals",
                    {QString("%1 files, all equal to their originals by SHA-256, no others")
                         .arg(exported.size())});
}

// What the saved image has to hold.
QMap<QString, QString> expectedFiles(const Tour& tour, const QString& addedPath)
{
    QMap<QString, QString> expected = hashesOf(tour.sample.source);
    for (const QString& path : expected.keys()) {
        if (path.startsWith(QString(deletedFolder) + '/'))
            expected.remove(path);
    }
    expected.insert(newName, expected.take(oldName));
    expected.insert(addedFile, hashesOf(QFileInfo(addedPath).absolutePath()).value(addedFile));
    return expected;
}

} // namespace

void tourEdit(Tour& tour)
{
    const QString notes = tour.home + "/Notes";
    const QString addedPath = notes + '/' + addedFile;
    const QString destination = tour.home + "/Exported";
    const QString isoPath = tour.home + "/Holiday changed.iso";
    require(QDir().mkpath(notes) && QDir().mkpath(destination), "No folder can be made.");
    QFile added(addedPath);
    require(added.open(QIODevice::WriteOnly) && added.write("Tent, map, torch\n") > 0,
            "Cannot be written: " + addedPath);
    added.close();

    openPage(tour);
    loadImage(tour);
    change(tour, addedPath);
    search(tour);
    exportFolder(tour, destination);
    tour.user.click(page, "save");
    tour.user.typePath(isoPath);
    acceptAndPhotographAuthoring(tour, "edit-saving",
                                 "While the image is saved, with mkisofs paused for the picture");
    closeSuccess(tour, "Save ISO file successfully!", "edit-saved", "The image has been saved");
    compareImage(tour, isoPath, expectedFiles(tour, addedPath));
    tour.user.click(page, "back");
    tour.user.waitUntilGone(page);
}
