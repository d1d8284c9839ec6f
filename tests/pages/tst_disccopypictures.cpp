// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "disccopytest.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "picturetest.h"
#include "startup.h"
#include "testmain.h"
#include "usermouse.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

// Pictures of the Copy Disk page in each of its states.
class TstDiscCopyPictures : public DiscCopyTest
{
    Q_OBJECT

private slots:
    void emptyPageOnTheHomeScreen();
    void idlePage();
    void longPath();
    void openDriveList();
    void reading();
    void success();
    void noDrive();

private:
    void fill();
};

namespace
{

class Pictures : public PictureTest
{
public:
    using PictureTest::save;
};

} // namespace

// The first drive's name would be longer than the field.
void TstDiscCopyPictures::fill()
{
    addTwoDrives();
    scenario->removeDisk(firstDrive().device);
    openPage();
    QVERIFY(waitForDrives({secondText()}));
    imageField()->setText("/home/user/Pictures/Holiday 2026.iso");
    UserMouse::moveAway(&fixture->window);
}

void TstDiscCopyPictures::emptyPageOnTheHomeScreen()
{
    MainWindow window(nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    UserMouse::moveAway(&window);
    window.onCopy();
    Pictures::save(&window, "disccopy-empty");
}

void TstDiscCopyPictures::idlePage()
{
    fill();
    Pictures::save(page, "disccopy-idle");
}

void TstDiscCopyPictures::longPath()
{
    fill();
    imageField()->setText("/home/user/Documents/Discs of my friends/Räkenskaper/企業/Holiday.iso");
    UserMouse::moveAway(&fixture->window);
    Pictures::save(page, "disccopy-long");
}

void TstDiscCopyPictures::openDriveList()
{
    addTwoDrives();
    openPage();
    QVERIFY(waitForDrives({firstText(), secondText()}));
    drives()->showPopup();
    QWidget* const list = QApplication::activePopupWidget();
    QVERIFY(list);
    Pictures::save(list, "disccopy-drives");
    drives()->hidePopup();
}

void TstDiscCopyPictures::reading()
{
    fill();
    startHeld({DriveScenario::printing(DriveTexts::makingHybrid({"0.25", "0.4275"}))});
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 4275, patienceMs);
    Pictures::save(fixture->progress(), "disccopy-progress");
    scenario->release("copied");
    QCOMPARE(closeMessage(), copySuccess());
}

void TstDiscCopyPictures::success()
{
    fill();
    onMakeHybrid({});
    const auto look = [] { Pictures::save(PageFixture::message(), "disccopy-success"); };
    QCOMPARE(copyToEnd("btnok", look), copySuccess());
}

void TstDiscCopyPictures::noDrive()
{
    openPage();
    ModalDriver driver;
    driver.run("CommDialog", [](QWidget* dialog) {
        Pictures::save(dialog, "disccopy-nodrive");
        dialog->close();
    });
    fixture->press("start");
    QVERIFY(driver.done());
}

KORVEX_TEST_MAIN_AFTER(prepareProcess(), TstDiscCopyPictures)
#include "tst_disccopypictures.moc"
