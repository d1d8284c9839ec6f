// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnpagefixture.h"
#include "chosenpaths.h"
#include "drivescenario.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QRadioButton>
#include <QSignalSpy>

// The rules between the widgets of the Burn page.
class TstCBurnDialogRules : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void usbUnlocksItsOptionsAndLocksTheDiscs();
    void discLocksTheUsbOptionsAgain();
    void usbKeepsItsOptionsWhileTheyAreLocked();
    void gptForcesFat32AndLocksTheFileSystems();
    void mbrUnlocksTheFileSystemsWithoutChangingThem();
    void togglingTheTargetUnlocksTheFileSystemsThoughGptIsChosen();
    void switchingKeepsTheChosenDriveInBothLists();
    void switchingFallsBackToTheFirstWhenTheChosenDriveHasGone();
    void switchingKeepsADriveWhosePlaceInTheListHasChanged();
    void switchingLooksForDrivesOnce();
    void chosenImageIsTaken();
    void chosenImageWithLeadingBlanksIsTakenAsItIs();
    void chosenImageThatHasVanishedIsNotTaken();
    void cancelledChoiceChangesNothing();
    void processErrorIsOnlyNoted();

private:
    QRadioButton* mark(const char* name) const
    {
        return fixture->page->findChild<QRadioButton*>(name);
    }
    // Which of the four USB options and of the disc list can be used.
    QStringList enabled() const;
    void choose(const char* list, const QString& entry) const;

    std::unique_ptr<DriveScenario> drives;
    std::unique_ptr<BurnPageFixture> fixture;
};

namespace
{

const QString firstDisc = "FIRST DVD 1.00 (/dev/disk5)";
const QString secondDisc = "SECOND DVD 2.00 (/dev/disk6)";
const QStringList usbOptions = {"usblist", "ptlist", "sysfilelist", "volumelab"};

} // namespace

void TstCBurnDialogRules::initTestCase()
{
    setApplicationLook();
}

void TstCBurnDialogRules::init()
{
    TestCase::init();
    drives = std::make_unique<DriveScenario>();
    drives->addUsbDisk("/dev/disk2");
    drives->addUsbDisk("/dev/disk3");
    drives->addOptical(" FIRST    DVD              1.00", "/dev/disk5");
    drives->addOptical(" SECOND   DVD              2.00", "/dev/disk6");
    fixture = std::make_unique<BurnPageFixture>();
}

void TstCBurnDialogRules::cleanup()
{
    fixture.reset();
    drives.reset();
    TestCase::cleanup();
}

QStringList TstCBurnDialogRules::enabled() const
{
    QStringList names;
    for (const QString& name : QStringList("dvdlist") + usbOptions) {
        if (fixture->page->findChild<QWidget*>(name)->isEnabled())
            names.append(name);
    }
    return names;
}

void TstCBurnDialogRules::choose(const char* list, const QString& entry) const
{
    const int index = fixture->list(list)->findText(entry);
    QVERIFY2(index >= 0, qPrintable(entry));
    fixture->list(list)->setCurrentIndex(index);
}

void TstCBurnDialogRules::usbUnlocksItsOptionsAndLocksTheDiscs()
{
    QCOMPARE(enabled(), QStringList("dvdlist"));
    fixture->chooseUsb();
    QCOMPARE(enabled(), usbOptions);
}

void TstCBurnDialogRules::discLocksTheUsbOptionsAgain()
{
    fixture->chooseUsb();
    fixture->chooseDisc();
    QCOMPARE(enabled(), QStringList("dvdlist"));
}

void TstCBurnDialogRules::usbKeepsItsOptionsWhileTheyAreLocked()
{
    fixture->chooseUsb();
    fixture->list("sysfilelist")->setCurrentIndex(1);
    fixture->line("volumelab")->setText("STICK");
    fixture->chooseDisc();
    fixture->chooseUsb();
    QCOMPARE(fixture->list("sysfilelist")->currentIndex(), 1);
    QCOMPARE(fixture->line("volumelab")->text(), QString("STICK"));
}

void TstCBurnDialogRules::gptForcesFat32AndLocksTheFileSystems()
{
    fixture->chooseUsb();
    fixture->list("sysfilelist")->setCurrentIndex(1);
    fixture->list("ptlist")->setCurrentIndex(1);
    QCOMPARE(fixture->list("sysfilelist")->currentText(), QString("FAT32"));
    QVERIFY(!fixture->list("sysfilelist")->isEnabled());
}

void TstCBurnDialogRules::mbrUnlocksTheFileSystemsWithoutChangingThem()
{
    fixture->chooseUsb();
    fixture->list("sysfilelist")->setCurrentIndex(1);
    fixture->list("ptlist")->setCurrentIndex(1);
    const QSignalSpy changes(fixture->list("sysfilelist"), SIGNAL(currentIndexChanged(int)));
    fixture->list("ptlist")->setCurrentIndex(0);
    QVERIFY(fixture->list("sysfilelist")->isEnabled());
    QCOMPARE(fixture->list("sysfilelist")->currentText(), QString("FAT32"));
    QCOMPARE(changes.count(), 0);
}

// Harmless: the disk gets a master boot record whatever is chosen.
void TstCBurnDialogRules::togglingTheTargetUnlocksTheFileSystemsThoughGptIsChosen()
{
    fixture->chooseUsb();
    fixture->list("ptlist")->setCurrentIndex(1);
    fixture->chooseDisc();
    fixture->chooseUsb();
    QCOMPARE(fixture->list("ptlist")->currentIndex(), 1);
    QVERIFY(fixture->list("sysfilelist")->isEnabled());
}

void TstCBurnDialogRules::switchingKeepsTheChosenDriveInBothLists()
{
    choose("dvdlist", secondDisc);
    choose("usblist", "/dev/disk3");
    fixture->chooseUsb();
    QCOMPARE(fixture->list("dvdlist")->currentText(), secondDisc);
    QCOMPARE(fixture->list("usblist")->currentText(), QString("/dev/disk3"));
    fixture->chooseDisc();
    QCOMPARE(fixture->list("dvdlist")->currentText(), secondDisc);
    QCOMPARE(fixture->list("usblist")->currentText(), QString("/dev/disk3"));
}

void TstCBurnDialogRules::switchingFallsBackToTheFirstWhenTheChosenDriveHasGone()
{
    choose("dvdlist", secondDisc);
    choose("usblist", "/dev/disk3");
    drives->removeDisk("/dev/disk3");
    drives->removeDisk("/dev/disk6");
    fixture->chooseUsb();
    QCOMPARE(fixture->list("dvdlist")->currentText(), firstDisc);
    QCOMPARE(fixture->list("usblist")->currentText(), QString("/dev/disk2"));
}

void TstCBurnDialogRules::switchingKeepsADriveWhosePlaceInTheListHasChanged()
{
    choose("dvdlist", secondDisc);
    choose("usblist", "/dev/disk3");
    drives->removeDisk("/dev/disk2");
    drives->removeDisk("/dev/disk5");
    drives->addUsbDisk("/dev/disk7");
    fixture->chooseUsb();
    QCOMPARE(fixture->list("dvdlist")->currentIndex(), 0);
    QCOMPARE(fixture->list("dvdlist")->currentText(), secondDisc);
    QCOMPARE(fixture->list("usblist")->currentText(), QString("/dev/disk3"));
}

void TstCBurnDialogRules::switchingLooksForDrivesOnce()
{
    const int before = drives->callsOf("drutil").size();
    const int listsBefore = drives->callsOf("diskutil").count({"list"});
    fixture->chooseUsb();
    QCOMPARE(drives->callsOf("drutil").size(), before + 1);
    QCOMPARE(drives->callsOf("diskutil").count({"list"}), listsBefore + 1);
}

void TstCBurnDialogRules::chosenImageIsTaken()
{
    writeFile(fixture->path("image.iso"), "x");
    ChosenPaths::set({fixture->path("image.iso")});
    fixture->press("browser");
    QCOMPARE(fixture->line("isofile")->text(), fixture->path("image.iso"));
}

void TstCBurnDialogRules::chosenImageWithLeadingBlanksIsTakenAsItIs()
{
    writeFile(fixture->path("  my 'image' \"1\" .iso"), "x");
    ChosenPaths::set({fixture->path("  my 'image' \"1\" .iso")});
    fixture->press("browser");
    QCOMPARE(fixture->line("isofile")->text(), fixture->path("  my 'image' \"1\" .iso"));
}

void TstCBurnDialogRules::chosenImageThatHasVanishedIsNotTaken()
{
    fixture->setImage("/images/before.iso");
    ChosenPaths::set({fixture->path("gone.iso")});
    fixture->press("browser");
    QCOMPARE(fixture->line("isofile")->text(), QString("/images/before.iso"));
}

void TstCBurnDialogRules::cancelledChoiceChangesNothing()
{
    fixture->setImage("/images/before.iso");
    ChosenPaths::set({});
    fixture->press("browser");
    QCOMPARE(fixture->line("isofile")->text(), QString("/images/before.iso"));
}

void TstCBurnDialogRules::processErrorIsOnlyNoted()
{
    fixture->page->onerror(QProcess::FailedToStart);
    QVERIFY(debugLines().contains("onerror  QProcess::FailedToStart"));
    QVERIFY(!QApplication::activeModalWidget());
}

KORVEX_TEST_MAIN(TstCBurnDialogRules)
#include "tst_cburndialog_rules.moc"
