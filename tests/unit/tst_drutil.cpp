// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "drutil.h"
#include "opticaldrivereader.h"
#include "standins.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// The list of optical drives: what udev and the kernel tell, and the lines made of it.
class TstDrutil : public TestCase
{
    Q_OBJECT

private slots:
    void statusWithADisc();
    void statusWithoutADisc();
    void longNamesKeepTheColumns();
    void programListsTheDrives_data();
    void programListsTheDrives();
    void emptyDriveNeverLendsItsName();
    void properties_data();
    void properties();
    void drivesComeByNumber();
    void machineWithoutDrives();
};

namespace
{

OpticalDrive driveOf(const char* device, const char* product, const char* medium)
{
    OpticalDrive drive;
    drive.device = device;
    drive.vendor = "HL-DT-ST";
    drive.product = product;
    drive.revision = "PF00";
    drive.medium = medium;
    return drive;
}

// The entries that the program's reader finds; what it has pending outlives a call.
QStringList entriesIn(const QStringList& lines, OpticalDriveReader::Pending& pending)
{
    OpticalDriveReader reader(pending);
    reader.start();
    QStringList entries;
    for (const QString& line : lines)
        if (const auto entry = reader.read(line + '\n'))
            entries << entry->text;
    return entries;
}

} // namespace

void TstDrutil::statusWithADisc()
{
    QCOMPARE(driveStatusLines({driveOf("/dev/sr0", "DVDRAM GP65NS60", "DVD-ROM")}),
             QStringList({" Vendor   Product           Rev ", " HL-DT-ST DVDRAM GP65NS60   PF00",
                          "", "           Type: DVD-ROM              Name: /dev/sr0", ""}));
}

void TstDrutil::statusWithoutADisc()
{
    OpticalDrive drive = driveOf("/dev/sr0", "DVD-RAM UJ8E2 S", "");
    drive.vendor = "MATSHITA";
    drive.revision = "1.00";
    QCOMPARE(driveStatusLines({drive}),
             QStringList({" Vendor   Product           Rev ", " MATSHITA DVD-RAM UJ8E2 S   1.00",
                          "", "           Type: No Media Inserted", ""}));
}

void TstDrutil::longNamesKeepTheColumns()
{
    OpticalDrive drive = driveOf("/dev/sr0", "A product name that is much too long", "DVD+R DL");
    drive.vendor = "Longer than eight";
    drive.revision = "1.00 beta";
    const QStringList lines = driveStatusLines({drive});
    QCOMPARE(lines[1], QString(" Longer t A product name th 1.00"));
    QCOMPARE(lines[3].indexOf("Name:"), 38);
}

void TstDrutil::programListsTheDrives_data()
{
    QTest::addColumn<QStringList>("media");
    QTest::addColumn<QStringList>("entries");
    const QString first = "HL-DT-ST FIRST DRIVE PF00 (/dev/sr0)";
    const QString second = "HL-DT-ST SECOND DRIVE PF00 (/dev/sr1)";
    QTest::newRow("none has a disc") << QStringList{"", ""} << QStringList();
    QTest::newRow("first") << QStringList{"CD-R", ""} << QStringList{first};
    QTest::newRow("second") << QStringList{"", "CD-R"} << QStringList{second};
    QTest::newRow("both") << QStringList{"CD-R", "DVD-ROM"} << QStringList{first, second};
}

void TstDrutil::programListsTheDrives()
{
    QFETCH(QStringList, media);
    const QList<OpticalDrive> drives{driveOf("/dev/sr0", "FIRST  DRIVE", qPrintable(media[0])),
                                     driveOf("/dev/sr1", "SECOND  DRIVE", qPrintable(media[1]))};
    OpticalDriveReader::Pending pending;
    QTEST(entriesIn(driveStatusLines(drives), pending), "entries");
}

void TstDrutil::emptyDriveNeverLendsItsName()
{
    OpticalDriveReader::Pending pending;
    const OpticalDrive empty = driveOf("/dev/sr0", "EMPTY", "");
    const OpticalDrive full = driveOf("/dev/sr1", "FULL", "CD-R");
    const QStringList entries{"HL-DT-ST FULL PF00 (/dev/sr1)"};
    entriesIn(driveStatusLines({empty, driveOf("/dev/sr1", "FULL", "")}), pending);
    QCOMPARE(entriesIn(driveStatusLines({empty, full}), pending), entries);
    QCOMPARE(entriesIn(driveStatusLines({empty, full}), pending), entries);
}

void TstDrutil::properties_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("medium");
    QTest::addColumn<bool>("isBlank");
    const auto row = [](const char* name, const char* text, const char* medium, bool isBlank) {
        QTest::newRow(name) << QByteArray(text) << QString(medium) << isBlank;
    };
    row("nothing", "", "", false);
    row("drive without a disc", "ID_CDROM=1\nID_CDROM_DVD_R=1\n", "", false);
    row("data disc", "ID_CDROM_MEDIA=1\nID_CDROM_MEDIA_DVD=1\nID_CDROM_MEDIA_STATE=complete\n",
        "DVD-ROM", false);
    row("blank disc", "ID_CDROM_MEDIA=1\nID_CDROM_MEDIA_CD_R=1\nID_CDROM_MEDIA_STATE=blank\n",
        "CD-R", true);
    row("appendable disc",
        "ID_CDROM_MEDIA=1\nID_CDROM_MEDIA_DVD_PLUS_R=1\nID_CDROM_MEDIA_STATE=appendable\n", "DVD+R",
        false);
    row("more special kind", "ID_CDROM_MEDIA=1\nID_CDROM_MEDIA_DVD=1\nID_CDROM_MEDIA_DVD_RW_SEQ=1",
        "DVD-RW", false);
    row("unknown kind", "ID_CDROM_MEDIA=1\nID_CDROM_MEDIA_NEW=1\n", "Unknown", false);
    row("blank without a disc", "ID_CDROM_MEDIA_STATE=blank\n", "", false);
    row("a value of its own", "ID_CDROM_MEDIA=0\nID_CDROM_MEDIA_CD=1\n", "", false);
}

void TstDrutil::properties()
{
    QFETCH(QByteArray, text);
    OpticalDrive drive;
    readDriveProperties(text, drive);
    QTEST(drive.medium, "medium");
    QTEST(drive.isBlank, "isBlank");
    QVERIFY(!drive.capabilities.isEmpty());
}

void TstDrutil::drivesComeByNumber()
{
    StandIns tools;
    tools.add("udevadm", "case \"$*\" in *sr2) echo ID_CDROM_MEDIA=1; echo ID_CDROM_MEDIA_CD=1;; "
                         "esac");
    const QTemporaryDir block;
    for (const char* const name : {"sr10", "sr2", "sda"}) {
        const QString folder = block.filePath(name) + QString("/device/");
        writeFile(folder + "vendor", "HL-DT-ST\n");
        writeFile(folder + "model", "DVDRAM GP65NS60 \n");
        writeFile(folder + "rev", "PF00\n");
    }
    const QList<OpticalDrive> drives = opticalDrives(block.path());
    QCOMPARE(drives.size(), 2);
    QCOMPARE(drives[0].device, QString("/dev/sr2"));
    QCOMPARE(drives[0].product, QString("DVDRAM GP65NS60"));
    QCOMPARE(drives[0].medium, QString("CD-ROM"));
    QCOMPARE(drives[1].device, QString("/dev/sr10"));
    QCOMPARE(drives[1].revision, QString("PF00"));
    QVERIFY(!drives[1].hasMedium());
    QCOMPARE(tools.calls(), QStringList({"udevadm|info|--query=property|--name=/dev/sr2",
                                         "udevadm|info|--query=property|--name=/dev/sr10"}));
}

void TstDrutil::machineWithoutDrives()
{
    const QTemporaryDir block;
    QVERIFY(opticalDrives(block.path()).isEmpty());
    QVERIFY(driveStatusLines({}).isEmpty());
}

KORVEX_TEST_MAIN(TstDrutil)

#include "tst_drutil.moc"
