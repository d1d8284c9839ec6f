// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bytes.h"
#include "fatimage.h"
#include "fatreader.h"
#include "mbr.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// Finding a file's sectors, on file systems that other programs have made and on damaged ones.
class TstFatReader : public TestCase
{
    Q_OBJECT

private slots:
    void filesAreFoundWhereTheyLie_data();
    void filesAreFoundWhereTheyLie();
    void manyFilesBeforeIt();
    void whatIsNoFileIsNotFound();
    void deletedFileIsNotFound();
    void longNamesAreNotMistaken();
    void refusedFileSystems_data();
    void refusedFileSystems();
    void damagedChainIsTold_data();
    void damagedChainIsTold();
    void chainInACircleIsTold();
    void rootFolderInACircleEnds();
    void tableInUseIsRead();
};

namespace
{

// Content of which every sector is another.
QByteArray numbered(int size)
{
    QByteArray bytes;
    for (int number = 0; bytes.size() < size; ++number)
        bytes += QByteArray::number(number).rightJustified(8, '.');
    return bytes.left(size);
}

QByteArray readBack(const FatImage& image, const FatReader::File& file)
{
    QByteArray bytes;
    for (const quint32 sector : file.sectors)
        bytes += image.sector(sector);
    return bytes.left(int(file.size));
}

FatReader::File find(const FatImage& image, const QByteArray& name = "NUMBERS TXT")
{
    DiskFile disk(image.path(), DiskFile::Access::Read);
    return FatReader(disk, 0).find(name);
}

// Changes bytes of the image.
void overwrite(const FatImage& image, qint64 offset, const QByteArray& bytes)
{
    DiskFile disk(image.path(), DiskFile::Access::Exclusive);
    QVERIFY(disk.write(offset, bytes));
}

QByteArray word(quint16 number)
{
    QByteArray bytes(2, '\0');
    putWord(bytes, 0, number);
    return bytes;
}

} // namespace

void TstFatReader::filesAreFoundWhereTheyLie_data()
{
    QTest::addColumn<int>("fatBits");
    QTest::addColumn<int>("sectorsPerCluster");
    QTest::addColumn<int>("megabytes");
    QTest::addColumn<int>("size");
    for (const int size : {1, 511, 512, 513, 2048, 2049, 60000}) {
        QTest::addRow("FAT16, %d bytes", size) << 16 << 4 << 20 << size;
        QTest::addRow("FAT32, %d bytes", size) << 32 << 1 << 40 << size;
    }
}

void TstFatReader::filesAreFoundWhereTheyLie()
{
    QFETCH(int, fatBits);
    QFETCH(int, sectorsPerCluster);
    QFETCH(int, megabytes);
    QFETCH(int, size);
    const FatImage image(fatBits, sectorsPerCluster, megabytes);
    // In two places, since the first file makes room for a part of it.
    image.put("first", numbered(3 * 512));
    image.put("second", numbered(3000));
    image.remove({"first"});
    image.put("numbers.txt", numbered(size));
    const FatReader::File file = find(image);
    QCOMPARE(file.error, QString());
    QCOMPARE(file.size, qint64(size));
    QCOMPARE(file.sectors.size(), (size + 511) / 512);
    QCOMPARE(readBack(image, file), numbered(size));
    QCOMPARE(image.content().mid(int(file.entry), 11), QByteArray("NUMBERS TXT"));
}

void TstFatReader::manyFilesBeforeIt()
{
    for (const int fatBits : {16, 32}) {
        const FatImage image(fatBits, 1, fatBits == 32 ? 40 : 20);
        image.scatterFreeSpace(100);
        image.put("numbers.txt", numbered(30000));
        const FatReader::File file = find(image);
        QCOMPARE(file.error, QString());
        QCOMPARE(readBack(image, file), numbered(30000));
        QVERIFY(file.sectors.at(20) > file.sectors.at(19) + 1);
    }
}

void TstFatReader::whatIsNoFileIsNotFound()
{
    const FatImage image(16, 4, 20);
    runOrStop("mmd", {"-i", image.path(), "::NUMBERS.TXT"});
    const QString missing = "the root folder has no file \"NUMBERS TXT\"";
    QCOMPARE(find(image).error, missing);
    QCOMPARE(find(image, "").error, QString("the root folder has no file \"\""));
    runOrStop("mrd", {"-i", image.path(), "::NUMBERS.TXT"});
    runOrStop("mlabel", {"-i", image.path(), "::NUMBERS TXT"});
    QCOMPARE(find(image).error, missing);
    QCOMPARE(find(image).entry, -1LL);
}

void TstFatReader::deletedFileIsNotFound()
{
    const FatImage image(32, 1, 40);
    image.put("numbers.txt", numbered(600));
    QCOMPARE(find(image).size, 600LL);
    image.remove({"numbers.txt"});
    QVERIFY(!find(image).error.isEmpty());
    QCOMPARE(find(image, "\xe5UMBERS TXT").error.isEmpty(), false);
}

void TstFatReader::longNamesAreNotMistaken()
{
    const FatImage image(16, 4, 20);
    image.put("Numbers of a long name.txt", numbered(700));
    QVERIFY(!find(image).error.isEmpty());
    image.put("numbers.txt", numbered(900));
    QCOMPARE(find(image).size, 900LL);
}

void TstFatReader::refusedFileSystems_data()
{
    QTest::addColumn<int>("fatBits");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("why");
    const QString contradicts = "the file system's first sector contradicts itself";
    const QString neither = "the file system is neither FAT16 nor FAT32";
    const QString none = "the first partition holds no FAT file system";
    QTest::newRow("no signature") << 16 << 510 << word(0) << none;
    QTest::newRow("sectors of 1 KiB")
        << 16 << 11 << word(1024) << "the file system's sectors are not of 512 bytes";
    QTest::newRow("FAT12") << 16 << 19 << word(4000) << neither;
    QTest::newRow("fewer sectors than tables") << 16 << 19 << word(10) << contradicts;
    QTest::newRow("tables too short") << 16 << 22 << word(3) << contradicts;
    QTest::newRow("more reserved than there is") << 16 << 14 << word(65535) << contradicts;
    QTest::newRow("FAT16 with a chained root") << 16 << 17 << word(0) << contradicts;
    QTest::newRow("FAT32 with a fixed root") << 32 << 17 << word(512) << contradicts;
    QTest::newRow("FAT32 of too few clusters") << 32 << 13 << QByteArray("\x02") << contradicts;
    QTest::newRow("FAT32 with a short table of FAT16") << 32 << 22 << word(600) << contradicts;
    QTest::newRow("third table in use") << 32 << 40 << word(0x82) << contradicts;
    // As long as it says it is, and the table in use so far away that 32 bits do not hold where.
    QTest::newRow("table far outside in use")
        << 32 << 32 << QByteArray::fromHex("00000030121111118f00") << contradicts;
}

void TstFatReader::refusedFileSystems()
{
    QFETCH(int, fatBits);
    QFETCH(int, offset);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, why);
    const FatImage image(fatBits, fatBits == 32 ? 1 : 4, fatBits == 32 ? 40 : 20);
    image.put("numbers.txt", numbered(600));
    QCOMPARE(find(image).error, QString());
    overwrite(image, offset, bytes);
    QCOMPARE(find(image).error, why);
}

void TstFatReader::damagedChainIsTold_data()
{
    QTest::addColumn<quint16>("entry");
    QTest::newRow("free") << quint16(0);
    QTest::newRow("reserved") << quint16(1);
    QTest::newRow("bad") << quint16(0xfff7);
    QTest::newRow("reserved at the end") << quint16(0xfff0);
    QTest::newRow("outside") << quint16(60000);
    QTest::newRow("too early an end") << quint16(0xffff);
}

void TstFatReader::damagedChainIsTold()
{
    QFETCH(quint16, entry);
    const FatImage image(16, 4, 20);
    image.put("numbers.txt", numbered(3 * 2048));
    const qint64 table = wordAt(image.sector(0), 14) * 512;
    QCOMPARE(find(image).error, QString());
    overwrite(image, table + 3 * 2, word(entry));
    const FatReader::File file = find(image);
    QCOMPARE(file.error, QString("the chain of clusters of \"NUMBERS TXT\" is damaged"));
    QVERIFY(file.sectors.isEmpty());
}

void TstFatReader::chainInACircleIsTold()
{
    const FatImage image(16, 4, 20);
    image.put("numbers.txt", numbered(3 * 2048));
    const qint64 table = wordAt(image.sector(0), 14) * 512;
    // The file's second cluster leads back to its first, so that the third one is never reached.
    overwrite(image, table + 3 * 2, word(2));
    const FatReader::File file = find(image);
    QCOMPARE(file.error, QString("the chain of clusters of \"NUMBERS TXT\" is damaged"));
    QVERIFY(file.sectors.isEmpty());
}

void TstFatReader::rootFolderInACircleEnds()
{
    const FatImage image(32, 1, 40);
    for (int number = 0; number < 16; ++number)
        image.put(QString("f%1").arg(number), "x");
    const qint64 table = wordAt(image.sector(0), 14) * 512;
    overwrite(image, table + 2 * 4, QByteArray::fromHex("02000000"));
    QCOMPARE(find(image).error, QString("the root folder has no file \"NUMBERS TXT\""));
    overwrite(image, 44, QByteArray::fromHex("00000000"));
    QCOMPARE(find(image).error, QString("the root folder's chain of clusters is damaged"));
}

void TstFatReader::tableInUseIsRead()
{
    const FatImage image(32, 1, 40);
    image.put("numbers.txt", numbered(2000));
    const QByteArray first = image.sector(0);
    const qint64 table = wordAt(first, 14) * 512;
    overwrite(image, table, QByteArray(512, '\0'));
    QVERIFY(!find(image).error.isEmpty());
    overwrite(image, 40, word(0x81));
    const FatReader::File file = find(image);
    QCOMPARE(file.error, QString());
    QCOMPARE(readBack(image, file), numbered(2000));
}

KORVEX_TEST_MAIN(TstFatReader)
#include "tst_fatreader.moc"
