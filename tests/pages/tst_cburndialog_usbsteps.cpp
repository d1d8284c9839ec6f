// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usbwritefixture.h"

#include <QDir>

// The steps of writing a USB disk: which tools run in which order, with which arguments.
class TstCBurnDialogUsbSteps : public TestCase
{
    Q_OBJECT

private slots:
    void smallImage();
    void installWim_data();
    void installWim();
    void largeImageIsUnmountedAfterAll();
    void stepsRunStrictlyOneAfterAnother();
    void secondBurnIsAsTheFirst();
    void fileSystem_data();
    void fileSystem();
    void label_data();
    void label();
    void labelRefusesWhatTheFileSystemCannotHold();
    void partitionStyleChangesNothing_data();
    void partitionStyleChangesNothing();
    void bootMenuIsWrittenAfterTheBootToolAndBeforeTheCopy();
    void bootMenuIsWrittenForEveryImage();
    void contentGoesToTheMountPoint();
};

namespace
{

const qint64 fourGibibytes = 4294967296LL;

const QByteArray bootMenu("default boot\nLABEL boot\nMENU LABEL boot\n"
                          "COM32 /syslinux/chain.c32\nAPPEND fs ntldr=/bootmgr\n");

const QStringList successTexts = {
    "Your USB drive will be formatted and all data in it will be deleted! Do you want to continue?",
    "Burning Successfully..."};

void typeLabel(const UsbWriteFixture& fixture, const QString& text)
{
    fixture.line("volumelab")->setFocus();
    QTest::keyClicks(fixture.line("volumelab"), text);
}

} // namespace

void TstCBurnDialogUsbSteps::smallImage()
{
    UsbWriteFixture fixture;
    QCOMPARE(fixture.write(), successTexts);
    QCOMPARE(fixture.commands(), fixture.wholeRun(fixture.image(), false));
    QCOMPARE(fixture.drives.unmatchedCalls(), QList<QStringList>());
}

void TstCBurnDialogUsbSteps::installWim_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<bool>("isLarge");

    QTest::newRow("empty") << 0LL << false;
    QTest::newRow("a byte below 4 GiB") << fourGibibytes - 1 << false;
    QTest::newRow("4 GiB") << fourGibibytes << true;
    QTest::newRow("a byte above 4 GiB") << fourGibibytes + 1 << true;
}

void TstCBurnDialogUsbSteps::installWim()
{
    QFETCH(qint64, bytes);
    QFETCH(bool, isLarge);
    UsbWriteFixture fixture;
    fixture.addInstallWim(bytes);
    QCOMPARE(fixture.write(), successTexts);
    QCOMPARE(fixture.commands(), fixture.wholeRun(fixture.image(), isLarge));
}

void TstCBurnDialogUsbSteps::largeImageIsUnmountedAfterAll()
{
    UsbWriteFixture fixture;
    fixture.addInstallWim(fourGibibytes);
    QCOMPARE(fixture.write(), successTexts);
    QCOMPARE(fixture.drives.unmatchedCalls(), QList<QStringList>());
    QCOMPARE(fixture.commands().last(),
             (QStringList{"hdiutil", "unmount", "-force", fixture.mountedImage()}));
}

void TstCBurnDialogUsbSteps::stepsRunStrictlyOneAfterAnother()
{
    UsbWriteFixture fixture;
    fixture.addInstallWim(fourGibibytes);
    fixture.drives.on("diskutil", {"partitionDisk", "..."}, {fixture.drives.holding("diskutil")});
    for (const QString tool : {"mkbootable", "7z", "wimlib-imagex"})
        fixture.drives.on(tool, {"..."}, {fixture.drives.holding(tool)});
    // Each stays for another look after it was first seen, while a hasty next one would begin.
    QString seen;
    QTimer looks;
    looks.callOnTimeout([&] {
        const QList<DriveCall> calls = fixture.calls();
        if (calls.isEmpty())
            return;
        if (calls.last().program == seen)
            fixture.drives.release(seen);
        seen = calls.last().program;
    });
    looks.start(20);
    fixture.write();
    const QList<DriveCall> calls = fixture.calls();
    QCOMPARE(calls.size(), fixture.wholeRun(fixture.image(), true).size());
    for (int i = 1; i < calls.size(); ++i) {
        // What sudo runs is a part of it.
        const int before = calls.at(i).program == "mkbootable" ? i - 2 : i - 1;
        QVERIFY(calls.at(before).ended >= 0);
        QVERIFY2(calls.at(before).ended < calls.at(i).begun, qPrintable(calls.at(i).program));
    }
}

void TstCBurnDialogUsbSteps::secondBurnIsAsTheFirst()
{
    UsbWriteFixture fixture;
    const auto run = fixture.wholeRun(fixture.image(), false);
    QCOMPARE(fixture.write(), successTexts);
    QCOMPARE(fixture.write(), successTexts);
    QCOMPARE(fixture.commands(), run + run);
    QCOMPARE(readFile(fixture.stick() + "/syslinux.cfg"), bootMenu);
}

void TstCBurnDialogUsbSteps::fileSystem_data()
{
    QTest::addColumn<int>("choice");
    QTest::addColumn<qint64>("diskBytes");
    QTest::addColumn<QString>("argument");

    QTest::newRow("FAT32 below 4 GiB") << 0 << fourGibibytes - 1 << "FAT32";
    QTest::newRow("FAT32 at 4 GiB") << 0 << fourGibibytes << "FAT32";
    QTest::newRow("FAT below 4 GiB") << 1 << fourGibibytes - 1 << "\"MS-DOS FAT16\"";
    QTest::newRow("FAT at 4 GiB") << 1 << fourGibibytes << "FAT32";
    QTest::newRow("FAT above 4 GiB") << 1 << fourGibibytes + 1 << "FAT32";
}

void TstCBurnDialogUsbSteps::fileSystem()
{
    QFETCH(int, choice);
    QFETCH(qint64, diskBytes);
    QFETCH(QString, argument);
    UsbDisk disk;
    disk.size = diskBytes;
    UsbWriteFixture fixture(disk);
    fixture.list("sysfilelist")->setCurrentIndex(choice);
    QCOMPARE(fixture.write(), successTexts);
    QCOMPARE(fixture.commands(), fixture.wholeRun(fixture.image(), false, argument));
}

void TstCBurnDialogUsbSteps::label_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("argument");

    QTest::newRow("nothing") << ""
                             << "NONAME";
    QTest::newRow("blanks alone") << "   "
                                  << "NONAME";
    QTest::newRow("lower case") << "windows"
                                << "WINDOWS";
    QTest::newRow("blanks inside") << "MY  STICK"
                                   << "MY  STICK";
    QTest::newRow("blanks around") << " STICK "
                                   << "STICK";
    QTest::newRow("twelve characters") << "ABCDEFGHIJKL"
                                       << "ABCDEFGHIJK";
    QTest::newRow("like an option") << "-rf"
                                    << "-RF";
    QTest::newRow("shell's characters") << "$(a)`b`&'"
                                        << "$(A)`B`&'";
}

void TstCBurnDialogUsbSteps::label()
{
    QFETCH(QString, typed);
    QFETCH(QString, argument);
    UsbWriteFixture fixture;
    typeLabel(fixture, typed);
    QCOMPARE(fixture.write(), successTexts);
    QCOMPARE(fixture.commands(), fixture.wholeRun(fixture.image(), false, "FAT32", argument));
}

void TstCBurnDialogUsbSteps::labelRefusesWhatTheFileSystemCannotHold()
{
    UsbWriteFixture fixture;
    typeLabel(fixture, "a\"*/:<>?\\|+,.;=[]b");
    QCOMPARE(fixture.line("volumelab")->text(), QString("AB"));
    QCOMPARE(fixture.write(), successTexts);
    QCOMPARE(fixture.commands(), fixture.wholeRun(fixture.image(), false, "FAT32", "AB"));
}

void TstCBurnDialogUsbSteps::partitionStyleChangesNothing_data()
{
    QTest::addColumn<int>("style");

    QTest::newRow("MBR") << 0;
    QTest::newRow("GPT") << 1;
}

void TstCBurnDialogUsbSteps::partitionStyleChangesNothing()
{
    QFETCH(int, style);
    UsbWriteFixture fixture;
    fixture.list("ptlist")->setCurrentIndex(style);
    QCOMPARE(fixture.list("ptlist")->currentIndex(), style);
    QCOMPARE(fixture.write(), successTexts);
    QCOMPARE(fixture.commands(), fixture.wholeRun(fixture.image(), false));
}

void TstCBurnDialogUsbSteps::bootMenuIsWrittenAfterTheBootToolAndBeforeTheCopy()
{
    UsbWriteFixture fixture;
    QDir(fixture.path("")).mkpath("seen/atboot");
    QDir(fixture.path("")).mkpath("seen/atcopy");
    const auto look = [&fixture](const QString& name) {
        return DriveScenario::copying(fixture.stick(), fixture.path("seen/" + name));
    };
    fixture.drives.on("mkbootable", {"..."}, {look("atboot")});
    fixture.drives.on("7z", {"..."}, {look("atcopy")});
    QCOMPARE(fixture.write(), successTexts);
    QCOMPARE(entriesOf(fixture.path("seen/atboot")), QStringList());
    QCOMPARE(entriesOf(fixture.path("seen/atcopy")), QStringList{"syslinux.cfg"});
    QCOMPARE(readFile(fixture.path("seen/atcopy/syslinux.cfg")), bootMenu);
}

void TstCBurnDialogUsbSteps::bootMenuIsWrittenForEveryImage()
{
    UsbWriteFixture fixture;
    fixture.useImage(fixture.path("image.img"));
    writeFile(fixture.stick() + "/syslinux.cfg",
              "something longer than the boot menu " + QByteArray(4096, 'x') + " that was there");
    QCOMPARE(fixture.write(), successTexts);
    QCOMPARE(readFile(fixture.stick() + "/syslinux.cfg"), bootMenu);
}

void TstCBurnDialogUsbSteps::contentGoesToTheMountPoint()
{
    UsbWriteFixture fixture;
    writeFile(fixture.path("content/boot/efi.img"), "efi");
    fixture.drives.on("7z", {"..."},
                      {DriveScenario::copying(fixture.path("content"), fixture.stick())});
    QCOMPARE(fixture.write(), successTexts);
    QCOMPARE(readFile(fixture.stick() + "/boot/efi.img"), QByteArray("efi"));
    QCOMPARE(entriesOf(fixture.stick()), (QStringList{"boot", "syslinux.cfg"}));
}

KORVEX_TEST_MAIN(TstCBurnDialogUsbSteps)
#include "tst_cburndialog_usbsteps.moc"
