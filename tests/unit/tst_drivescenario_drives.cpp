// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "commandtext.h"
#include "drivescenario.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "toolresult.h"
#include "util.h"

#include <memory>

// The drives of a scenario as the program sees them.
class TstDriveScenarioDrives : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void machineWithoutDrivesHasItsOwnDisk();
    void stickIsKnownToEveryTool();
    void stickWithoutNameHasNoPartition();
    void diskAddedAgainIsChanged();
    void diskThatVanishesIsUnknown();
    void discIsKnownToEveryTool();
    void blankDiscIsOnlyKnownToItsDrive();
    void drivesComeInTheirOrder();
    void imageIsMountedAndUnmounted();
    void imageWithBlanksCannotBeUnmountedWithoutThem();
    void nextScenarioIsSeenByTheProgram();
    void toolsBesideTheProgramAreStandIns();

private:
    // What the program reads from a tool.
    static QString text(const QString& command);

    std::unique_ptr<DriveScenario> scenario;
};

void TstDriveScenarioDrives::init()
{
    TestCase::init();
    scenario = std::make_unique<DriveScenario>();
}

void TstDriveScenarioDrives::cleanup()
{
    scenario.reset();
    TestCase::cleanup();
}

QString TstDriveScenarioDrives::text(const QString& command)
{
    return QString::fromUtf8(runCommandText(command, {}, Patience::Limited));
}

void TstDriveScenarioDrives::machineWithoutDrivesHasItsOwnDisk()
{
    QVERIFY(text("diskutil list").startsWith("/dev/disk0 (internal, physical):\n"));
    QVERIFY(!text("diskutil list").contains("external"));
    QCOMPARE(text("drutil status"), QString());
    QCOMPARE(text("mount"), DriveTexts::systemVolumes());
    QVERIFY(scenario->unmatchedCalls().isEmpty());
}

void TstDriveScenarioDrives::stickIsKnownToEveryTool()
{
    UsbDisk disk;
    disk.size = 31914983424;
    disk.mountPoint = "/Volumes/MY STICK";
    disk.name = "MY STICK";
    scenario->addUsbDisk("/dev/disk2", disk);
    QVERIFY(text("diskutil list").contains("\n/dev/disk2 (external, physical):\n"));
    QCOMPARE(Util::DiskSpaceTotal("/dev/disk2"), disk.size);
    QCOMPARE(Util::GetMountPoint("/dev/disk2"), QString());
    QCOMPARE(Util::GetMountPoint("/dev/disk2s1"), disk.mountPoint);
    QVERIFY(text("mount").endsWith("/dev/disk2s1 on /Volumes/MY STICK (msdos, local, nodev, "
                                   "nosuid, noowners)\n"));
    QCOMPARE(text("diskutil unmountDisk /dev/disk2"), DriveTexts::unmountedDisk("/dev/disk2"));
    QCOMPARE(text("diskutil partitionDisk /dev/disk2 1 MBR FAT32 X R"),
             DriveTexts::partitionedDisk("/dev/disk2", disk));
    QVERIFY(scenario->unmatchedCalls().isEmpty());
}

void TstDriveScenarioDrives::stickWithoutNameHasNoPartition()
{
    UsbDisk disk;
    disk.name.clear();
    scenario->addUsbDisk("/dev/disk2", disk);
    QVERIFY(text("diskutil info /dev/disk2").contains("Content (IOContent):       None\n"));
    QCOMPARE(text("diskutil info /dev/disk2s1"), QString());
    QVERIFY(!text("diskutil list").contains("disk2s1"));
    QVERIFY(scenario->unmatchedCalls().isEmpty());
}

void TstDriveScenarioDrives::diskAddedAgainIsChanged()
{
    scenario->addUsbDisk("/dev/disk2");
    UsbDisk disk;
    disk.size = 1000000000;
    scenario->addUsbDisk("/dev/disk2", disk);
    QCOMPARE(Util::DiskSpaceTotal("/dev/disk2"), disk.size);
    QCOMPARE(text("diskutil list").count("/dev/disk2 ("), 1);
}

void TstDriveScenarioDrives::diskThatVanishesIsUnknown()
{
    scenario->addUsbDisk("/dev/disk2");
    scenario->addUsbDisk("/dev/disk3");
    scenario->removeDisk("/dev/disk2");
    QVERIFY(!text("diskutil list").contains("disk2"));
    QVERIFY(text("diskutil list").contains("disk3"));
    const ToolResult result = runTool("diskutil", {"info", "/dev/disk2"});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QByteArray("Could not find disk: /dev/disk2\n"));
    QVERIFY(scenario->unmatchedCalls().isEmpty());
    scenario->addUsbDisk("/dev/disk2");
    QVERIFY(Util::DiskSpaceTotal("/dev/disk2") > 0);
}

void TstDriveScenarioDrives::discIsKnownToEveryTool()
{
    const QString identification = " HL-DT-ST DVDRAM GP65NS60   PF00";
    scenario->addOptical(identification, "/dev/disk4", "/Volumes/MY DISC");
    QVERIFY(text("drutil status").contains("Name: /dev/disk4\n"));
    QVERIFY(text("diskutil list").contains("\n/dev/disk4 (external, physical):\n"));
    QVERIFY(text("diskutil info /dev/disk4").contains("Optical Drive Type:"));
    QVERIFY(text("mount").contains("\n/dev/disk4 on /Volumes/MY DISC (cd9660, "));
    QCOMPARE(text("hdiutil eject /dev/disk4"), QString("\"disk4\" ejected.\n"));
    QVERIFY(scenario->unmatchedCalls().isEmpty());
    scenario->removeDisk("/dev/disk4");
    QCOMPARE(text("drutil status"), QString());
    QVERIFY(!text("diskutil list").contains("disk4"));
}

void TstDriveScenarioDrives::blankDiscIsOnlyKnownToItsDrive()
{
    scenario->addOptical(" MATSHITA DVD-RAM UJ8E2 S   1.00", "/dev/disk7");
    QVERIFY(text("drutil status").contains("Type: CD-R                 Name: /dev/disk7\n"));
    QVERIFY(!text("diskutil list").contains("disk7"));
    QCOMPARE(text("mount"), DriveTexts::systemVolumes());
}

void TstDriveScenarioDrives::drivesComeInTheirOrder()
{
    scenario->addOptical(" MATSHITA DVD-RAM UJ8E2 S   1.00", "");
    scenario->addOptical(" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk4", "/Volumes/A");
    QCOMPARE(text("drutil status").toUtf8(),
             readFile(KORVEX_TEST_DATA "/drutil/status-two-drives-reconstructed.txt"));
    scenario->addUsbDisk("/dev/disk3");
    scenario->addUsbDisk("/dev/disk2");
    const QString listed = text("diskutil list");
    QVERIFY(listed.indexOf("/dev/disk3 ") < listed.indexOf("/dev/disk2 "));
}

void TstDriveScenarioDrives::imageIsMountedAndUnmounted()
{
    scenario->addImageMount("/home/a b.iso", "/Volumes/WIN", "/dev/disk5");
    QCOMPARE(text("hdiutil mount \"/home/a b.iso\"").section('\t', 2), QString("/Volumes/WIN\n"));
    QCOMPARE(text("hdiutil unmount -force /Volumes/WIN"),
             QString("\"/Volumes/WIN\" unmounted successfully.\n"));
    QCOMPARE(text("hdiutil unmount/Volumes/WIN"), QString());
    QVERIFY(scenario->unmatchedCalls().isEmpty());
}

void TstDriveScenarioDrives::imageWithBlanksCannotBeUnmountedWithoutThem()
{
    scenario->addImageMount("/a.iso", "/Volumes/MY DISC");
    QCOMPARE(text("hdiutil unmount -force /Volumes/MYDISC"), QString());
    QCOMPARE(text("hdiutil unmount/Volumes/MYDISC"), QString());
    QVERIFY(!text("hdiutil unmount -force \"/Volumes/MY DISC\"").isEmpty());
    QVERIFY(scenario->unmatchedCalls().isEmpty());
}

// The program keeps the environment that its first tool was started with.
void TstDriveScenarioDrives::nextScenarioIsSeenByTheProgram()
{
    scenario->addUsbDisk("/dev/disk2");
    QVERIFY(text("diskutil list").contains("disk2"));
    scenario.reset();
    scenario = std::make_unique<DriveScenario>();
    scenario->addUsbDisk("/dev/disk3");
    QVERIFY(text("diskutil list").contains("disk3"));
    QCOMPARE(scenario->commands(), (QList<QStringList>{{"diskutil", "list"}}));
}

void TstDriveScenarioDrives::toolsBesideTheProgramAreStandIns()
{
    scenario->on("7z", {"..."}, {DriveScenario::becoming(KORVEX_REAL_7Z)});
    scenario->on("wimlib-imagex", {"--version"}, {DriveScenario::becoming(KORVEX_REAL_WIMLIB)});
    const QString beside = Util::GetCurrentExePath();
    QVERIFY(text('"' + beside + "/7z/7z\" i").contains("7-Zip"));
    QVERIFY(text('"' + beside + "/wimlib-imagex/wimlib-imagex\" --version").contains("wimlib"));
    QCOMPARE(scenario->commands(),
             (QList<QStringList>{{"7z", "i"}, {"wimlib-imagex", "--version"}}));
}

KORVEX_TEST_MAIN(TstDriveScenarioDrives)
#include "tst_drivescenario_drives.moc"
