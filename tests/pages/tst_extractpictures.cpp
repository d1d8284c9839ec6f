// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "cprogressdialog.h"
#include "extractpagefixture.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "picturetest.h"
#include "startup.h"
#include "testmain.h"
#include "usermouse.h"
#include "util.h"

#include <QApplication>
#include <QDir>

// Pictures of the home screen and of the Extract page in each of its states.
class TstExtractPictures : public PictureTest
{
    Q_OBJECT

private slots:
    void homeScreen();
    void homeScreenWithAButtonUnderTheMouse();
    void emptyPageOnTheHomeScreen();
    void loadedPage();
    void enteredFolder();
    void tickedRows();
    void listingThatRuns();
    void progress();
    void success();
    void nothingTicked();
    void refusal();

private:
    void loadMany(ExtractPageFixture& fixture) const;
};

void TstExtractPictures::loadMany(ExtractPageFixture& fixture) const
{
    QVERIFY(fixture.load(ExtractPageFixture::manyEntries()));
    UserMouse::moveAway(&fixture.window);
}

void TstExtractPictures::homeScreen()
{
    MainWindow window(nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    UserMouse::moveAway(&window);
    save(&window, "home");
}

void TstExtractPictures::homeScreenWithAButtonUnderTheMouse()
{
    MainWindow window(nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    UserMouse::moveAway(&window);
    auto* const edit = window.findChild<CImageButton*>("edit");
    const QImage before = edit->grab().toImage();
    UserMouse::move(edit, edit->rect().center());
    // The platform of the tests mistakes where windows are on a dense screen.
    QEvent entered(QEvent::Enter);
    QCoreApplication::sendEvent(edit, &entered);
    QVERIFY(edit->grab().toImage() != before);
    save(&window, "home-hover");
}

void TstExtractPictures::emptyPageOnTheHomeScreen()
{
    MainWindow window(nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    UserMouse::moveAway(&window);
    window.onExtract();
    save(&window, "extract-empty");
}

void TstExtractPictures::loadedPage()
{
    ExtractPageFixture fixture;
    loadMany(fixture);
    save(fixture.page, "extract-loaded");
}

void TstExtractPictures::enteredFolder()
{
    ExtractPageFixture fixture;
    loadMany(fixture);
    fixture.enter("boot");
    UserMouse::moveAway(&fixture.window);
    save(fixture.page, "extract-folder");
}

void TstExtractPictures::tickedRows()
{
    ExtractPageFixture fixture;
    loadMany(fixture);
    fixture.clickRow(fixture.rowOf("docs"), 80);
    fixture.clickRow(fixture.rowOf("readme.txt"), 80);
    UserMouse::moveAway(&fixture.window);
    save(fixture.page, "extract-ticked");
}

void TstExtractPictures::listingThatRuns()
{
    ExtractPageFixture fixture;
    fixture.tool.setScript({"sleep 60000"});
    fixture.startLoading();
    UserMouse::moveAway(&fixture.window);
    save(fixture.page, "extract-listing");
}

void TstExtractPictures::progress()
{
    ExtractPageFixture fixture;
    loadMany(fixture);
    fixture.tool.setScript({"sleep 60000"});
    fixture.tick({"docs"});
    fixture.startExtractingTo(fixture.folder.path());
    fixture.page->OnExtractOutput(" 45% 12 - docs/manual.pdf");
    save(fixture.progress(), "extract-progress");
    save(fixture.page, "extract-disabled");
}

void TstExtractPictures::success()
{
    ModalDriver driver;
    driver.run("CommDialog", [](QWidget* dialog) {
        save(dialog, "extract-success");
        dialog->close();
    });
    Util::ShowOpen(CPage2::tr("Extract files successfully."), QDir::tempPath());
    QVERIFY(driver.done());
}

void TstExtractPictures::nothingTicked()
{
    ExtractPageFixture fixture;
    ModalDriver driver;
    driver.run("GerneralDialog", [](QWidget* dialog) {
        save(dialog, "extract-nothing-ticked");
        dialog->close();
    });
    fixture.page->OnExtract();
    QVERIFY(driver.done());
}

void TstExtractPictures::refusal()
{
    ModalDriver driver;
    driver.run("CommDialog", [](QWidget* dialog) {
        save(dialog, "refusal");
        dialog->close();
    });
    QVERIFY(refuseToRunFrom("/Volumes/x"));
}

KORVEX_TEST_MAIN_AFTER(prepareProcess(), TstExtractPictures)
#include "tst_extractpictures.moc"
