// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usbdiskreader.h"

// Which of the disks that the disk tool tells of are offered as USB disks, and why.
class TstUsbDiskReader : public TestCase
{
    Q_OBJECT

private slots:
    void listedDisks_data();
    void listedDisks();
    void heading_data();
    void heading();
    void describedDisk_data();
    void describedDisk();
    void info_data();
    void info();
};

namespace
{

QString captured(const QString& name)
{
    return QString::fromUtf8(readFile(KORVEX_TEST_DATA "/diskutil/" + name + ".txt"));
}

// Every candidate of a listing, in its order.
QStringList candidatesIn(const QString& listing)
{
    QStringList disks;
    for (const QString& line : listing.split('\n')) {
        if (const auto disk = externalDiskOf(line + '\n'))
            disks.append(*disk);
    }
    return disks;
}

} // namespace

void TstUsbDiskReader::listedDisks_data()
{
    QTest::addColumn<QStringList>("disks");

    QTest::newRow("list-usb-stick-macos10.11") << QStringList{"/dev/disk2"};
    QTest::newRow("list-installer-stick-macos10.11") << QStringList{"/dev/disk2"};
    // An optical disc is a candidate here; its description rules it out.
    QTest::newRow("list-apple-partitioned-cd-macos10.11") << QStringList{"/dev/disk3"};
    // Internal, synthesized and virtual disks and disk images.
    QTest::newRow("list-apple-silicon-macos12") << QStringList();
    QTest::newRow("list-apple-silicon-unstarred-macos11") << QStringList();
    QTest::newRow("list-disk-image-macos10.12") << QStringList();
    // Systems that old do not say what is external.
    QTest::newRow("list-blank-disk-macos10.10") << QStringList();
    QTest::newRow("list-free-space-row") << QStringList();
    // Partitioning ends with a listing of the disk.
    QTest::newRow("partition-mbr-fat16-macos10.15") << QStringList{"/dev/disk2"};
    QTest::newRow("partition-mbr-fat32-macos10.10") << QStringList();
}

void TstUsbDiskReader::listedDisks()
{
    const QString listing = captured(QTest::currentDataTag());
    QVERIFY(!listing.isEmpty());
    QTEST(candidatesIn(listing), "disks");
}

void TstUsbDiskReader::heading_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("isCandidate");
    QTest::addColumn<QString>("disk");

    QTest::newRow("carriage return") << "/dev/disk2 (external, physical):\r\n"
                                     << true << "/dev/disk2";
    QTest::newRow("no line end") << "/dev/disk12 (external, physical):" << true << "/dev/disk12";
    QTest::newRow("blanks around") << " \t /dev/sdb (external, physical): " << true << "/dev/sdb";
    QTest::newRow("internal") << "/dev/disk0 (internal, physical):\n" << false << QString();
    QTest::newRow("external virtual") << "/dev/disk4 (external, virtual):\n" << false << QString();
    QTest::newRow("other case") << "/dev/disk2 (External, Physical):\n" << false << QString();
    QTest::newRow("nothing else") << "(external, physical):\n" << true << "";
    // What is not the heading's own end stays.
    QTest::newRow("no colon") << "/dev/disk2 (external, physical)\n"
                              << true << "/dev/disk2 (external, physical)";
    QTest::newRow("volume of that name")
        << "   1: Apple_HFS external, physical  1.0 GB disk0s9\n"
        << true << "1: Apple_HFS external, physical  1.0 GB disk0s9";
    QTest::newRow("empty") << QString() << false << QString();
}

void TstUsbDiskReader::heading()
{
    QFETCH(QString, line);
    QFETCH(bool, isCandidate);
    const auto disk = externalDiskOf(line);
    QCOMPARE(disk.has_value(), isCandidate);
    QTEST(disk.value_or(QString()), "disk");
}

void TstUsbDiskReader::describedDisk_data()
{
    QTest::addColumn<bool>("isOffered");

    QTest::newRow("info-whole-stick-macos11") << true;
    // A USB hard disk whose medium is fixed.
    QTest::newRow("info-fixed-hard-disk-macos10.12") << false;
    // A card in the computer's own slot is on no USB.
    QTest::newRow("info-card-reader-reconstructed") << false;
    QTest::newRow("info-internal-ssd-macos12") << false;
    // A USB drive for discs.
    QTest::newRow("info-optical-dvd-macos11") << false;
    QTest::newRow("info-missing-disk") << false;
    // Its labels lack the new ones' values.
    QTest::newRow("info-old-labels-macos10.5") << false;
}

void TstUsbDiskReader::describedDisk()
{
    const QString info = captured(QTest::currentDataTag());
    QVERIFY(!info.isEmpty());
    QTEST(isRemovableUsbDisk(info), "isOffered");
}

void TstUsbDiskReader::info_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isOffered");

    const QString usb = "   Protocol:                  USB\n";
    const QString removable = "   Removable Media:           Removable\n";
    QTest::newRow("both") << usb + removable << true;
    QTest::newRow("other order") << removable + usb << true;
    QTest::newRow("fixed") << usb + "   Removable Media:           Fixed\n" << false;
    QTest::newRow("the label's own word is no value") << usb + "Removable Media:\n" << false;
    QTest::newRow("value in front of the label") << usb + "Removable Removable Media: No\n"
                                                 << false;
    QTest::newRow("other protocol") << "   Protocol:  Secure Digital\n" + removable << false;
    QTest::newRow("USB on another line")
        << "   Protocol:  SATA\n   Device: USB\n" + removable << false;
    QTest::newRow("other case") << "   Protocol:  usb\n" + removable << false;
    QTest::newRow("optical") << usb + removable + "   Optical Drive Type:  CD-ROM\n" << false;
    QTest::newRow("no protocol") << removable << false;
    QTest::newRow("no medium") << usb << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("carriage returns") << "Protocol: USB\r\nRemovable Media: Removable\r\n" << true;
}

void TstUsbDiskReader::info()
{
    QFETCH(QString, text);
    QTEST(isRemovableUsbDisk(text), "isOffered");
}

KORVEX_TEST_MAIN(TstUsbDiskReader)
#include "tst_usbdiskreader.moc"
