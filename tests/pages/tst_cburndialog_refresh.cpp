// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnpagefixture.h"
#include "drivescenario.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "usermouse.h"

#include <QAbstractItemModel>
#include <QSignalSpy>

// When the Burn page looks for drives anew, and what it keeps then.
class TstCBurnDialogRefresh : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void modeSaysWhichListsAreFilled();
    void driveThatComesIsListed();
    void driveThatGoesIsNotListedAnyMore();
    void openingTheUsbListStartsAtItsFirstEntryAndLeavesTheDiscs();
    void openingTheDiscListKeepsTheChoiceAndLeavesTheUsbDisks();
    void driveChangeStartsUsbAtTheFirstEntryAndKeepsTheDisc();
    void chosenDiscThatComesBackLaterIsNotChosenAgain();
    void nextPageStartsAtTheFirstDiscAgain();

private:
    QStringList disks() const { return BurnPageFixture::textsOf(fixture->list("usblist")); }
    QStringList discs() const { return BurnPageFixture::textsOf(fixture->list("dvdlist")); }

    std::unique_ptr<DriveScenario> drives;
    std::unique_ptr<BurnPageFixture> fixture;
};

namespace
{

const OpticalDrive firstDrive = {" FIRST    DVD              1.00", "/dev/disk5", ""};
const OpticalDrive secondDrive = {" SECOND   DVD              2.00", "/dev/disk6", ""};
const QString firstDisc = "FIRST DVD 1.00 (/dev/disk5)";
const QString secondDisc = "SECOND DVD 2.00 (/dev/disk6)";
const QStringList bothDisks = {"/dev/disk2", "/dev/disk3"};

const QStringList listing = {"diskutil", "list"};
const QStringList status = {"drutil", "status"};

} // namespace

void TstCBurnDialogRefresh::initTestCase()
{
    setApplicationLook();
}

void TstCBurnDialogRefresh::init()
{
    TestCase::init();
    drives = std::make_unique<DriveScenario>();
    drives->addUsbDisk("/dev/disk2");
    drives->addUsbDisk("/dev/disk3");
    drives->addOptical(firstDrive.identification, firstDrive.device);
    drives->addOptical(secondDrive.identification, secondDrive.device);
    fixture = std::make_unique<BurnPageFixture>();
}

void TstCBurnDialogRefresh::cleanup()
{
    fixture.reset();
    drives.reset();
    TestCase::cleanup();
}

void TstCBurnDialogRefresh::modeSaysWhichListsAreFilled()
{
    for (const int mode : {0, 1, 2, 3, -1}) {
        const QList<QStringList> before = drives->commands();
        fixture->page->InitializeUSBAndDVDComboBox(mode);
        const QList<QStringList> commands = drives->commands().mid(before.size());
        QCOMPARE(commands.contains(listing), mode == 0 || mode == 2);
        QCOMPARE(commands.contains(status), mode == 0 || mode == 1);
        QCOMPARE(disks(), bothDisks);
        QCOMPARE(discs(), QStringList({firstDisc, secondDisc}));
    }
}

void TstCBurnDialogRefresh::driveThatComesIsListed()
{
    drives->addUsbDisk("/dev/disk4");
    drives->addOptical(" THIRD    DVD              3.00", "/dev/disk7");
    fixture->notifyDriveChange();
    QCOMPARE(disks(), QStringList({"/dev/disk2", "/dev/disk3", "/dev/disk4"}));
    QCOMPARE(discs(), QStringList({firstDisc, secondDisc, "THIRD DVD 3.00 (/dev/disk7)"}));
}

void TstCBurnDialogRefresh::driveThatGoesIsNotListedAnyMore()
{
    drives->removeDisk("/dev/disk2");
    drives->removeDisk("/dev/disk5");
    fixture->notifyDriveChange();
    QCOMPARE(disks(), QStringList("/dev/disk3"));
    QCOMPARE(discs(), QStringList(secondDisc));
    drives->removeDisk("/dev/disk3");
    drives->removeDisk("/dev/disk6");
    fixture->notifyDriveChange();
    QCOMPARE(disks(), QStringList());
    QCOMPARE(discs(), QStringList());
}

void TstCBurnDialogRefresh::openingTheUsbListStartsAtItsFirstEntryAndLeavesTheDiscs()
{
    fixture->chooseUsb();
    QComboBox* const usb = fixture->list("usblist");
    usb->setCurrentIndex(1);
    fixture->list("dvdlist")->setCurrentIndex(1);
    const QSignalSpy discChanges(fixture->list("dvdlist")->model(),
                                 SIGNAL(rowsRemoved(QModelIndex, int, int)));
    const QSignalSpy discResets(fixture->list("dvdlist")->model(), SIGNAL(modelReset()));
    UserMouse::click(usb);
    QVERIFY(usb->findChild<QFrame*>()->isVisible());
    QCOMPARE(usb->currentIndex(), 0);
    QCOMPARE(disks(), bothDisks);
    usb->hidePopup();
    QCOMPARE(discChanges.count() + discResets.count(), 0);
    QCOMPARE(fixture->list("dvdlist")->currentText(), secondDisc);
}

void TstCBurnDialogRefresh::openingTheDiscListKeepsTheChoiceAndLeavesTheUsbDisks()
{
    QComboBox* const optical = fixture->list("dvdlist");
    optical->setCurrentIndex(1);
    fixture->list("usblist")->setCurrentIndex(1);
    UserMouse::click(optical);
    QVERIFY(optical->findChild<QFrame*>()->isVisible());
    QCOMPARE(optical->currentText(), secondDisc);
    QCOMPARE(CBurnDialog::dvdCurrent, secondDisc);
    optical->hidePopup();
    QCOMPARE(fixture->list("usblist")->currentIndex(), 1);
}

void TstCBurnDialogRefresh::driveChangeStartsUsbAtTheFirstEntryAndKeepsTheDisc()
{
    fixture->list("usblist")->setCurrentIndex(1);
    fixture->list("dvdlist")->setCurrentIndex(1);
    fixture->notifyDriveChange();
    QCOMPARE(fixture->list("usblist")->currentText(), QString("/dev/disk2"));
    QCOMPARE(fixture->list("dvdlist")->currentText(), secondDisc);
}

void TstCBurnDialogRefresh::chosenDiscThatComesBackLaterIsNotChosenAgain()
{
    fixture->list("dvdlist")->setCurrentIndex(1);
    drives->removeDisk("/dev/disk6");
    fixture->notifyDriveChange();
    QCOMPARE(fixture->list("dvdlist")->currentText(), firstDisc);
    drives->addOptical(secondDrive.identification, secondDrive.device);
    fixture->notifyDriveChange();
    QCOMPARE(fixture->list("dvdlist")->currentText(), firstDisc);
}

// Its list is empty when it is cleared for the first time.
void TstCBurnDialogRefresh::nextPageStartsAtTheFirstDiscAgain()
{
    fixture->list("dvdlist")->setCurrentIndex(1);
    fixture->page->InitializeUSBAndDVDComboBox(1);
    QCOMPARE(CBurnDialog::dvdCurrent, secondDisc);
    fixture.reset();
    QCOMPARE(CBurnDialog::dvdCurrent, secondDisc);
    fixture = std::make_unique<BurnPageFixture>();
    QCOMPARE(CBurnDialog::dvdCurrent, QString());
    QCOMPARE(fixture->list("dvdlist")->currentText(), firstDisc);
}

KORVEX_TEST_MAIN(TstCBurnDialogRefresh)
#include "tst_cburndialog_refresh.moc"
