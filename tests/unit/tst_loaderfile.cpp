// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bytes.h"
#include "loaderfile.h"
#include "mbr.h"
#include "testcase.h"
#include "testmain.h"

#include <numeric>

// What is filled into the boot loader's file and its boot sector, on a made-up file of that format.
class TstLoaderFile : public TestCase
{
    Q_OBJECT

private slots:
    void notTheLoader_data();
    void notTheLoader();
    void everyFieldOutsideTheFileIsDamage_data();
    void everyFieldOutsideTheFileIsDamage();
    void twoCopiesOfEmptyDataAreAppended();
    void dataOfAnEarlierInstallationIsLeftOut();
    void partOfASectorIsFilledWithZeros();
    void patchAreaIsFilledIn();
    void piecesOfTheFile_data();
    void piecesOfTheFile();
    void asManyPiecesAsThereIsRoomFor();
    void earlierPiecesAndFoldersAreForgotten();
    void anotherNumberOfSectorsGivesNothing();
    void bootSectorKeepsTheFileSystemsParameters_data();
    void bootSectorKeepsTheFileSystemsParameters();
    void wrongBootSectorGivesNothing_data();
    void wrongBootSectorGivesNothing();
};

namespace
{

constexpr int patchArea = 24;
constexpr int fields = 60;
constexpr int dataPointers = 100;
constexpr int folder = 120;
constexpr int subvolume = 140;
constexpr int extents = 500;
constexpr int extentLimit = 4;
constexpr quint32 magic = 0x3eb202fe;

// Loader of 300 sectors with a field table of its own.
QByteArray shipped()
{
    QByteArray file(300 * sectorSize, 'c');
    putDword(file, patchArea, magic);
    file.replace(patchArea + 4, 4, "VERS");
    putWord(file, patchArea + 22, fields);
    int at = fields;
    for (const int value : {dataPointers, folder, 16, subvolume, 8, extents, extentLimit, 100, 110})
        putWord(file, std::exchange(at, at + 2), quint16(value));
    return file;
}

QByteArray withField(int index, int value)
{
    QByteArray file = shipped();
    putWord(file, fields + index * 2, quint16(value));
    return file;
}

// Sectors that lie together, from the first on.
QVector<quint32> row(quint32 first, int count)
{
    QVector<quint32> sectors(count);
    std::iota(sectors.begin(), sectors.end(), first);
    return sectors;
}

quint32 sumOf(const QByteArray& bytes)
{
    quint32 sum = 0;
    for (int at = 0; at < bytes.size(); at += 4)
        sum += dwordAt(bytes, at);
    return sum;
}

// "first+count first+count ..." as the file tells.
QString toldPieces(const QByteArray& file)
{
    QStringList pieces;
    for (int index = 0; index < extentLimit; ++index) {
        const int at = extents + index * 10;
        if (wordAt(file, at + 8) != 0)
            pieces << QString("%1+%2").arg(dwordAt(file, at)).arg(wordAt(file, at + 8));
    }
    return pieces.join(' ');
}

QByteArray bootCode()
{
    QByteArray sector(sectorSize, 'b');
    return sector.replace(200, 4, "VERS");
}

QByteArray fatSector(bool isFat32)
{
    QByteArray sector(sectorSize, 'p');
    sector.replace(0, 3, QByteArray::fromHex("eb5890"));
    sector.replace(11, 6, QByteArray::fromHex("000208200002"));
    putWord(sector, 22, isFat32 ? 0 : 99);
    return sector.replace(510, 2, QByteArray::fromHex("55aa"));
}

} // namespace

void TstLoaderFile::notTheLoader_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("why");
    QTest::newRow("empty") << QByteArray() << "has no size of the boot loader";
    QTest::newRow("one sector") << shipped().left(512) << "has no size of the boot loader";
    QTest::newRow("too long") << QByteArray(65536 * 512, 'x') << "has no size of the boot loader";
    QTest::newRow("something else") << QByteArray(4096, 'x') << "is not the boot loader";
    QTest::newRow("magic between numbers")
        << 'x' + shipped().chopped(1) << "is not the boot loader";
    QTest::newRow("magic in another sector")
        << QByteArray(512, 'x') + shipped() << "is not the boot loader";
    QTest::newRow("good") << shipped() << "";
}

void TstLoaderFile::notTheLoader()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, why);
    const LoaderFile loader(file);
    QCOMPARE(loader.error(), why);
    QCOMPARE(loader.bootSector(bootCode(), fatSector(true), 1).isEmpty(), !why.isEmpty());
    QCOMPARE(loader.patched(row(1, loader.content().size() / sectorSize)).isEmpty(),
             !why.isEmpty());
}

void TstLoaderFile::everyFieldOutsideTheFileIsDamage_data()
{
    QTest::addColumn<QByteArray>("file");
    QByteArray pointer = shipped();
    putWord(pointer, patchArea + 22, 20);
    QTest::newRow("table before the patch area") << pointer;
    QByteArray small = shipped().left(1024);
    putWord(small, patchArea + 22, 1010);
    QTest::newRow("table behind the end") << small;
    // The file ends before what 16 bits can reach.
    for (const int index : {0, 1, 3, 5})
        QTest::addRow("field %d behind the end", index) << withField(index, 1020).left(1024);
    for (const int index : {0, 1, 3, 5})
        QTest::addRow("field %d over the patch area", index) << withField(index, 30);
    QTest::newRow("too many pieces") << withField(6, 60).left(1024);
    QTest::newRow("number in the parameters") << withField(7, 88);
    QTest::newRow("upper half in the signature") << withField(8, 508);
}

void TstLoaderFile::everyFieldOutsideTheFileIsDamage()
{
    QFETCH(QByteArray, file);
    QCOMPARE(LoaderFile(file).error(),
             QString("is a damaged boot loader or one of an unknown version"));
}

void TstLoaderFile::twoCopiesOfEmptyDataAreAppended()
{
    const QByteArray content = LoaderFile(shipped()).content();
    QCOMPARE(content.left(300 * sectorSize), shipped());
    const QByteArray data = QByteArray::fromHex("a52f2d5a671704a3") + QByteArray(500, '\0') +
                            QByteArray::fromHex("64bf28dd");
    QCOMPARE(content.mid(300 * sectorSize), data + data);
}

void TstLoaderFile::dataOfAnEarlierInstallationIsLeftOut()
{
    const QByteArray content = LoaderFile(shipped()).content();
    QCOMPARE(LoaderFile(content).content(), content);
    // What it has kept is gone with it.
    QByteArray used = content;
    used.replace(used.size() - 1000, 7, "kept so");
    QCOMPARE(LoaderFile(used).content(), content);
    // One copy alone is a part of the loader.
    const QByteArray single = content.chopped(sectorSize);
    QCOMPARE(LoaderFile(single).content().left(single.size()), single);
}

void TstLoaderFile::partOfASectorIsFilledWithZeros()
{
    const LoaderFile loader(shipped().chopped(511));
    QCOMPARE(loader.content().size(), 302 * sectorSize);
    QCOMPARE(loader.content().mid(299 * sectorSize, sectorSize), 'c' + QByteArray(511, '\0'));
}

void TstLoaderFile::patchAreaIsFilledIn()
{
    const QByteArray file = LoaderFile(shipped()).patched(row(1000, 302));
    QCOMPARE(wordAt(file, patchArea + 8), quint16(300));
    QCOMPARE(wordAt(file, patchArea + 10), quint16(2));
    QCOMPARE(dwordAt(file, patchArea + 12), quint32(300 * sectorSize / 4));
    QCOMPARE(sumOf(file.left(300 * sectorSize)), magic);
    QCOMPARE(dwordAt(file, dataPointers), 1300U);
    QCOMPARE(dwordAt(file, dataPointers + 4), 0U);
    QCOMPARE(dwordAt(file, dataPointers + 8), 1301U);
    QCOMPARE(dwordAt(file, dataPointers + 12), 0U);
    QCOMPARE(file.size(), 302 * sectorSize);
}

void TstLoaderFile::piecesOfTheFile_data()
{
    QTest::addColumn<QVector<quint32>>("sectors");
    QTest::addColumn<QString>("pieces");
    // The first sector is the boot sector's, and no piece is longer than 127.
    QTest::newRow("one row") << row(1000, 302) << "1001+127 1128+127 1255+45";
    QTest::newRow("first sector alone")
        << row(7, 1) + row(1000, 301) << "1000+127 1127+127 1254+45";
    QTest::newRow("loader's data elsewhere")
        << row(1000, 300) + row(2000, 2) << "1001+127 1128+127 1255+45";
    QTest::newRow("backwards") << row(1000, 100) + row(900, 100) + row(800, 102)
                               << "1001+99 900+100 800+100";
    QTest::newRow("last sector of 32 bits")
        << row(0xffffffff - 200, 201) + row(5, 101) << "4294967096+127 4294967223+73 5+99";
}

void TstLoaderFile::piecesOfTheFile()
{
    QFETCH(QVector<quint32>, sectors);
    QTEST(toldPieces(LoaderFile(shipped()).patched(sectors)), "pieces");
}

void TstLoaderFile::asManyPiecesAsThereIsRoomFor()
{
    const LoaderFile loader(shipped());
    const QVector<quint32> three = row(1, 91) + row(200, 70) + row(300, 70);
    QCOMPARE(toldPieces(loader.patched(three + row(400, 71))), "2+90 200+70 300+70 400+69");
    QCOMPARE(loader.patched(three + row(400, 60) + row(500, 11)), QByteArray());
}

void TstLoaderFile::earlierPiecesAndFoldersAreForgotten()
{
    const QVector<quint32> pieces = row(1, 91) + row(200, 70) + row(300, 70) + row(400, 71);
    QByteArray earlier = LoaderFile(shipped()).patched(pieces);
    earlier.replace(folder, 16, QByteArray(16, 'f')).replace(subvolume, 8, QByteArray(8, 's'));
    const LoaderFile loader(earlier);
    const QByteArray file = loader.patched(row(1000, 302));
    QCOMPARE(file.toHex(), LoaderFile(shipped()).patched(row(1000, 302)).toHex());
    QCOMPARE(file.mid(folder, 17), QByteArray(16, '\0') + 'c');
    QCOMPARE(file.mid(subvolume, 9), QByteArray(8, '\0') + 'c');
}

void TstLoaderFile::anotherNumberOfSectorsGivesNothing()
{
    const LoaderFile loader(shipped());
    for (const int count : {0, 300, 301, 303})
        QCOMPARE(loader.patched(row(1, count)), QByteArray());
}

void TstLoaderFile::bootSectorKeepsTheFileSystemsParameters_data()
{
    QTest::addColumn<bool>("isFat32");
    QTest::addColumn<int>("end");
    QTest::newRow("FAT16") << false << 62;
    QTest::newRow("FAT32") << true << 90;
}

void TstLoaderFile::bootSectorKeepsTheFileSystemsParameters()
{
    QFETCH(bool, isFat32);
    QFETCH(int, end);
    const QByteArray current = fatSector(isFat32);
    const QByteArray sector = LoaderFile(shipped()).bootSector(bootCode(), current, 0x12345678);
    QByteArray wanted = bootCode().left(11) + current.mid(11, end - 11) + bootCode().mid(end);
    wanted.replace(100, 4, QByteArray::fromHex("78563412"));
    wanted.replace(110, 4, QByteArray(4, '\0'));
    wanted.replace(510, 2, QByteArray::fromHex("55aa"));
    QCOMPARE(sector.toHex(), wanted.toHex());
}

void TstLoaderFile::wrongBootSectorGivesNothing_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<QByteArray>("current");
    QTest::newRow("no code") << QByteArray() << fatSector(true);
    QTest::newRow("cut code") << bootCode().chopped(1) << fatSector(true);
    QTest::newRow("code of another version") << QByteArray(sectorSize, 'b') << fatSector(true);
    QTest::newRow("no file system") << bootCode() << QByteArray(sectorSize, '\0');
    QTest::newRow("nothing there") << bootCode() << QByteArray();
}

void TstLoaderFile::wrongBootSectorGivesNothing()
{
    QFETCH(QByteArray, code);
    QFETCH(QByteArray, current);
    QCOMPARE(LoaderFile(shipped()).bootSector(code, current, 1), QByteArray());
}

KORVEX_TEST_MAIN(TstLoaderFile)
#include "tst_loaderfile.moc"
