// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "tour_common.h"

#include "mkisofscommand.h"
#include "sevenzipcommand.h"
#include "slowedtool.h"
#include "toolenvironment.h"
#include "tourfailure.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QProgressBar>

namespace
{

// From here on there is something to see on the progress bar.
constexpr int percentToShow = 25;
constexpr int mostSteps = 100;
constexpr int toolMs = 60000;

int shownPercent()
{
    const auto* bar = qobject_cast<QProgressBar*>(visibleWidget("CProgressDialog", "progressBar"));
    return bar && bar->maximum() > 0 ? bar->value() * 100 / bar->maximum() : -1;
}

void addProgressPicture(Tour& tour, const QString& picture, const QString& done)
{
    tour.album.add(picture, tour.user.photograph(), done,
                   {QString("progress: %1%").arg(tour.user.see(shownPercent)),
                    "text: " + tour.user.texts("CProgressDialog").join(" | ")});
}

QStringList entriesOf(const QString& page, const QString& name)
{
    QStringList entries;
    const auto* const list = qobject_cast<QComboBox*>(visibleWidget(page, name));
    for (int i = 0; list && i < list->count(); ++i)
        entries.append(list->itemText(i));
    return entries;
}

} // namespace

void photographProgress(Tour& tour, SlowedTool& tool, const QString& picture, const QString& done)
{
    tool.waitForPause();
    tour.user.waitForWindow("CProgressDialog");
    for (int step = 0; tour.user.see(shownPercent) < percentToShow; ++step) {
        require(step < mostSteps, "The progress bar does not advance.");
        require(tour.user.see(shownPercent) >= 0, "The progress dialog has gone too early.");
        tool.step();
    }
    addProgressPicture(tour, picture, done);
}

void photographProgressAt(Tour& tour, int percent, const QString& picture, const QString& done)
{
    tour.user.waitFor(QString("a progress of %1%").arg(percent),
                      [percent] { return shownPercent() == percent; });
    addProgressPicture(tour, picture, done);
}

void acceptAndPhotographAuthoring(Tour& tour, const QString& picture, const QString& done)
{
    // A fast machine is done before the user sees anything.
    const QString program = QFileInfo(mkisofsProgram()).canonicalFilePath();
    SlowedTool author(QFileInfo(program).fileName());
    tour.user.acceptFileDialog();
    photographProgress(tour, author, picture, done);
}

void compareImage(Tour& tour, const QString& isoPath, const QMap<QString, QString>& expected)
{
    const QString folder = isoPath + ".extracted";
    QProcess archiver;
    archiver.setProcessEnvironment(toolEnvironment());
    archiver.start(sevenZipProgram(), {"x", "-o" + folder, isoPath});
    require(archiver.waitForFinished(toolMs) && archiver.exitStatus() == QProcess::NormalExit &&
                archiver.exitCode() == 0,
            "7z cannot extract " + isoPath);
    const QMap<QString, QString> found = hashesOf(folder);
    require(!found.isEmpty() && found == expected,
            "The image holds " + QStringList(found.keys()).join(", "));
    tour.album.note("The new image extracted with 7z and compared with what belongs in it",
                    {QString("size of the image: %1 bytes").arg(QFileInfo(isoPath).size()),
                     QString("%1 files, all equal to their originals by SHA-256, no others")
                         .arg(found.size())});
}

void closeSuccess(Tour& tour, const QString& message, const QString& picture, const QString& done)
{
    tour.user.waitUntilGone("CProgressDialog");
    tour.user.waitFor("the success message",
                      [] { return visibleWidget("CommDialog", "btnok") != nullptr; });
    const QStringList texts = tour.user.texts("CommDialog");
    require(texts == QStringList(message), "The message says " + texts.join(" | "));
    tour.album.add(picture, tour.user.photograph(), done, {"message: " + texts.join(" | ")});
    tour.user.click("CommDialog", "btnok");
    tour.user.waitUntilGone("CommDialog");
}

QStringList waitForEntries(Tour& tour, const QString& page, const QString& name, int count)
{
    tour.user.waitFor(QString("%1 entries in \"%2\"").arg(count).arg(name),
                      [=] { return entriesOf(page, name).size() == count; });
    return tour.user.see([=] { return entriesOf(page, name); });
}

QStringList entryNames(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

void requireSame(QStringList shown, QStringList expected)
{
    shown.sort();
    expected.sort();
    require(shown == expected,
            "Shown is " + shown.join(", ") + " instead of " + expected.join(", "));
}
