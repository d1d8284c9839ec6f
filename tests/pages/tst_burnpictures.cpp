// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnpagefixture.h"
#include "cprogressdialog.h"
#include "drivescenario.h"
#include "gerneraldialog.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "picturetest.h"
#include "startup.h"
#include "testfiles.h"
#include "testmain.h"
#include "usermouse.h"
#include "whencalled.h"

#include <QRadioButton>

// Pictures of the Burn page in each of its states.
class TstBurnPictures : public PictureTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void pageOnTheHomeScreen();
    void discWithALongName();
    void openListOfLongNames();
    void usb();
    void gpt();
    void discProgress();
    void discSuccess();
    void noSuchImage();
    void noUsbDisk();
    void formatQuestion();
    void tooSmallADisk();
    void usbSteps();

private:
    // Presses Burn and photographs the dialogs that come, in this order; they are answered by OK.
    static void burn(BurnPageFixture& fixture, const QStringList& pictures);
    static void chooseImage(const BurnPageFixture& fixture);

    std::unique_ptr<DriveScenario> drives;
};

void TstBurnPictures::init()
{
    PictureTest::init();
    drives = std::make_unique<DriveScenario>();
}

void TstBurnPictures::cleanup()
{
    drives.reset();
    PictureTest::cleanup();
}

void TstBurnPictures::chooseImage(const BurnPageFixture& fixture)
{
    writeFile(fixture.path("Rescue disc.img"), "image");
    fixture.setImage(fixture.path("Rescue disc.img"));
}

void TstBurnPictures::burn(BurnPageFixture& fixture, const QStringList& pictures)
{
    ModalDriver driver;
    for (const QString& picture : pictures) {
        driver.run("QDialog", [picture](QWidget* dialog) {
            UserMouse::moveAway(dialog);
            save(dialog, picture);
            UserMouse::click(dialog->findChild<QWidget*>("btnok"));
        });
    }
    fixture.press("burn");
    QTRY_VERIFY_WITH_TIMEOUT(driver.done(), patienceMs);
}

void TstBurnPictures::pageOnTheHomeScreen()
{
    drives->addOptical(" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk4");
    MainWindow window(nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    UserMouse::moveAway(&window);
    window.onBurn();
    save(&window, "burn-page");
}

void TstBurnPictures::discWithALongName()
{
    drives->addOptical(" MATSHITAELECTRIC DVD-RAM MULTI UJ8E2 SUPER SLIM  1.00", "/dev/disk12");
    BurnPageFixture fixture;
    fixture.setImage("/Users/Shared/Downloads/A collection of images/Rescue disc 2026.iso");
    UserMouse::moveAway(&fixture.window);
    save(fixture.page, "burn-disc-long-name");
}

void TstBurnPictures::openListOfLongNames()
{
    drives->addOptical(" MATSHITAELECTRIC DVD-RAM MULTI UJ8E2 SUPER SLIM  1.00", "/dev/disk12");
    drives->addOptical(" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk4");
    BurnPageFixture fixture;
    UserMouse::click(fixture.list("dvdlist"));
    save(fixture.list("dvdlist")->findChild<QFrame*>(), "burn-disc-list");
    fixture.list("dvdlist")->hidePopup();
}

void TstBurnPictures::usb()
{
    drives->addUsbDisk("/dev/disk2");
    drives->addOptical(" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk4");
    BurnPageFixture fixture;
    fixture.chooseUsb();
    fixture.setImage("/Users/Shared/Windows.iso");
    fixture.line("volumelab")->setText("WWWWWWWWWWW");
    UserMouse::moveAway(&fixture.window);
    save(fixture.page, "burn-usb");
}

void TstBurnPictures::gpt()
{
    drives->addUsbDisk("/dev/disk2");
    BurnPageFixture fixture;
    fixture.chooseUsb();
    fixture.list("ptlist")->setCurrentIndex(1);
    fixture.line("volumelab")->setFocus();
    UserMouse::moveAway(&fixture.window);
    save(fixture.page, "burn-usb-gpt");
}

void TstBurnPictures::discProgress()
{
    drives->addOptical(" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk4");
    drives->on("hdiutil", {"burn", "..."},
               {DriveScenario::printing(DriveTexts::burning({"0.425"})), drives->holding("burn")});
    BurnPageFixture fixture;
    chooseImage(fixture);
    fixture.press("burn");
    QTRY_COMPARE_WITH_TIMEOUT(fixture.progressValue(), 42, patienceMs);
    save(fixture.progress(), "burn-disc-progress");
    fixture.page->close();
    QTRY_VERIFY_WITH_TIMEOUT(fixture.page.isNull(), patienceMs);
    drives->release("burn");
}

void TstBurnPictures::discSuccess()
{
    drives->addOptical(" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk4");
    drives->on("hdiutil", {"burn", "..."}, {});
    BurnPageFixture fixture;
    chooseImage(fixture);
    burn(fixture, {"burn-disc-success"});
}

void TstBurnPictures::noSuchImage()
{
    BurnPageFixture fixture;
    burn(fixture, {"burn-fails"});
}

void TstBurnPictures::noUsbDisk()
{
    BurnPageFixture fixture;
    fixture.chooseUsb();
    chooseImage(fixture);
    burn(fixture, {"burn-insert-usb"});
}

void TstBurnPictures::formatQuestion()
{
    drives->addUsbDisk("/dev/disk2");
    BurnPageFixture fixture;
    fixture.chooseUsb();
    chooseImage(fixture);
    ModalDriver driver;
    driver.run("QDialog", [](QWidget* dialog) {
        UserMouse::moveAway(dialog);
        save(dialog, "burn-format-question");
        dialog->close();
    });
    fixture.press("burn");
    QVERIFY(driver.done());
}

void TstBurnPictures::tooSmallADisk()
{
    UsbDisk small;
    small.size = 1000000;
    drives->addUsbDisk("/dev/disk2", small);
    BurnPageFixture fixture;
    fixture.chooseUsb();
    chooseImage(fixture);
    burn(fixture, {"burn-format-question", "burn-insufficient-space"});
}

void TstBurnPictures::usbSteps()
{
    BurnPageFixture fixture;
    UsbDisk stick;
    stick.mountPoint = fixture.path("mounted");
    drives->addUsbDisk("/dev/disk2", stick);
    drives->on("diskutil", {"partitionDisk", "..."}, {drives->holding("formatting")});
    drives->on("sudo", {"..."}, {drives->holding("boot")});
    drives->on("7z", {"..."},
               {DriveScenario::printing(" 42% 117 - sources/boot.wim\n"), drives->holding("copy")});
    const WhenCalled formatting(
        *drives, {"diskutil", "partitionDisk", "/dev/disk2", "1", "MBR", "FAT32", "NONAME", "R"},
        [&] {
            save(fixture.progress(), "burn-usb-formatting");
            drives->release("formatting");
        });
    QTimer steps;
    steps.callOnTimeout([&] {
        const QString name = fixture.progressText().startsWith("make") ? "boot" : "copy";
        if (!fixture.progress()->isVisible() || drives->callsOf("sudo").isEmpty())
            return;
        if (name == "copy" && fixture.progressValue() != 42)
            return;
        save(fixture.progress(), "burn-usb-" + name);
        drives->release(name);
    });
    fixture.chooseUsb();
    chooseImage(fixture);
    steps.start(50);
    burn(fixture, {"burn-format-question", "burn-usb-success"});
    QVERIFY(formatting.isDone());
}

KORVEX_TEST_MAIN_AFTER(prepareProcess(), TstBurnPictures)
#include "tst_burnpictures.moc"
