// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "drivetexts.h"
#include "fatlayout.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// What the stand-ins print about drives is what the tools print, to the byte.
class TstDriveTexts : public TestCase
{
    Q_OBJECT

private slots:
    void textIsThatOfTheTranscript_data();
    void textIsThatOfTheTranscript();
    void mountedPartitionHasTheRowsOfTheTranscript();
    void unmountedPartitionHasNoMountPoint();
    void fixedDiskCannotBeRemoved();
    void diskOfFourGigabytesIsFat32_data();
    void diskOfFourGigabytesIsFat32();
    void largeVolumeIsFormattedAsInTheTranscript();
    void sizesAreRoundedInThousands_data();
    void sizesAreRoundedInThousands();
    void burningBeginsAndEndsAsInTheTranscript();
};

namespace
{

QString transcript(const QString& name)
{
    return QString::fromUtf8(readFile(QStringLiteral(KORVEX_TEST_DATA "/") + name));
}

// The labels of rows in order.
QStringList labelsOf(const QString& text)
{
    QStringList labels;
    for (const QString& line : text.split('\n'))
        labels.append(line.section(':', 0, 0));
    return labels;
}

const OpticalDrive dvdDrive = {" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk4",
                               "/Volumes/Untitled"};
const QString olderDrive = " MATSHITA DVD-RAM UJ8E2 S   1.00";

} // namespace

void TstDriveTexts::textIsThatOfTheTranscript_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    UsbDisk small;
    small.size = 509386752;
    UsbDisk blank;
    blank.name.clear();
    UsbDisk stick = blank;
    stick.size = 31914983424;

    QTest::newRow("listed stick") << DriveTexts::listedUsbDisk("/dev/disk2", small)
                                  << transcript("diskutil/list-usb-stick-macos10.11.txt") + '\n';
    // The older system names no kind.
    QTest::newRow("listed blank disk")
        << DriveTexts::listedUsbDisk("/dev/disk2", blank).remove(" (external, physical):")
        << transcript("diskutil/list-blank-disk-macos10.10.txt") + '\n';
    QTest::newRow("partitioning") << DriveTexts::partitionedDisk("/dev/disk2", small)
                                  << transcript("diskutil/partition-mbr-fat16-macos10.15.txt");
    QTest::newRow("stick")
        << DriveTexts::diskInfo("/dev/disk6", stick).replace("Flash Disk", "1081")
        << transcript("diskutil/info-whole-stick-macos11.txt");
    // The disc of the transcript has no name.
    const QString unnamed = QString("Volume Name:").leftJustified(27);
    QTest::newRow("disc") << DriveTexts::opticalInfo(dvdDrive).replace(unnamed + "Untitled",
                                                                       unnamed)
                          << transcript("diskutil/info-optical-dvd-macos11.txt");
    QTest::newRow("no such disk") << DriveTexts::noSuchDisk("disk9")
                                  << transcript("diskutil/info-missing-disk.txt");
    QTest::newRow("unmounting a disk")
        << DriveTexts::unmountedDisk("/dev/disk2") << transcript("diskutil/unmount-disk.txt");
    QTest::newRow("drive with a DVD")
        << DriveTexts::opticalStatus(dvdDrive) << transcript("drutil/status-dvd-rom.txt");
    QTest::newRow("drive with a blank disc")
        << DriveTexts::opticalStatus({olderDrive, "/dev/disk7", ""})
        << transcript("drutil/status-blank-cd-r.txt");
    QTest::newRow("drive without a disc") << DriveTexts::opticalStatus({olderDrive, "", ""})
                                          << transcript("drutil/status-no-disc.txt");
    QTest::newRow("volumes of the system")
        << DriveTexts::systemVolumes()
        << transcript("mount/mount-system-and-image-macos10.15.txt").section('\n', 0, 4) + '\n';
    QTest::newRow("mounted disc") << DriveTexts::mountedVolume("/dev/disk4", "/Volumes/PLANET51",
                                                               "udf")
                                  << transcript("mount/mount-optical-discs.txt").section('\n', 4);
    QTest::newRow("mounted image") << DriveTexts::mountedImage("/dev/disk3", "/Volumes/sample")
                                   << transcript("hdiutil/mount-plain-iso.txt");
    QTest::newRow("mounted image with a blank")
        << DriveTexts::mountedImage("/dev/disk4", "/Volumes/taiOS BOOT")
        << transcript("hdiutil/mount-blanks-in-name.txt");
    QTest::newRow("unmounted image")
        << DriveTexts::unmountedImage("/Volumes/Jass") << transcript("hdiutil/unmount.txt");
    QTest::newRow("making a hybrid")
        << DriveTexts::makingHybrid({"0", "0.08235294", "0.5176471", "1"})
        << transcript("hdiutil/makehybrid-debug-reconstructed.txt");
}

void TstDriveTexts::textIsThatOfTheTranscript()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QVERIFY(!expected.trimmed().isEmpty());
    QCOMPARE(text, expected);
}

void TstDriveTexts::mountedPartitionHasTheRowsOfTheTranscript()
{
    UsbDisk disk;
    disk.mountPoint = "/Volumes/MY STICK";
    const QString text = DriveTexts::partitionInfo("/dev/disk6", disk);
    QStringList expected = labelsOf(transcript("diskutil/info-mounted-partition-macos11.txt"));
    // FAT volumes have none in the transcripts.
    expected.removeOne("   Volume UUID");
    QCOMPARE(labelsOf(text), expected);
    QVERIFY(text.contains("\n   Mount Point:               /Volumes/MY STICK\n"));
    QVERIFY(text.contains("\n   Device Node:               /dev/disk6s1\n"));
}

void TstDriveTexts::unmountedPartitionHasNoMountPoint()
{
    const QString text = DriveTexts::partitionInfo("/dev/disk6", {});
    QVERIFY(!text.contains("Mount Point"));
    QVERIFY(text.contains("\n   Mounted:                   No\n"));
}

void TstDriveTexts::fixedDiskCannotBeRemoved()
{
    UsbDisk disk;
    disk.fixed = true;
    disk.protocol = "SATA";
    const QString text = DriveTexts::diskInfo("/dev/disk3", disk);
    QVERIFY(text.contains("\n   Removable Media:           Fixed\n\n"));
    QVERIFY(text.contains("\n   Protocol:                  SATA\n"));
}

void TstDriveTexts::diskOfFourGigabytesIsFat32_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<QString>("type");
    QTest::newRow("4 GiB") << Q_INT64_C(4294967296) << "FAT32";
    QTest::newRow("a sector less") << Q_INT64_C(4294966784) << "FAT16";
}

void TstDriveTexts::diskOfFourGigabytesIsFat32()
{
    QFETCH(qint64, size);
    QFETCH(QString, type);
    UsbDisk disk;
    disk.size = size;
    disk.name = "A B";
    const QString text = DriveTexts::partitionedDisk("/dev/disk2", disk);
    QVERIFY(text.contains("as MS-DOS (" + type + ") with name A B\n"));
    QVERIFY(text.contains(" " + type + " clusters ("));
    QString listed = type;
    QVERIFY(text.contains("DOS_" + listed.insert(3, '_') + " A B "));
}

// That volume begins at another sector.
void TstDriveTexts::largeVolumeIsFormattedAsInTheTranscript()
{
    const QString expected =
        transcript("diskutil/partition-mbr-fat32-macos10.10.txt").section('\n', 6, 7) + '\n';
    const FatLayout layout(15633406 + 2048);
    QCOMPARE(layout.formatReport("disk2").replace("hid=2048", "hid=2"), expected);
}

void TstDriveTexts::sizesAreRoundedInThousands_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<QString>("rounded");
    QTest::newRow("nothing") << Q_INT64_C(0) << "0 B";
    QTest::newRow("below a thousand") << Q_INT64_C(999) << "999 B";
    QTest::newRow("kilobyte") << Q_INT64_C(1000) << "1.0 KB";
    QTest::newRow("card") << Q_INT64_C(15635841024) << "15.6 GB";
    QTest::newRow("terabytes") << Q_INT64_C(3000592982016) << "3.0 TB";
    QTest::newRow("petabytes") << Q_INT64_C(3000592982016000) << "3000.6 TB";
}

void TstDriveTexts::sizesAreRoundedInThousands()
{
    QFETCH(qint64, size);
    QFETCH(QString, rounded);
    UsbDisk disk;
    disk.size = size;
    disk.name.clear();
    QVERIFY(DriveTexts::listedUsbDisk("/dev/disk2", disk).contains("  *" + rounded + "  "));
}

void TstDriveTexts::burningBeginsAndEndsAsInTheTranscript()
{
    const QString expected = transcript("hdiutil/burn-macos10.15.txt");
    const QString text = DriveTexts::burning({"-1", "0.5"});
    QCOMPARE(text.section('\n', 0, 3), expected.section('\n', 0, 3));
    QCOMPARE(text.section('\n', -2), expected.section('\n', -2));
    QCOMPARE(text.count("DRStatusPercentCompleteKey: "), 2);
    QVERIFY(text.contains("\nDRStatusPercentCompleteKey: 0.5\n"));
}

KORVEX_TEST_MAIN(TstDriveTexts)
#include "tst_drivetexts.moc"
