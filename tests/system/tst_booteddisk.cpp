// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootabledisk.h"
#include "bootfiles.h"
#include "bootmanager.h"
#include "imagedisk.h"
#include "macimagedisk.h"
#include "mbr.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "virtualpc.h"

#include <QProcess>

// Disk images made bootable with the installed boot loader, and booted in a virtual PC. Only the
// mounting is not real: what is copied to the mount point is put into the file system afterwards.
class TstBootedDisk : public TestCase
{
    Q_OBJECT

private slots:
    void bootsTheImage_data();
    void bootsTheImage();
    void saysWhatIsMissing();
    void bootsTheImageOfOurOwnInstaller_data();
    void bootsTheImageOfOurOwnInstaller();
};

namespace
{

constexpr int megabytes = 40;
constexpr int bootLimitMs = 400000;

void run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool ended = process.waitForFinished();
    QVERIFY2(ended && process.exitCode() == 0,
             qPrintable(program + ": " + process.errorString() + process.readAll()));
}

void formatPartition(const ImageDisk& stick, int fatBits)
{
    writeFile(stick.partition(), {});
    QVERIFY(QFile::resize(stick.partition(), megabytes * 1024LL * 1024));
    run("mkfs.vfat",
        {"-F", QString::number(fatBits), "-s", fatBits == 32 ? "1" : "4", "-h",
         QString::number(ImageDisk::firstSector), "-n", "MY STICK", stick.partition()});
    writeFile(stick.disk(), ImageDisk::partitionedMbr(megabytes * 2048));
    QVERIFY(QFile::resize(stick.disk(),
                          megabytes * 1024LL * 1024 + ImageDisk::firstSector * sectorSize));
    stick.tellSize();
}

void makeBootable(const ImageDisk& stick)
{
    stick.useReal("syslinux");
    stick.useReal("sync");
    QStringList said;
    BootableDisk::Setup setup = stick.setup(&said);
    setup.bootFiles = findBootFiles("/");
    QCOMPARE(BootableDisk(setup).make(), QString());
}

// Brings into the partition what lies at the mount point, and the partition onto the disk.
void putTogether(const ImageDisk& stick)
{
    QStringList arguments{"-s", "-i", stick.partition()};
    for (const QString& entry : entriesOf(stick.mountPoint()))
        arguments << stick.mountPoint() + '/' + entry;
    run("mcopy", arguments << "::/");
    run("dd", {"if=" + stick.partition(), "of=" + stick.disk(), "bs=512",
               QStringLiteral("seek=%1").arg(ImageDisk::firstSector), "conv=notrunc"});
}

} // namespace

void TstBootedDisk::bootsTheImage_data()
{
    QTest::addColumn<int>("fatBits");
    QTest::newRow("FAT16") << 16;
    QTest::newRow("FAT32") << 32;
}

void TstBootedDisk::bootsTheImage()
{
    QFETCH(int, fatBits);
    const ImageDisk stick;
    formatPartition(stick, fatBits);
    makeBootable(stick);
    const QByteArray text = "FAT" + QByteArray::number(fatBits) + " boot manager runs";
    writeFile(stick.mountPoint() + "/syslinux.cfg", bootMenu);
    writeFile(stick.mountPoint() + "/bootmgr", bootManager(text));
    putTogether(stick);
    const QString screen = VirtualPc(stick.disk()).screenWith(text, bootLimitMs);
    QVERIFY2(screen.contains(text), qPrintable(screen));
}

void TstBootedDisk::saysWhatIsMissing()
{
    const ImageDisk stick;
    formatPartition(stick, 16);
    makeBootable(stick);
    writeFile(stick.mountPoint() + "/syslinux.cfg", bootMenu);
    putTogether(stick);
    const QString text = "Couldn't read the boot file";
    const QString screen = VirtualPc(stick.disk()).screenWith(text, bootLimitMs);
    QVERIFY2(screen.contains(text), qPrintable(screen));
}

void TstBootedDisk::bootsTheImageOfOurOwnInstaller_data()
{
    QTest::addColumn<int>("fatBits");
    QTest::addColumn<int>("sectorsPerCluster");
    QTest::addColumn<int>("megabytesOfDisk");
    QTest::addColumn<int>("gaps");
    QTest::newRow("FAT16, 2 KiB") << 16 << 4 << 40 << 0;
    QTest::newRow("FAT16, 16 KiB") << 16 << 32 << 100 << 0;
    QTest::newRow("FAT16, scattered") << 16 << 2 << 20 << 800;
    QTest::newRow("FAT32, 512 bytes") << 32 << 1 << 40 << 0;
    QTest::newRow("FAT32, 1 KiB") << 32 << 2 << 80 << 0;
    QTest::newRow("FAT32, scattered") << 32 << 1 << 40 << 1600;
}

void TstBootedDisk::bootsTheImageOfOurOwnInstaller()
{
    QFETCH(int, fatBits);
    QFETCH(int, sectorsPerCluster);
    QFETCH(int, megabytesOfDisk);
    QFETCH(int, gaps);
    const FatImage fileSystem(fatBits, sectorsPerCluster, megabytesOfDisk);
    if (gaps > 0)
        fileSystem.scatterFreeSpace(gaps);
    const MacImageDisk stick(fileSystem);
    QStringList said;
    QCOMPARE(MacBootableDisk(stick.setup(&said)).make(), QString());
    const QByteArray text = QByteArray(QTest::currentDataTag()) + " runs";
    stick.put("syslinux.cfg", bootMenu);
    stick.put("bootmgr", bootManager(text));
    const QString screen = VirtualPc(stick.disk()).screenWith(text, bootLimitMs);
    QVERIFY2(screen.contains(text), qPrintable(screen));
}

KORVEX_TEST_MAIN(TstBootedDisk)
#include "tst_booteddisk.moc"
