// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "sampleimage.h"
#include "sevenzipcommand.h"
#include "slowedtool.h"
#include "tour.h"
#include "tour_common.h"
#include "tourfailure.h"

#include <QDir>
#include <QFileInfo>
#include <QWidget>

namespace
{

const char* const page = "CPage2";
// The folder of the image that is entered, what is ticked in it and what that brings along.
const char* const folder = "Videos";
const char* const tickedFolder = "Summer";
const char* const tickedFile = "京都.mp4";

void openPage(Tour& tour)
{
    tour.user.click("MainWindow", "extract");
    tour.user.waitForWindow(page);
    tour.album.add("extract-empty", tour.user.photograph(), "Extract clicked on the home screen",
                   {"texts: " + tour.user.texts(page).join(" | ")});
}

void extractWithoutTick(Tour& tour)
{
    tour.user.click(page, "extract");
    tour.user.waitForWindow("GerneralDialog");
    const QStringList texts = tour.user.texts("GerneralDialog");
    require(texts == QStringList("Please select the files or folders you want to extract"),
            "The message says " + texts.join(" | "));
    tour.album.add("extract-nothing-ticked", tour.user.photograph(),
                   "Extract clicked with nothing ticked", {"message: " + texts.join(" | ")});
    tour.user.click("GerneralDialog", "btnok");
    tour.user.waitUntilGone("GerneralDialog");
}

void loadImage(Tour& tour, const SampleImage& sample)
{
    tour.user.click(page, "loadiso");
    tour.user.typePath(sample.path);
    tour.album.add("extract-open-file", tour.user.photograph(),
                   "Load ISO clicked, the image's path typed", {"path: " + sample.path});
    tour.user.acceptFileDialog();
    tour.user.waitForEnabled(page, "loadiso");
    const QStringList rows = tour.user.rows();
    requireSame(rows, entryNames(sample.source));
    tour.album.add("extract-loaded", tour.user.photograph(), "The image was listed",
                   {"entries, as in the image's folder: " + rows.join(", ")});
}

void enterAndTick(Tour& tour, const SampleImage& sample)
{
    tour.user.doubleClickRow(folder);
    const QStringList rows = tour.user.rows();
    requireSame(rows, entryNames(sample.source + '/' + folder));
    tour.album.add("extract-folder", tour.user.photograph(),
                   QString("Folder \"%1\" entered by a double click").arg(folder),
                   {"entries, as in the original folder: " + rows.join(", ")});

    tour.user.clickBoxOfRow(tickedFolder);
    tour.user.clickRow(tickedFile);
    const QStringList ticked = tour.user.tickedRows();
    requireSame(ticked, {tickedFolder, tickedFile});
    tour.album.add("extract-ticked", tour.user.photograph(),
                   "A folder ticked at its box, a file by a click on its row",
                   {"ticked: " + ticked.join(", ")});
}

void extract(Tour& tour, const QString& destination)
{
    tour.user.click(page, "extract");
    tour.user.typePath(destination);
    tour.album.add("extract-choose-folder", tour.user.photograph(),
                   "Extract clicked, the folder's path typed", {"path: " + destination});
    {
        // A fast machine is done before the user sees anything.
        const QString program = QFileInfo(sevenZipProgram()).canonicalFilePath();
        SlowedTool archiver(QFileInfo(program).fileName());
        tour.user.acceptFileDialog();
        photographProgress(tour, archiver, "extract-progress",
                           "During the extraction, with the archiver paused for the picture");
    }
    closeSuccess(tour, "Extract files successfully.", "extract-success",
                 "The extraction has ended");
}

// Everything that was ticked has arrived, nothing else has, and every byte is as it was.
void compare(Tour& tour, const SampleImage& sample, const QString& destination)
{
    QMap<QString, QString> expected = hashesOf(sample.source + '/' + folder);
    for (const QString& path : expected.keys()) {
        if (path != tickedFile && !path.startsWith(QString(tickedFolder) + '/'))
            expected.remove(path);
    }
    const QMap<QString, QString> extracted = hashesOf(destination);
    QStringList outcome;
    for (auto file = extracted.begin(); file != extracted.end(); ++file)
        outcome.append(QString("%1  %2").arg(file.value(), file.key()));
    for (auto file = expected.begin(); file != expected.end(); ++file)
        require(extracted.value(file.key()) == file.value(),
                "Not extracted as it was: " + file.key());
    require(extracted.size() == expected.size(),
            "More was extracted than was ticked:\n" + outcome.join('\n'));
    outcome.append(QString("%1 files, all equal to their originals by SHA-256, no others")
                       .arg(extracted.size()));
    tour.album.note("Extracted files compared with the originals", outcome);
}

} // namespace

void tourExtract(Tour& tour)
{
    const SampleImage& sample = tour.sample;
    const QString destination = tour.home + "/Extracted";
    require(QDir().mkpath(destination), "The folder cannot be made: " + destination);
    openPage(tour);
    extractWithoutTick(tour);
    loadImage(tour, sample);
    enterAndTick(tour, sample);
    extract(tour, destination);
    compare(tour, sample, destination);
    tour.user.click(page, "back");
    tour.user.waitUntilGone(page);
}
