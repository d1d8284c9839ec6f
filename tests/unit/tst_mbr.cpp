// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "mbr.h"
#include "testcase.h"
#include "testmain.h"

// What is checked and changed in the first sectors of a disk and of its partition.
class TstMbr : public TestCase
{
    Q_OBJECT

private slots:
    void refusals_data();
    void refusals();
    void everyFatTypeIsTaken_data();
    void everyFatTypeIsTaken();
    void partitionMayEndWithTheDisk();
    void fatRefusals_data();
    void fatRefusals();
    void onlyCodeAndActiveFlagsChange();
    void shortCodeIsFilledWithZeros();
    void wrongSizesGiveNothing_data();
    void wrongSizesGiveNothing();
};

namespace
{

constexpr int table = 446;
constexpr int diskSectors = 65536;
constexpr qint64 diskSize = 512LL * diskSectors;

// Disk with a FAT32 partition from sector 2048 to the end.
QByteArray partitionedMbr()
{
    QByteArray sector(512, '\x11');
    sector.replace(table, 64, QByteArray(64, '\0'));
    sector.replace(table, 16,
                   QByteArray::fromHex("00 20 21 00 0c 14 05 04 00 08 00 00 00 f8 00 00"));
    sector.replace(510, 2, QByteArray::fromHex("55aa"));
    return sector;
}

QByteArray changed(QByteArray sector, int offset, const char* hex)
{
    const QByteArray bytes = QByteArray::fromHex(hex);
    return sector.replace(offset, bytes.size(), bytes);
}

QByteArray fatSector()
{
    QByteArray sector(512, '\0');
    sector.replace(0, 3, QByteArray::fromHex("eb5890"));
    sector.replace(3, 8, "mkfs.fat");
    // 512 bytes per sector, 8 sectors per cluster, 32 reserved sectors, 2 FATs.
    sector.replace(11, 6, QByteArray::fromHex("000208200002"));
    sector.replace(510, 2, QByteArray::fromHex("55aa"));
    return sector;
}

} // namespace

void TstMbr::refusals_data()
{
    QTest::addColumn<QByteArray>("sector");
    QTest::addColumn<QString>("why");
    const QByteArray good = partitionedMbr();
    QTest::newRow("good") << good << "";
    QTest::newRow("active already") << changed(good, table, "80") << "";
    QTest::newRow("empty disk") << QByteArray(512, '\0') << "the disk has no partition table";
    QTest::newRow("no bytes") << QByteArray() << "the disk has no partition table";
    QTest::newRow("one byte short") << good.left(511) << "the disk has no partition table";
    QTest::newRow("one byte more") << good + '\0' << "the disk has no partition table";
    QTest::newRow("no signature") << changed(good, 511, "00") << "the disk has no partition table";
    QTest::newRow("GPT") << changed(good, table + 4, "ee")
                         << "the disk has a GUID partition table, not an MBR";
    for (const char* type : {"00", "01", "07", "83", "ef"})
        QTest::newRow(type) << changed(good, table + 4, type)
                            << "the first partition is none for FAT16 or FAT32";
    for (const int entry : {1, 2, 3})
        QTest::addRow("entry %d", entry) << changed(good, table + entry * 16 + 4, "83")
                                         << "the disk has more than one partition";
    const QString outside = "the first partition does not lie on the disk";
    QTest::newRow("starts in the MBR") << changed(good, table + 8, "00000000") << outside;
    QTest::newRow("no length") << changed(good, table + 12, "00000000") << outside;
    QTest::newRow("one sector too long") << changed(good, table + 12, "01f80000") << outside;
    QTest::newRow("huge") << changed(good, table + 8, "ffffffffffffffff") << outside;
}

void TstMbr::refusals()
{
    QFETCH(QByteArray, sector);
    QFETCH(QString, why);
    QCOMPARE(mbrRefusal(sector, diskSize), why);
}

void TstMbr::everyFatTypeIsTaken_data()
{
    QTest::addColumn<QByteArray>("type");
    for (const char* type : {"04", "06", "0b", "0c", "0e"})
        QTest::newRow(type) << QByteArray(type);
}

void TstMbr::everyFatTypeIsTaken()
{
    QFETCH(QByteArray, type);
    QCOMPARE(mbrRefusal(changed(partitionedMbr(), table + 4, type), diskSize), QString());
}

void TstMbr::partitionMayEndWithTheDisk()
{
    QCOMPARE(mbrRefusal(partitionedMbr(), diskSize), QString());
    QVERIFY(!mbrRefusal(partitionedMbr(), diskSize - 1).isEmpty());
}

void TstMbr::fatRefusals_data()
{
    QTest::addColumn<QByteArray>("sector");
    QTest::addColumn<bool>("isFat");
    const QByteArray good = fatSector();
    QTest::newRow("good") << good << true;
    QTest::newRow("near jump") << changed(good, 0, "e9") << true;
    QTest::newRow("4 KiB sectors") << changed(good, 11, "0010") << true;
    QTest::newRow("one FAT") << changed(good, 16, "01") << true;
    QTest::newRow("zeros") << QByteArray(512, '\0') << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("cut") << good.left(511) << false;
    QTest::newRow("no signature") << changed(good, 510, "0000") << false;
    QTest::newRow("no jump") << changed(good, 0, "fa") << false;
    QTest::newRow("sectors of 0") << changed(good, 11, "0000") << false;
    QTest::newRow("sectors of 256") << changed(good, 11, "0001") << false;
    QTest::newRow("sectors of 768") << changed(good, 11, "0003") << false;
    QTest::newRow("sectors of 8192") << changed(good, 11, "0020") << false;
    QTest::newRow("clusters of 0") << changed(good, 13, "00") << false;
    QTest::newRow("clusters of 3") << changed(good, 13, "03") << false;
    QTest::newRow("no reserved sector") << changed(good, 14, "0000") << false;
    QTest::newRow("no FAT") << changed(good, 16, "00") << false;
    QTest::newRow("three FATs") << changed(good, 16, "03") << false;
    QTest::newRow("NTFS") << changed(good, 3, "4e54465320202020000208000000") << false;
    QTest::newRow("exFAT") << changed(good, 3, "455846415420202000000000000000") << false;
}

void TstMbr::fatRefusals()
{
    QFETCH(QByteArray, sector);
    QFETCH(bool, isFat);
    QCOMPARE(fatRefusal(sector),
             isFat ? QString() : QString("the first partition holds no FAT file system"));
}

void TstMbr::onlyCodeAndActiveFlagsChange()
{
    const QByteArray code(440, '\x77');
    QByteArray before = partitionedMbr();
    for (const int entry : {1, 2, 3})
        before = changed(before, table + entry * 16, "80ff");
    const QByteArray after = bootableMbr(before, code);
    QCOMPARE(after.left(440), code);
    QByteArray wanted = changed(before, table, "80").mid(440);
    for (const int entry : {1, 2, 3})
        wanted = changed(wanted, table - 440 + entry * 16, "00");
    QCOMPARE(after.mid(440).toHex(), wanted.toHex());
}

void TstMbr::shortCodeIsFilledWithZeros()
{
    const QByteArray after = bootableMbr(partitionedMbr(), "\x01\x02");
    QCOMPARE(after.left(440), QByteArray("\x01\x02").leftJustified(440, '\0'));
    QCOMPARE(after.mid(440, 6), partitionedMbr().mid(440, 6));
}

void TstMbr::wrongSizesGiveNothing_data()
{
    QTest::addColumn<QByteArray>("sector");
    QTest::addColumn<QByteArray>("code");
    QTest::newRow("code of 441 bytes") << partitionedMbr() << QByteArray(441, 'x');
    QTest::newRow("no code") << partitionedMbr() << QByteArray();
    QTest::newRow("no sector") << QByteArray() << QByteArray(440, 'x');
    QTest::newRow("cut sector") << partitionedMbr().left(511) << QByteArray(440, 'x');
    QTest::newRow("two sectors") << QByteArray(1024, '\0') << QByteArray(440, 'x');
}

void TstMbr::wrongSizesGiveNothing()
{
    QFETCH(QByteArray, sector);
    QFETCH(QByteArray, code);
    QCOMPARE(bootableMbr(sector, code), QByteArray());
}

KORVEX_TEST_MAIN(TstMbr)
#include "tst_mbr.moc"
