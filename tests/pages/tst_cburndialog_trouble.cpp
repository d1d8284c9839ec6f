// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnpagefixture.h"
#include "drivescenario.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"

// The Burn page with tools that are not there, fail or say something else: what cannot be read is
// not listed, and nobody is told.
class TstCBurnDialogTrouble : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void missingDiskToolLeavesTheDiscs();
    void missingDriveToolLeavesTheUsbDisks();
    void toolThatFailsAfterItsListIsReadAllTheSame();
    void toolThatCrashesIsReadAsFarAsItGot();
    void emptyAnswersGiveEmptyLists();
    void answersOfOtherBytesAreSurvived();
    void floodingListsAreSurvived();
    void floodingDescriptionIsReadAsFarAsItGot();
    void lastLineNeedsNoEnd();

private:
    QStringList disks() const { return BurnPageFixture::textsOf(fixture->list("usblist")); }
    QStringList discs() const { return BurnPageFixture::textsOf(fixture->list("dvdlist")); }
    // Opens the page and checks that nothing is said.
    void openPage();

    std::unique_ptr<DriveScenario> drives;
    std::unique_ptr<BurnPageFixture> fixture;
};

namespace
{

const QString disc = "HL-DT-ST DVDRAM GP65NS60 PF00 (/dev/disk5)";

QString stickHeading(const QString& device)
{
    return DriveScenario::printing(device + " (external, physical):\n");
}

} // namespace

void TstCBurnDialogTrouble::initTestCase()
{
    setApplicationLook();
}

void TstCBurnDialogTrouble::init()
{
    TestCase::init();
    drives = std::make_unique<DriveScenario>();
    drives->addUsbDisk("/dev/disk2");
    drives->addUsbDisk("/dev/disk3");
    drives->addOptical(" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk5");
}

void TstCBurnDialogTrouble::cleanup()
{
    fixture.reset();
    drives.reset();
    TestCase::cleanup();
}

void TstCBurnDialogTrouble::openPage()
{
    fixture = std::make_unique<BurnPageFixture>();
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(fixture->page->isVisible());
}

void TstCBurnDialogTrouble::missingDiskToolLeavesTheDiscs()
{
    drives->missing("diskutil");
    openPage();
    QCOMPARE(disks(), QStringList());
    QCOMPARE(discs(), QStringList(disc));
    QVERIFY(!fixture->page->CheckDiskIsUSB("/dev/disk2"));
}

void TstCBurnDialogTrouble::missingDriveToolLeavesTheUsbDisks()
{
    drives->missing("drutil");
    openPage();
    QCOMPARE(disks(), QStringList({"/dev/disk2", "/dev/disk3"}));
    QCOMPARE(discs(), QStringList());
}

void TstCBurnDialogTrouble::toolThatFailsAfterItsListIsReadAllTheSame()
{
    drives->on("diskutil", {"list"}, {stickHeading("/dev/disk2"), "exit 1"});
    drives->on("diskutil", {"info", "/dev/disk2"},
               {DriveScenario::printing(DriveTexts::diskInfo("/dev/disk2", {})), "exit 1"});
    openPage();
    QCOMPARE(disks(), QStringList("/dev/disk2"));
}

void TstCBurnDialogTrouble::toolThatCrashesIsReadAsFarAsItGot()
{
    drives->on("diskutil", {"list"}, {stickHeading("/dev/disk2"), "crash"});
    drives->on("diskutil", {"info", "/dev/disk2"},
               {DriveScenario::printing(DriveTexts::diskInfo("/dev/disk2", {})), "crash"});
    drives->on("drutil", {"status"}, {"crash"});
    openPage();
    QCOMPARE(disks(), QStringList("/dev/disk2"));
    QCOMPARE(discs(), QStringList());
}

void TstCBurnDialogTrouble::emptyAnswersGiveEmptyLists()
{
    drives->on("diskutil", {"list"}, {});
    drives->on("drutil", {"status"}, {});
    openPage();
    QCOMPARE(disks(), QStringList());
    QCOMPARE(discs(), QStringList());
    drives->on("diskutil", {"list"}, {stickHeading("/dev/disk2")});
    drives->on("diskutil", {"info", "/dev/disk2"}, {});
    fixture->notifyDriveChange();
    QCOMPARE(disks(), QStringList());
}

void TstCBurnDialogTrouble::answersOfOtherBytesAreSurvived()
{
    const QString noise = "out \\xff\\xfe\\x00\\x1b[2J \\xc3\\n";
    drives->on("diskutil", {"list"}, {noise, stickHeading("/dev/disk2"), noise});
    drives->on("drutil", {"status"}, {noise});
    openPage();
    QCOMPARE(disks(), QStringList("/dev/disk2"));
    QCOMPARE(discs(), QStringList());
}

void TstCBurnDialogTrouble::floodingListsAreSurvived()
{
    drives->on("diskutil", {"list"},
               {"lines 20000 nothing", stickHeading("/dev/disk2"), "flood 1"});
    drives->on("drutil", {"status"}, {"flood 1"});
    openPage();
    QCOMPARE(disks(), QStringList("/dev/disk2"));
    QCOMPARE(discs(), QStringList());
}

void TstCBurnDialogTrouble::floodingDescriptionIsReadAsFarAsItGot()
{
    drives->on("diskutil", {"info", "/dev/disk2"},
               {DriveScenario::printing(DriveTexts::diskInfo("/dev/disk2", {})), "flood 3"});
    openPage();
    QCOMPARE(disks(), QStringList({"/dev/disk2", "/dev/disk3"}));
}

void TstCBurnDialogTrouble::lastLineNeedsNoEnd()
{
    drives->on("diskutil", {"list"}, {DriveScenario::printing("/dev/disk2 (external, physical):")});
    drives->on("drutil", {"status"}, {DriveScenario::printing("Type: CD-R Name: /dev/disk5")});
    openPage();
    QCOMPARE(disks(), QStringList("/dev/disk2"));
    QCOMPARE(discs(), QStringList(" (/dev/disk5)"));
}

KORVEX_TEST_MAIN(TstCBurnDialogTrouble)
#include "tst_cburndialog_trouble.moc"
