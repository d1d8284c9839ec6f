// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "fatvolume.h"
#include "testcase.h"
#include "testmain.h"

// From the words on the command line to the volume, or to the reason why there is none.
class TstFatVolume : public TestCase
{
    Q_OBJECT

private slots:
    void fileSystems_data();
    void fileSystems();
    void labels_data();
    void labels();
    void refusedLabels_data();
    void refusedLabels();
};

void TstFatVolume::fileSystems_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("bits");
    QTest::addColumn<QString>("type");
    QTest::newRow("FAT32") << "FAT32" << 32 << "0c";
    QTest::newRow("quotes are part of the argument") << "\"MS-DOS FAT16\"" << 16 << "0e";
    QTest::newRow("without quotes") << "MS-DOS FAT16" << 16 << "0e";
    QTest::newRow("MS-DOS FAT32") << "MS-DOS FAT32" << 32 << "0c";
}

void TstFatVolume::fileSystems()
{
    QFETCH(QString, name);
    const FatVolume volume = fatVolumeFrom(name, "X");
    QCOMPARE(volume.refusal, QString());
    QTEST(volume.bits, "bits");
    QTEST(volume.partitionType(), "type");
    for (const char* const unknown : {"", "FAT", "NTFS", "fat32", "FAT32 "})
        QCOMPARE(fatVolumeFrom(unknown, "X").refusal, QString("Unknown file system: ") + unknown);
}

void TstFatVolume::labels_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("label");
    QTest::newRow("as typed") << "NONAME"
                              << "NONAME";
    QTest::newRow("empty") << ""
                           << "NONAME";
    QTest::newRow("blanks alone") << "   "
                                  << "NONAME";
    QTest::newRow("trimmed") << "  X  "
                             << "X";
    QTest::newRow("upper case") << "stick"
                                << "STICK";
    QTest::newRow("eleven") << "ABCDEFGHIJK"
                            << "ABCDEFGHIJK";
    QTest::newRow("blanks stay blanks") << "MY  STICK A"
                                        << "MY  STICK A";
    QTest::newRow("signs that FAT knows") << "-A!#$%&'()@"
                                          << "-A!#$%&'()@";
}

void TstFatVolume::labels()
{
    QFETCH(QString, name);
    const FatVolume volume = fatVolumeFrom("FAT32", name);
    QCOMPARE(volume.refusal, QString());
    QTEST(volume.label, "label");
}

void TstFatVolume::refusedLabels_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("twelve") << "ABCDEFGHIJKL";
    for (const char sign : QByteArray("\"*/:<>?\\|+,.;=[]\t\x7f"))
        QTest::newRow(QByteArray::number(sign)) << QString("A%1B").arg(QChar(sign));
    QTest::newRow("beyond ASCII") << QString::fromUtf8("B\u00dcRO");
    QTest::newRow("sharp s grows") << QString::fromUtf8("ABCDEFGHIJ\u00df");
    QTest::newRow("zero") << QString("A%1B").arg(QChar(0));
}

void TstFatVolume::refusedLabels()
{
    QFETCH(QString, name);
    QVERIFY(fatVolumeFrom("FAT32", name).refusal.startsWith("The name " + name.toUpper()));
}

KORVEX_TEST_MAIN(TstFatVolume)

#include "tst_fatvolume.moc"
