// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "clineedit.h"
#include "cprogressdialog.h"
#include "editpagefixture.h"
#include "extractpagefixture.h"
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

// Pictures of the Edit page in each of its states.
class TstEditPictures : public PictureTest
{
    Q_OBJECT

private slots:
    void emptyPageOnTheHomeScreen();
    void loadedPage();
    void folderWithAddedEntries();
    void search();
    void listingThatRuns();
    void waitForUnpacking();
    void renameDialog();
    void contextMenu();
    void saving();
    void success();
    void nothingTicked();

private:
    static void load(EditPageFixture& fixture, const QStringList& unpacking = {});
};

void TstEditPictures::load(EditPageFixture& fixture, const QStringList& unpacking)
{
    fixture.setArchiver(ExtractPageFixture::manyEntries(), unpacking);
    fixture.startLoading("Holiday 2026.iso");
    QVERIFY(fixture.waitUntilListed());
    UserMouse::moveAway(&fixture.window);
}

void TstEditPictures::emptyPageOnTheHomeScreen()
{
    MainWindow window(nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    UserMouse::moveAway(&window);
    window.onEdit();
    save(&window, "edit-empty");
}

void TstEditPictures::loadedPage()
{
    EditPageFixture fixture;
    load(fixture);
    save(fixture.page, "edit-loaded");
}

void TstEditPictures::folderWithAddedEntries()
{
    EditPageFixture fixture;
    load(fixture);
    writeFile(fixture.path("Letters/Привет.txt"), QByteArray(815, 'x'));
    writeFile(fixture.path("Résumé.odt"), QByteArray(48000, 'x'));
    fixture.openFolder("boot");
    fixture.add({fixture.path("Letters")});
    fixture.add({fixture.path("Résumé.odt")});
    fixture.tick({"kernel", "Letters"});
    UserMouse::moveAway(&fixture.window);
    save(fixture.page, "edit-added");
}

void TstEditPictures::search()
{
    EditPageFixture fixture;
    load(fixture);
    fixture.search()->setFocus();
    fixture.search()->setText("picture 1");
    QVERIFY(fixture.shownNames().contains("picture 12.png"));
    save(fixture.page, "edit-search");
}

void TstEditPictures::listingThatRuns()
{
    EditPageFixture fixture;
    fixture.archiver.setScript({"sleep 60000"});
    fixture.startLoading();
    UserMouse::moveAway(&fixture.window);
    save(fixture.page, "edit-listing");
}

void TstEditPictures::waitForUnpacking()
{
    EditPageFixture fixture;
    load(fixture, {"err  42% 7 - boot/kernel\\n", fixture.archiver.holding("unpacking")});
    const Trigger picture(
        [&fixture] { return fixture.progress()->isVisible() && fixture.progressValue() == 42; },
        [&fixture] {
            save(fixture.progress(), "edit-unpacking");
            fixture.archiver.release("unpacking");
        });
    fixture.startSaving(fixture.path("new.iso"));
    QVERIFY(picture.hasFired());
    QVERIFY(!fixture.page->isWorking());
}

void TstEditPictures::renameDialog()
{
    EditPageFixture fixture;
    load(fixture);
    fixture.tick({"readme.txt"});
    ModalDriver driver;
    driver.run("CInputDialog", [](QWidget* dialog) {
        save(dialog, "edit-rename");
        dialog->close();
    });
    fixture.page->OnRename();
    QVERIFY(driver.done());
}

void TstEditPictures::contextMenu()
{
    EditPageFixture fixture;
    load(fixture);
    fixture.page->OnListContextMenuRequest({});
    QMenu* const menu = fixture.page->findChild<QMenu*>();
    QVERIFY(menu->isVisible());
    save(menu, "edit-menu");
}

void TstEditPictures::saving()
{
    EditPageFixture fixture;
    load(fixture);
    QVERIFY(fixture.waitUntilWorked());
    fixture.author.setScript({"sleep 60000"});
    fixture.startSaving(fixture.path("new.iso"));
    fixture.page->OnCreateOutput(" 64.71% done, estimate finish Sat Nov 21 06:51:21 2026");
    save(fixture.progress(), "edit-saving");
}

void TstEditPictures::success()
{
    ModalDriver driver;
    driver.run("CommDialog", [](QWidget* dialog) {
        save(dialog, "edit-saved");
        dialog->close();
    });
    Util::ShowOpen(CPage4::tr("Save ISO file successfully!"), QDir::tempPath());
    QVERIFY(driver.done());
}

void TstEditPictures::nothingTicked()
{
    EditPageFixture fixture;
    load(fixture);
    ModalDriver driver;
    driver.run("CommDialog", [](QWidget* dialog) {
        save(dialog, "edit-nothing-ticked");
        dialog->close();
    });
    fixture.page->OnExport();
    QVERIFY(driver.done());
}

KORVEX_TEST_MAIN_AFTER(prepareProcess(), TstEditPictures)
#include "tst_editpictures.moc"
