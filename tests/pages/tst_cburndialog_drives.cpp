// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnpagefixture.h"
#include "drivescenario.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"

// Which drives the Burn page lists. One page looks for the drives of every test.
class TstCBurnDialogDrives : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void machineWithoutDrivesHasEmptyLists();
    void stickIsListedByItsDeviceNodeAlone();
    void internalDiskIsNeverExamined();
    void externalDiskThatDoesNotQualifyIsNotListed_data();
    void externalDiskThatDoesNotQualifyIsNotListed();
    void externalOpticalDriveIsNoUsbDisk();
    void diskThatVanishesBeforeItIsDescribedIsNotListed();
    void disksAreExaminedAndListedInTheirOrder();
    void headingWithWindowsLineEndIsRead();
    void headingOfAnotherSpellingIsIgnored_data();
    void headingOfAnotherSpellingIsIgnored();
    void descriptionIsNoted();
    void opticalDriveIsListedByNameAndDevice();
    void twoOpticalDrivesAreListedInTheirOrder();
    void opticalDriveWithoutDiscGivesItsNameToTheNext();
    void nameThatWasReadWithoutADeviceOutlivesTheRefresh();
    void statusWithoutHeaderGivesAnEntryThatBeginsWithABlank();
    void deviceAtTheStartOfALineIsNone();
    void statusWithWindowsLineEndsIsRead();
    void noDriveAtAll();

private:
    QStringList disks() const;
    QStringList discs() const;

    std::unique_ptr<DriveScenario> drives;
    std::unique_ptr<BurnPageFixture> fixture;
};

namespace
{

const char* const pioneer = " PIONEER  DVD-RW DVR-XU01C  DL61";
const char* const pioneerText = "PIONEER DVD-RW DVR-XU01C DL61";
const char* const matshita = " MATSHITA DVD-RAM UJ8E2 S   1.00";
const char* const matshitaText = "MATSHITA DVD-RAM UJ8E2 S 1.00";

UsbDisk fixedDisk(const QString& protocol)
{
    UsbDisk disk;
    disk.fixed = true;
    disk.protocol = protocol;
    return disk;
}

UsbDisk removableDisk(const QString& protocol)
{
    UsbDisk disk;
    disk.protocol = protocol;
    return disk;
}

} // namespace

void TstCBurnDialogDrives::initTestCase()
{
    setApplicationLook();
    drives = std::make_unique<DriveScenario>();
    fixture = std::make_unique<BurnPageFixture>();
}

void TstCBurnDialogDrives::cleanupTestCase()
{
    fixture.reset();
}

void TstCBurnDialogDrives::init()
{
    TestCase::init();
    drives.reset();
    drives = std::make_unique<DriveScenario>();
}

void TstCBurnDialogDrives::cleanup()
{
    drives.reset();
    TestCase::cleanup();
}

QStringList TstCBurnDialogDrives::disks() const
{
    fixture->page->InitializeUSBAndDVDComboBox(2);
    return BurnPageFixture::textsOf(fixture->list("usblist"));
}

QStringList TstCBurnDialogDrives::discs() const
{
    fixture->page->InitializeUSBAndDVDComboBox(1);
    return BurnPageFixture::textsOf(fixture->list("dvdlist"));
}

void TstCBurnDialogDrives::machineWithoutDrivesHasEmptyLists()
{
    QCOMPARE(disks(), QStringList());
    QCOMPARE(discs(), QStringList());
    QCOMPARE(drives->commands(), QList<QStringList>({{"diskutil", "list"}, {"drutil", "status"}}));
}

void TstCBurnDialogDrives::stickIsListedByItsDeviceNodeAlone()
{
    drives->addUsbDisk("/dev/disk2");
    QCOMPARE(disks(), QStringList("/dev/disk2"));
    QVERIFY(!fixture->list("usblist")->itemData(0).isValid());
    QVERIFY(fixture->list("usblist")->itemIcon(0).isNull());
    QCOMPARE(fixture->list("usblist")->currentIndex(), 0);
}

void TstCBurnDialogDrives::internalDiskIsNeverExamined()
{
    drives->addUsbDisk("/dev/disk2");
    disks();
    QCOMPARE(drives->callsOf("diskutil"), QList<QStringList>({{"list"}, {"info", "/dev/disk2"}}));
}

void TstCBurnDialogDrives::externalDiskThatDoesNotQualifyIsNotListed_data()
{
    QTest::addColumn<QString>("protocol");
    QTest::addColumn<bool>("fixed");
    QTest::newRow("fixed USB disk") << "USB" << true;
    QTest::newRow("removable SATA disk") << "SATA" << false;
    QTest::newRow("Thunderbolt disk") << "Thunderbolt" << true;
    QTest::newRow("lower case") << "usb" << false;
    QTest::newRow("no protocol") << "" << false;
}

void TstCBurnDialogDrives::externalDiskThatDoesNotQualifyIsNotListed()
{
    QFETCH(QString, protocol);
    QFETCH(bool, fixed);
    drives->addUsbDisk("/dev/disk2", fixed ? fixedDisk(protocol) : removableDisk(protocol));
    QCOMPARE(disks(), QStringList());
    QVERIFY(drives->callsOf("diskutil").contains({"info", "/dev/disk2"}));
}

void TstCBurnDialogDrives::externalOpticalDriveIsNoUsbDisk()
{
    drives->addOptical(pioneer, "/dev/disk4", "/Volumes/Film");
    QCOMPARE(disks(), QStringList());
    QVERIFY(drives->callsOf("diskutil").contains({"info", "/dev/disk4"}));
}

void TstCBurnDialogDrives::diskThatVanishesBeforeItIsDescribedIsNotListed()
{
    drives->addUsbDisk("/dev/disk2");
    drives->addUsbDisk("/dev/disk3");
    drives->on("diskutil", {"info", "/dev/disk2"},
               {DriveScenario::complaining(DriveTexts::noSuchDisk("/dev/disk2")), "exit 1"});
    QCOMPARE(disks(), QStringList("/dev/disk3"));
}

void TstCBurnDialogDrives::disksAreExaminedAndListedInTheirOrder()
{
    drives->addUsbDisk("/dev/disk7");
    drives->addUsbDisk("/dev/disk2", fixedDisk("USB"));
    drives->addUsbDisk("/dev/disk12");
    drives->addUsbDisk("/dev/disk3", removableDisk("SATA"));
    drives->addUsbDisk("/dev/disk4");
    QCOMPARE(disks(), QStringList({"/dev/disk7", "/dev/disk12", "/dev/disk4"}));
    QStringList examined;
    for (const QStringList& arguments : drives->callsOf("diskutil")) {
        if (arguments.first() == "info")
            examined.append(arguments.last());
    }
    QCOMPARE(examined,
             QStringList({"/dev/disk7", "/dev/disk2", "/dev/disk12", "/dev/disk3", "/dev/disk4"}));
}

void TstCBurnDialogDrives::headingWithWindowsLineEndIsRead()
{
    drives->addUsbDisk("/dev/disk2");
    drives->on("diskutil", {"list"},
               {DriveScenario::printing("/dev/disk2 (external, physical):\r\n")});
    QCOMPARE(disks(), QStringList("/dev/disk2"));
}

void TstCBurnDialogDrives::headingOfAnotherSpellingIsIgnored_data()
{
    QTest::addColumn<QString>("heading");
    QTest::newRow("capitals") << "/dev/disk2 (External, Physical):\n";
    QTest::newRow("image") << "/dev/disk2 (disk image):\n";
    QTest::newRow("synthesized") << "/dev/disk2 (synthesized):\n";
    QTest::newRow("internal") << "/dev/disk2 (internal, physical):\n";
}

void TstCBurnDialogDrives::headingOfAnotherSpellingIsIgnored()
{
    QFETCH(QString, heading);
    drives->addUsbDisk("/dev/disk2");
    drives->on("diskutil", {"list"}, {DriveScenario::printing(heading)});
    QCOMPARE(disks(), QStringList());
    QCOMPARE(drives->callsOf("diskutil"), QList<QStringList>({{"list"}}));
}

void TstCBurnDialogDrives::descriptionIsNoted()
{
    drives->addUsbDisk("/dev/disk2");
    QVERIFY(fixture->page->CheckDiskIsUSB("/dev/disk2"));
    QVERIFY(debugLines().join('\n').contains("Removable Media:"));
    QVERIFY(!fixture->page->CheckDiskIsUSB("/dev/disk1"));
}

void TstCBurnDialogDrives::opticalDriveIsListedByNameAndDevice()
{
    drives->addOptical(pioneer, "/dev/disk4");
    QCOMPARE(discs(), QStringList(QString(pioneerText) + " (/dev/disk4)"));
    QCOMPARE(fixture->list("dvdlist")->itemData(0), QVariant("/dev/disk4"));
    QCOMPARE(fixture->list("dvdlist")->currentIndex(), 0);
}

void TstCBurnDialogDrives::twoOpticalDrivesAreListedInTheirOrder()
{
    drives->addOptical(pioneer, "/dev/disk4", "/Volumes/Film");
    drives->addOptical(matshita, "/dev/disk3");
    QCOMPARE(discs(), QStringList({QString(pioneerText) + " (/dev/disk4)",
                                   QString(matshitaText) + " (/dev/disk3)"}));
    QCOMPARE(fixture->list("dvdlist")->itemData(1), QVariant("/dev/disk3"));
    QCOMPARE(fixture->list("dvdlist")->currentIndex(), 0);
}

// What is read of a drive is dropped when its device comes, and only then: its name passes to the
// next drive that has one.
void TstCBurnDialogDrives::opticalDriveWithoutDiscGivesItsNameToTheNext()
{
    drives->addOptical(matshita, "");
    drives->addOptical(pioneer, "/dev/disk4");
    QCOMPARE(discs(), QStringList(QString(matshitaText) + " (/dev/disk4)"));
    QCOMPARE(fixture->list("dvdlist")->itemData(0), QVariant("/dev/disk4"));
}

void TstCBurnDialogDrives::nameThatWasReadWithoutADeviceOutlivesTheRefresh()
{
    drives->addOptical(matshita, "");
    QCOMPARE(discs(), QStringList());
    drives = nullptr;
    drives = std::make_unique<DriveScenario>();
    drives->addOptical(pioneer, "/dev/disk4");
    BurnPageFixture other;
    QCOMPARE(other.list("dvdlist")->itemText(0), QString(matshitaText) + " (/dev/disk4)");
    QCOMPARE(discs(), QStringList(QString(pioneerText) + " (/dev/disk4)"));
}

void TstCBurnDialogDrives::statusWithoutHeaderGivesAnEntryThatBeginsWithABlank()
{
    drives->on("drutil", {"status"},
               {DriveScenario::printing(QString(pioneer) +
                                        "\n\n"
                                        "           Type: CD-R    Name: /dev/disk4\n")});
    QCOMPARE(discs(), QStringList(" (/dev/disk4)"));
    QCOMPARE(fixture->list("dvdlist")->itemData(0), QVariant("/dev/disk4"));
}

void TstCBurnDialogDrives::deviceAtTheStartOfALineIsNone()
{
    drives->on("drutil", {"status"}, {DriveScenario::printing(" Name: /dev/disk4\n")});
    QCOMPARE(discs(), QStringList());
}

void TstCBurnDialogDrives::statusWithWindowsLineEndsIsRead()
{
    drives->on("drutil", {"status"},
               {DriveScenario::printing(" Vendor   Product           Rev \r\n" + QString(pioneer) +
                                        "\r\n\r\n           Type: CD-R    Name: /dev/disk4\r\n")});
    QCOMPARE(discs(), QStringList(QString(pioneerText) + " (/dev/disk4)"));
    QCOMPARE(fixture->list("dvdlist")->itemData(0), QVariant("/dev/disk4"));
}

// The tool of a computer without one says nothing, or that there is none.
void TstCBurnDialogDrives::noDriveAtAll()
{
    drives->addOptical(pioneer, "/dev/disk4");
    QCOMPARE(discs().size(), 1);
    drives->on("drutil", {"status"}, {DriveScenario::printing("  No burning devices found.\n")});
    QCOMPARE(discs(), QStringList());
    QCOMPARE(fixture->list("dvdlist")->currentIndex(), -1);
}

KORVEX_TEST_MAIN(TstCBurnDialogDrives)
#include "tst_cburndialog_drives.moc"
