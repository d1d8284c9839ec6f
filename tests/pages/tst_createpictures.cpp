// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "createpagefixture.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "picturetest.h"
#include "startup.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"
#include "usermouse.h"
#include "util.h"

#include <QDir>
#include <QMenu>

// Pictures of the Create page in each of its states.
class TstCreatePictures : public PictureTest
{
    Q_OBJECT

private slots:
    void emptyPageOnTheHomeScreen();
    void filledPage();
    void selectedRow();
    void fullGauge();
    void contextMenu();
    void copyWait();
    void authoring();
    void success();
    void nothingAdded();

private:
    static void fill(CreatePageFixture& fixture);
};

namespace
{

void makeLargeFile(const QString& path, qint64 bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.resize(bytes))
        qFatal("Cannot be made: %s", qPrintable(path));
}

} // namespace

void TstCreatePictures::fill(CreatePageFixture& fixture)
{
    const QString documents = fixture.path("Documents");
    writeFile(documents + "/Letters/Dear Łucja.txt", QByteArray(4711, 'x'));
    writeFile(documents + "/Letters/Привет.txt", QByteArray(815, 'x'));
    writeFile(documents + "/Résumé.odt", QByteArray(48000, 'x'));
    writeFile(documents + "/Übersicht 2026.html", QByteArray(12345, 'x'));
    writeFile(fixture.path("Pictures/富士山.png"), QByteArray(734003, 'x'));
    writeFile(fixture.path("Read me first.txt"), "Hello");
    writeFile(fixture.path("a file with a rather long name.tar.gz"), QByteArray(3000000, 'x'));
    fixture.addFolder(documents);
    fixture.addFolder(fixture.path("Pictures"));
    fixture.addFiles(
        {fixture.path("Read me first.txt"), fixture.path("a file with a rather long name.tar.gz")});
    fixture.list()->expandAll();
    UserMouse::moveAway(&fixture.window);
}

void TstCreatePictures::emptyPageOnTheHomeScreen()
{
    MainWindow window(nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    UserMouse::moveAway(&window);
    window.onCreate();
    save(&window, "create-empty");
}

void TstCreatePictures::filledPage()
{
    CreatePageFixture fixture;
    fill(fixture);
    save(fixture.page, "create-filled");
}

void TstCreatePictures::selectedRow()
{
    CreatePageFixture fixture;
    fill(fixture);
    fixture.select(fixture.row({"Documents", "Letters"}));
    UserMouse::moveAway(&fixture.window);
    save(fixture.page, "create-selected");
}

void TstCreatePictures::fullGauge()
{
    CreatePageFixture fixture;
    fill(fixture);
    makeLargeFile(fixture.path("Recordings.img"), 6442450944);
    // Nothing of it is copied, as its size alone is to be seen.
    Item recordings;
    recordings.path = "Recordings.img";
    recordings.localPath = fixture.path("Recordings.img");
    fixture.page->stagingQueue().stop();
    fixture.addFiles({recordings.localPath});
    UserMouse::moveAway(&fixture.window);
    save(fixture.page, "create-full");
}

void TstCreatePictures::contextMenu()
{
    CreatePageFixture fixture;
    fill(fixture);
    fixture.page->OnListContextMenuRequest({});
    QMenu* const menu = fixture.page->findChild<QMenu*>();
    QVERIFY(menu->isVisible());
    save(menu, "create-menu");
}

void TstCreatePictures::copyWait()
{
    CreatePageFixture fixture;
    const auto held = fixture.addHeld(1 << 20);
    const Trigger pass([&fixture] { return fixture.progressMaximum() == 1024; },
                       [&held] { held->pass(400 << 10); });
    const Trigger look([&fixture] { return fixture.progressValue() == 400; },
                       [&fixture] {
                           save(fixture.progress(), "create-wait");
                           fixture.page->close();
                       });
    fixture.startCreating(fixture.path("image.iso"));
    QVERIFY(look.hasFired());
    held->release();
    QTRY_VERIFY_WITH_TIMEOUT(fixture.page.isNull(), patienceMs);
}

void TstCreatePictures::authoring()
{
    CreatePageFixture fixture;
    fill(fixture);
    QVERIFY(fixture.waitUntilStaged());
    fixture.tool.setScript({"sleep 600000"});
    fixture.startCreating(fixture.path("image.iso"));
    fixture.page->OnCreateOutput(" 32.35% done, estimate finish Sat Nov 21 06:51:21 2026");
    save(fixture.progress(), "create-progress");
}

void TstCreatePictures::success()
{
    ModalDriver driver;
    driver.run("CommDialog", [](QWidget* dialog) {
        save(dialog, "create-success");
        dialog->close();
    });
    Util::ShowOpen(CPage3::tr("Create ISO successfully!"), QDir::tempPath());
    QVERIFY(driver.done());
}

void TstCreatePictures::nothingAdded()
{
    CreatePageFixture fixture;
    ModalDriver driver;
    driver.run("CommDialog", [](QWidget* dialog) {
        save(dialog, "create-nothing-added");
        dialog->close();
    });
    fixture.page->OnCreate();
    QVERIFY(driver.done());
}

KORVEX_TEST_MAIN_AFTER(prepareProcess(), TstCreatePictures)
#include "tst_createpictures.moc"
