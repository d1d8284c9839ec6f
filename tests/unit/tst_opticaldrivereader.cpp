// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "opticaldrivereader.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// Reading the status of the optical drives, line by line.
class TstOpticalDriveReader : public TestCase
{
    Q_OBJECT

private slots:
    void capturedStatus_data();
    void capturedStatus();
    void headerIsTakenByItsExactBlanks();
    void runsOfBlanksInTheIdentificationBecomeOne();
    void statusWithoutHeaderStillYieldsADrive();
    void driveWithoutDiscLendsItsNameToTheNext();
    void pendingTextsOutliveTheReader();
    void newRunForgetsTheHeaderOnly();
    void labelAtTheLineStartIsNone();
    void lineEndsDoNotCount();
};

namespace
{

const QString header = " Vendor   Product           Rev \n";

QStringList read(OpticalDriveReader& reader, const QStringList& lines)
{
    QStringList drives;
    for (const QString& line : lines) {
        if (const auto drive = reader.read(line))
            drives.append(drive->text + '|' + drive->device);
    }
    return drives;
}

QStringList read(const QStringList& lines)
{
    OpticalDriveReader::Pending pending;
    OpticalDriveReader reader(pending);
    reader.start();
    return read(reader, lines);
}

} // namespace

void TstOpticalDriveReader::capturedStatus_data()
{
    QTest::addColumn<QStringList>("drives");

    QTest::newRow("status-dvd-rom")
        << QStringList{"HL-DT-ST DVDRAM GP65NS60 PF00 (/dev/disk4)|/dev/disk4"};
    QTest::newRow("status-blank-cd-r")
        << QStringList{"MATSHITA DVD-RAM UJ8E2 S 1.00 (/dev/disk7)|/dev/disk7"};
    QTest::newRow("status-appendable-dvd-plus-r")
        << QStringList{"PIONEER DVD-RW DVR-XU01C DL61 (/dev/disk4)|/dev/disk4"};
    // A drive without a disc has no device and is not listed.
    QTest::newRow("status-no-disc") << QStringList();
    QTest::newRow("status-no-drive-reconstructed") << QStringList();
    // The first has no disc, so the second is listed under its name.
    QTest::newRow("status-two-drives-reconstructed")
        << QStringList{"MATSHITA DVD-RAM UJ8E2 S 1.00 (/dev/disk4)|/dev/disk4"};
    // Another command's table.
    QTest::newRow("list-two-drives") << QStringList();
}

void TstOpticalDriveReader::capturedStatus()
{
    const QString text = QString::fromUtf8(
        readFile(KORVEX_TEST_DATA "/drutil/" + QString(QTest::currentDataTag()) + ".txt"));
    QVERIFY(!text.isEmpty());
    QTEST(read(text.split('\n')), "drives");
}

void TstOpticalDriveReader::headerIsTakenByItsExactBlanks()
{
    const QStringList rest{" ASUS     SDRW             A112\n",
                           "  Type: CD-R   Name: /dev/disk3\n"};
    QCOMPARE(read(QStringList{header} + rest),
             QStringList{"ASUS SDRW A112 (/dev/disk3)|/dev/disk3"});
    QCOMPARE(read(QStringList{"Vendor  Product           Rev\n"} + rest),
             QStringList{" (/dev/disk3)|/dev/disk3"});
}

void TstOpticalDriveReader::runsOfBlanksInTheIdentificationBecomeOne()
{
    // Only blanks separate; another white space on its own is no word.
    QCOMPARE(read({header, "  A   B \t  C\tD\r\n", "  Name: /dev/disk3\n"}),
             QStringList{"A B C\tD (/dev/disk3)|/dev/disk3"});
}

void TstOpticalDriveReader::statusWithoutHeaderStillYieldsADrive()
{
    QCOMPARE(read({" ASUS SDRW A112\n", "  Type: CD-R   Name: /dev/disk3\n"}),
             QStringList{" (/dev/disk3)|/dev/disk3"});
}

void TstOpticalDriveReader::driveWithoutDiscLendsItsNameToTheNext()
{
    QCOMPARE(read({header, " FIRST\n", "  Type: No Media Inserted\n", header, " SECOND\n",
                   "  Type: CD-R   Name: /dev/disk3\n", header, " THIRD\n",
                   "  Type: CD-R   Name: /dev/disk4\n"}),
             (QStringList{"FIRST (/dev/disk3)|/dev/disk3", "THIRD (/dev/disk4)|/dev/disk4"}));
}

void TstOpticalDriveReader::pendingTextsOutliveTheReader()
{
    OpticalDriveReader::Pending pending;
    OpticalDriveReader first(pending);
    QVERIFY(read(first, {header, " ASUS\n"}).isEmpty());
    OpticalDriveReader second(pending);
    QCOMPARE(read(second, {"  Name: /dev/disk3\n"}), QStringList{"ASUS (/dev/disk3)|/dev/disk3"});
    // That the header was seen is each reader's own: the first still waits for a name.
    QCOMPARE(read(first, {"  Name: /dev/disk4\n"}),
             QStringList{"Name: /dev/disk4 (/dev/disk4)|/dev/disk4"});
}

void TstOpticalDriveReader::newRunForgetsTheHeaderOnly()
{
    OpticalDriveReader::Pending pending;
    OpticalDriveReader reader(pending);
    QVERIFY(read(reader, {header}).isEmpty());
    reader.start();
    QCOMPARE(read(reader, {" ASUS\n", "  Name: /dev/disk3\n"}),
             QStringList{" (/dev/disk3)|/dev/disk3"});
}

void TstOpticalDriveReader::labelAtTheLineStartIsNone()
{
    QVERIFY(read({header, " ASUS\n", " Name: /dev/disk3\n"}).isEmpty());
    QVERIFY(read({header, " ASUS\n", "Name: /dev/disk3\n"}).isEmpty());
    // A label without a value completes nothing either.
    QVERIFY(read({header, " ASUS\n", "   Name:   \n"}).isEmpty());
}

void TstOpticalDriveReader::lineEndsDoNotCount()
{
    QCOMPARE(read({header + '\r', " ASUS A112\r\n", "  Type: CD  Name: /dev/disk3 \r\n"}),
             QStringList{"ASUS A112 (/dev/disk3)|/dev/disk3"});
}

KORVEX_TEST_MAIN(TstOpticalDriveReader)
#include "tst_opticaldrivereader.moc"
