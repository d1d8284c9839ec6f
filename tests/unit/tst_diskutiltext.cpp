// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskutilinfo.h"
#include "diskutiltext.h"
#include "lsblk.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usbdiskreader.h"

// What is printed about disks, over the devices in tests/data/lsblk, and what the program reads
// from it.
class TstDiskutilText : public TestCase
{
    Q_OBJECT

private slots:
    void listOfAStick();
    void listKeepsItsColumns();
    void infoOfAStick();
    void infoOfAPartition();
    void roundedSizes_data();
    void roundedSizes();
    void programOffersUsbDisks_data();
    void programOffersUsbDisks();
    void programReadsSizeAndMountPoint_data();
    void programReadsSizeAndMountPoint();
    void swapIsNoMountPoint();
};

namespace
{

BlockDevice captured(const QString& name)
{
    const BlockDevices read =
        readBlockDevices(readFile(KORVEX_TEST_DATA "/lsblk/" + name + ".json"));
    return read.devices.value(0);
}

QString infoOf(const BlockDevice& disk, const BlockDevice& part)
{
    OpticalDrive drive;
    readDriveProperties({}, drive);
    return diskInfoLines(disk, part, disk.isOptical() ? &drive : nullptr).join('\n');
}

} // namespace

void TstDiskutilText::listOfAStick()
{
    QCOMPARE(diskListLines(captured("usb-stick")),
             QStringList(
                 {"/dev/sdb (external, physical):",
                  "   #:                       TYPE NAME                    SIZE       IDENTIFIER",
                  "   0:     FDisk_partition_scheme                        *31.9 GB    sdb",
                  "   1:                 DOS_FAT_32 MY STICK                31.9 GB    sdb1"}));
}

void TstDiskutilText::listKeepsItsColumns()
{
    BlockDevice disk = captured("usb-stick");
    disk.children[0].label = "A label that is longer than its column";
    disk.children[0].fileSystem = "a_file_system_with_a_name_too_long";
    const QStringList lines = diskListLines(disk);
    QCOMPARE(lines[3].section(' ', -1), QString("sdb1"));
    QCOMPARE(lines[2].indexOf("sdb"), 68);
    disk.children[0].fileSystem = "xfs";
    QCOMPARE(diskListLines(disk)[3],
             QString("   1:                        xfs A label that is longer  31.9 GB    sdb1"));
}

void TstDiskutilText::infoOfAStick()
{
    const QStringList lines = infoOf(captured("usb-stick"), captured("usb-stick")).split('\n');
    for (const char* const line :
         {"   Device Identifier:         sdb", "   Device Node:               /dev/sdb",
          "   Whole:                     Yes", "   Part of Whole:             sdb",
          "   Device / Media Name:       SanDisk Cruzer Blade",
          "   Mounted:                   Not applicable (no file system)",
          "   Protocol:                  USB",
          "   Disk Size:                 31.9 GB (31914983424 Bytes) (exactly 62333952 "
          "512-Byte-Units)",
          "   Media Read-Only:           No", "   Device Location:           External",
          "   Removable Media:           Removable"})
        QVERIFY2(lines.contains(line), line);
    QCOMPARE(lines.filter("Mount Point:"), QStringList());
    QCOMPARE(lines.filter("Optical"), QStringList());
}

void TstDiskutilText::infoOfAPartition()
{
    const BlockDevice disk = captured("usb-stick");
    const QStringList lines = infoOf(disk, *disk.partition(1)).split('\n');
    for (const char* const line :
         {"   Device Identifier:         sdb1", "   Whole:                     No",
          "   Part of Whole:             sdb", "   Volume Name:               MY STICK",
          "   Mounted:                   Yes", "   Mount Point:               /media/user/MY STICK",
          "   Protocol:                  USB"})
        QVERIFY2(lines.contains(line), line);
    QCOMPARE(lines.filter("Media Name:"), QStringList());
}

void TstDiskutilText::roundedSizes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0LL << "0 B (0 Bytes) (exactly 0 512-Byte-Units)";
    QTest::newRow("bytes") << 512LL << "512 B (512 Bytes) (exactly 1 512-Byte-Units)";
    QTest::newRow("rounded up to the next unit")
        << 999999999LL << "1.0 GB (999999999 Bytes) (exactly 1953124 512-Byte-Units)";
    QTest::newRow("disk too large for 32 bits of sectors")
        << 4000787030016LL << "4.0 TB (4000787030016 Bytes) (exactly 7814037168 512-Byte-Units)";
}

void TstDiskutilText::roundedSizes()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, text);
    BlockDevice disk;
    disk.size = bytes;
    QCOMPARE(diskInfoLines(disk, disk, nullptr).filter("Disk Size:"),
             QStringList("   Disk Size:                 " + text));
    QCOMPARE(diskSizeOf(infoOf(disk, disk)), bytes);
}

void TstDiskutilText::programOffersUsbDisks_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<bool>("isUsb");
    QTest::newRow("usb-stick") << "/dev/sdb" << true;
    QTest::newRow("usb-stick-without-partitions") << "/dev/sdb" << true;
    QTest::newRow("usb-ssd") << captured("usb-ssd").path << false;
    QTest::newRow("cd-drive") << captured("cd-drive").path << false;
    QTest::newRow("sata-data-disk") << "" << false;
    QTest::newRow("nvme-system-disk") << "" << false;
    QTest::newRow("card-in-built-in-reader") << "" << false;
}

void TstDiskutilText::programOffersUsbDisks()
{
    const BlockDevice disk = captured(QTest::currentDataTag());
    QVERIFY(!disk.path.isEmpty());
    QTEST(externalDiskOf(diskListLines(disk).first() + '\n').value_or(QString()), "device");
    QTEST(isRemovableUsbDisk(infoOf(disk, disk)), "isUsb");
}

void TstDiskutilText::programReadsSizeAndMountPoint_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << "/media/user/STICK";
    QTest::newRow("blanks") << "/media/user/MY STICK";
    QTest::newRow("unicode") << QString::fromUtf8("/media/user/\u5149\u76d8");
    QTest::newRow("label of another line") << "/media/user/Protocol: USB";
    QTest::newRow("not mounted") << "";
}

void TstDiskutilText::programReadsSizeAndMountPoint()
{
    QFETCH(QString, path);
    BlockDevice disk = captured("usb-stick");
    disk.children[0].mountPoints = path.isEmpty() ? QStringList() : QStringList(path);
    const QString info = infoOf(disk, disk.children[0]);
    QCOMPARE(mountPointOf(info), path);
    QCOMPARE(diskSizeOf(info), disk.children[0].size);
}

void TstDiskutilText::swapIsNoMountPoint()
{
    BlockDevice device;
    device.mountPoints = QStringList{"[SWAP]", "/media/user/X"};
    QCOMPARE(mountPathOf(device), QString("/media/user/X"));
    QCOMPARE(mountPathOf(BlockDevice()), QString());
}

KORVEX_TEST_MAIN(TstDiskutilText)

#include "tst_diskutiltext.moc"
