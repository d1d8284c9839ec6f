// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bytes.h"
#include "fatimage.h"
#include "fatreader.h"
#include "loaderinstaller.h"
#include "mbr.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// The installing of the boot loader, measured by what its own installer writes.
class TstLoaderInstaller : public TestCase
{
    Q_OBJECT

private slots:
    void writesWhatTheLoadersInstallerWrites_data();
    void writesWhatTheLoadersInstallerWrites();
    void installedLoaderIsFilledInAnewToTheByte_data();
    void installedLoaderIsFilledInAnewToTheByte();
    void scatteredFileIsMappedPieceByPiece_data();
    void scatteredFileIsMappedPieceByPiece();
    void nothingIsWrittenWhenRefused_data();
    void nothingIsWrittenWhenRefused();
    void fileSystemFurtherBehindIsLeftInItsPlace();
};

namespace
{

const LoaderSample& sample()
{
    static const LoaderSample loaded;
    return loaded;
}

QString install(const QString& path, const QByteArray& bootCode = sample().bootSector,
                qint64 start = 0)
{
    DiskFile disk(path, DiskFile::Access::Exclusive);
    return installLoader(disk, start, LoaderFile(sample().file), bootCode);
}

void formats()
{
    QTest::addColumn<int>("fatBits");
    QTest::addColumn<int>("sectorsPerCluster");
    QTest::addColumn<int>("megabytes");
    QTest::newRow("FAT16, 512 bytes") << 16 << 1 << 20;
    QTest::newRow("FAT16, 4 KiB") << 16 << 8 << 33;
    QTest::newRow("FAT16, 32 KiB") << 16 << 64 << 140;
    QTest::newRow("FAT32, 512 bytes") << 32 << 1 << 40;
    QTest::newRow("FAT32, 1 KiB") << 32 << 2 << 70;
}

// The image without when its files were written, which depends on the hour, and with every byte
// at its place.
QByteArray comparable(const FatImage& image)
{
    QByteArray content = image.content();
    for (const char* name : {"LDLINUX SYS", "LDLINUX C32"}) {
        DiskFile disk(image.path(), DiskFile::Access::Read);
        const qint64 entry = FatReader(disk, 0).find(name).entry;
        content.replace(int(entry) + 12, 14, QByteArray(14, '\0'));
    }
    return content;
}

// Sectors of the file by the pieces that the loader is told.
QVector<quint32> toldSectors(const QByteArray& file)
{
    QVector<quint32> sectors;
    const int fields = wordAt(file, 24 + 22);
    int extent = wordAt(file, fields + 10);
    for (int count = wordAt(file, extent + 8); count != 0; count = wordAt(file, extent + 8)) {
        for (int index = 0; index < count; ++index)
            sectors.append(dwordAt(file, extent) + quint32(index));
        extent += 10;
    }
    const int data = wordAt(file, fields);
    return sectors << dwordAt(file, data) << dwordAt(file, data + 8);
}

} // namespace

void TstLoaderInstaller::writesWhatTheLoadersInstallerWrites_data()
{
    formats();
}

void TstLoaderInstaller::writesWhatTheLoadersInstallerWrites()
{
    QFETCH(int, fatBits);
    QFETCH(int, sectorsPerCluster);
    QFETCH(int, megabytes);
    const FatImage theirs(fatBits, sectorsPerCluster, megabytes);
    const FatImage ours(fatBits, sectorsPerCluster, megabytes);
    // One image, but for what is installed.
    writeFile(ours.path(), theirs.content());
    theirs.installLoader();
    ours.put("ldlinux.sys", LoaderFile(sample().file).content());
    ours.put("ldlinux.c32", sample().module);
    QVERIFY(comparable(ours) != comparable(theirs));
    QCOMPARE(install(ours.path()), QString());
    QCOMPARE(ours.sector(0).toHex(), theirs.sector(0).toHex());
    QCOMPARE(ours.file("ldlinux.sys").toHex(), theirs.file("ldlinux.sys").toHex());
    QVERIFY(comparable(ours) == comparable(theirs));
}

void TstLoaderInstaller::installedLoaderIsFilledInAnewToTheByte_data()
{
    formats();
}

// A file that was filled in for another place is as good as a new one.
void TstLoaderInstaller::installedLoaderIsFilledInAnewToTheByte()
{
    QFETCH(int, fatBits);
    QFETCH(int, sectorsPerCluster);
    QFETCH(int, megabytes);
    const FatImage image(fatBits, sectorsPerCluster, megabytes);
    image.installLoader();
    const QByteArray before = image.content();
    DiskFile disk(image.path(), DiskFile::Access::Exclusive);
    const LoaderFile loader(image.file("ldlinux.sys"));
    FatReader volume(disk, 0);
    const FatReader::File file = volume.find("LDLINUX SYS");
    QCOMPARE(file.error, QString());
    QVERIFY(volume.write(0, sample().bootSector.left(11) + image.sector(0).mid(11, 79) +
                                sample().bootSector.mid(90)));
    QCOMPARE(installLoader(disk, 0, loader, sample().bootSector), QString());
    QVERIFY(image.content() == before);
}

void TstLoaderInstaller::scatteredFileIsMappedPieceByPiece_data()
{
    QTest::addColumn<int>("fatBits");
    QTest::addColumn<int>("sectorsPerCluster");
    QTest::addColumn<int>("megabytes");
    QTest::newRow("FAT16, pieces of one sector") << 16 << 1 << 20;
    QTest::newRow("FAT16, pieces of four") << 16 << 4 << 20;
    QTest::newRow("FAT32, pieces of one sector") << 32 << 1 << 40;
}

void TstLoaderInstaller::scatteredFileIsMappedPieceByPiece()
{
    QFETCH(int, fatBits);
    QFETCH(int, sectorsPerCluster);
    QFETCH(int, megabytes);
    const FatImage theirs(fatBits, sectorsPerCluster, megabytes);
    const FatImage ours(fatBits, sectorsPerCluster, megabytes);
    theirs.put("ldlinux.c32", sample().module);
    theirs.scatterFreeSpace(236);
    writeFile(ours.path(), theirs.content());
    ours.put("ldlinux.sys", LoaderFile(sample().file).content());
    QCOMPARE(install(ours.path()), QString());
    const QByteArray file = ours.file("ldlinux.sys");
    const QVector<quint32> told = toldSectors(file);
    QCOMPARE(told.size(), file.size() / sectorSize - 1);
    for (int index = 0; index < told.size(); ++index)
        QCOMPARE(ours.sector(told.at(index)), file.mid((index + 1) * sectorSize, sectorSize));
    QVERIFY(told.at(2 * sectorsPerCluster - 1) > told.at(2 * sectorsPerCluster - 2) + 1);
}

void TstLoaderInstaller::nothingIsWrittenWhenRefused_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("bootCode");
    QTest::addColumn<QString>("why");
    const QByteArray content = LoaderFile(sample().file).content();
    QByteArray otherByte = content;
    otherByte[content.size() - 700] = 'x';
    QByteArray otherVersion = sample().bootSector;
    otherVersion.replace(sample().file.mid(28, 4), "abcd");
    QTest::newRow("no file") << QByteArray() << sample().bootSector
                             << "the root folder has no file \"LDLINUX SYS\"";
    QTest::newRow("one byte short")
        << content.chopped(1) << sample().bootSector << "its file is not what was copied";
    QTest::newRow("one byte longer")
        << content + 'x' << sample().bootSector << "its file is not what was copied";
    QTest::newRow("another byte") << otherByte << sample().bootSector
                                  << "its file is not what was copied";
    QTest::newRow("boot sector of another version")
        << content << otherVersion << "its boot sector does not belong to its file";
    QTest::newRow("no boot sector")
        << content << QByteArray() << "its boot sector does not belong to its file";
}

void TstLoaderInstaller::nothingIsWrittenWhenRefused()
{
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, bootCode);
    QFETCH(QString, why);
    const FatImage image(16, 4, 20);
    if (!file.isEmpty())
        image.put("ldlinux.sys", file);
    const QByteArray before = image.content();
    QCOMPARE(install(image.path(), bootCode), "the boot loader cannot be installed: " + why);
    QVERIFY(image.content() == before);
}

void TstLoaderInstaller::fileSystemFurtherBehindIsLeftInItsPlace()
{
    const FatImage image(16, 4, 20);
    image.put("ldlinux.sys", LoaderFile(sample().file).content());
    const QByteArray before = image.content();
    QCOMPARE(install(image.path()), QString());
    const QByteArray after = image.content();
    const int start = 3 * sectorSize;
    writeFile(image.path(), QByteArray(start, 'x') + before);
    QCOMPARE(install(image.path(), sample().bootSector, start), QString());
    QVERIFY(image.content() == QByteArray(start, 'x') + after);
}

KORVEX_TEST_MAIN(TstLoaderInstaller)
#include "tst_loaderinstaller.moc"
