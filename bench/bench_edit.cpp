// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "baretool.h"
#include "bench.h"
#include "benchdialogs.h"
#include "benchimage.h"
#include "clineedit.h"
#include "cpage4.h"
#include "mkisofscommand.h"
#include "sevenzipcommand.h"
#include "statistics.h"
#include "util.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTableWidget>

#include <unistd.h>

namespace
{

constexpr int runs = 3;

// The Edit page, without clicks.
class BenchEdit
{
public:
    BenchEdit() { page.InitializeUI(); }
    // From the choice of the image until it can be browsed, the pending events handled.
    // Milliseconds.
    double load(const QString& image)
    {
        dialogs.setPath(image);
        page.OnLoadISO();
        while (!page.findChild<QWidget*>("loadiso")->isEnabled())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::processEvents();
        return dialogs.sinceChoice();
    }
    void waitUntilUnpacked()
    {
        while (page.isWorking())
            QCoreApplication::processEvents();
    }
    // From the progress dialog to the message. Milliseconds.
    double save(const QString& image)
    {
        dialogs.setPath(image);
        page.OnSave();
        return dialogs.waitForMessage();
    }
    void openFirstFolder()
    {
        page.findChild<QTableWidget*>("list")->setCurrentCell(0, 0);
        page.OnListViewDoubleClicked();
    }
    int rows() const { return page.findChild<QTableWidget*>("list")->rowCount(); }

    CPage4 page{nullptr};

private:
    BenchDialogs dialogs;
};

void measureLoad(const QString& folder)
{
    printTitle("Edit, load 50,000 entries in 500 folders");
    const QString image = makeImageOfNames(folder, 500, 100);
    Samples bare;
    Samples page;
    Samples whole;
    BenchEdit edit;
    edit.page.show();
    for (int run = 0; run < runs; ++run) {
        bare.add(
            milliseconds([&] { runBare(sevenZipProgram(), sevenZipListUtf8Arguments(image)); }));
        page.add(edit.load(image));
        whole.add(milliseconds([&] { edit.waitUntilUnpacked(); }));
    }
    printSamples("7z l into a pipe", bare, "ms");
    printSamples("Load ISO until browsable", page, "ms", &bare);
    printSamples("  until unpacked, from then on", whole, "ms");
}

void measureSave(const QString& folder)
{
    printTitle("Edit, save an unedited image of 40 files of 15 MB");
    const QString saved = folder + "/saved.iso";
    BenchEdit edit;
    edit.load(makeImageOfFiles(folder, 40, 15));
    edit.waitUntilUnpacked();
    Samples bare;
    Samples page;
    qint64 size = 0;
    for (int run = 0; run < runs; ++run) {
        QFile::remove(saved);
        ::sync();
        bare.add(milliseconds([&] {
            runBare(mkisofsProgram(),
                    mkisofsSaveArguments(saved, Util::GetTempDir() + "/tmp", false));
        }));
        size = QFileInfo(saved).size();
        QFile::remove(saved);
        ::sync();
        page.add(edit.save(saved));
        if (QFileInfo(saved).size() != size)
            giveUp("The image is not complete: " + saved);
    }
    QFile::remove(saved);
    printSamples("mkisofs, its output into a pipe", bare, "ms");
    printSamples("Save, until the success message", page, "ms", &bare);
}

void measureSearch(const QString& folder)
{
    printTitle("Edit, search in a folder of 10,000 entries");
    BenchEdit edit;
    edit.page.show();
    edit.load(makeImageOfNames(folder, 1, 10000));
    edit.openFirstFolder();
    if (edit.rows() != 10000)
        giveUp("The folder is not open.");
    auto* const search = edit.page.findChild<CLineEdit*>("search");
    const auto type = [&](const QString& text) {
        Samples times;
        for (int run = 0; run < runs; ++run) {
            search->clear();
            QCoreApplication::processEvents();
            times.add(milliseconds([&] {
                search->setText(text);
                QCoreApplication::processEvents();
            }));
        }
        return times;
    };
    printSamples("A letter that 10,000 names contain, painted", type("0"), "ms");
    printSamples("A text that few names contain, painted", type("0123"), "ms");
    edit.waitUntilUnpacked();
}

} // namespace

void benchEdit(const QString& folder)
{
    measureLoad(folder);
    measureSave(folder);
    measureSearch(folder);
    QDir(Util::GetTempDir() + "/tmp").removeRecursively();
}
