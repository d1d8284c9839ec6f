// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootimages.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QDataStream>

#include <limits>
#include <unistd.h>

// Reading and writing at a place of a file, as the boot image's extraction does.
class TstBootExtractFiles : public TestCase
{
    Q_OBJECT

private slots:
    void init();

    void bytesAreReadFromTheirPlace_data();
    void bytesAreReadFromTheirPlace();
    void aStreamWithoutDeviceIs25();
    void aPlaceThatIsNoneIs25();
    void aClosedFileIs25();
    void aPipeIs25();
    void fewerBytesThanAskedForAre32_data();
    void fewerBytesThanAskedForAre32();
    void aFileThatIsNotForReadingIs32();
    void aFailureDoesNotSpoilTheNextRead();
    void nothingIsReadBeyondTheSize();

    void aMissingFileIsMade();
    void aLongerFileKeepsItsTail();
    void aShorterFileGrows();
    void noBytesLeaveAFileAsItIs();
    void aPathThatCannotBeOpened_data();
    void aPathThatCannotBeOpened();
    void aFullDiskIsReported_data();
    void aFullDiskIsReported();

private:
    static int read(const QString& path, int offset, int size, void* buffer);

    QTemporaryDir folder;
    QString path;
};

void TstBootExtractFiles::init()
{
    TestCase::init();
    path = folder.filePath("file.bin");
    writeFile(path, patternBytes(100'000));
}

int TstBootExtractFiles::read(const QString& path, int offset, int size, void* buffer)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    QDataStream stream(&file);
    return Util::Read(stream, offset, size, buffer);
}

void TstBootExtractFiles::bytesAreReadFromTheirPlace_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("size");

    QTest::newRow("begin") << 0 << 4;
    QTest::newRow("anywhere") << 12345 << 678;
    QTest::newRow("last byte") << 99'999 << 1;
    QTest::newRow("all") << 0 << 100'000;
    QTest::newRow("nothing") << 50 << 0;
    QTest::newRow("nothing at the end") << 100'000 << 0;
    QTest::newRow("nothing far behind it") << 2'000'000'000 << 0;
}

void TstBootExtractFiles::bytesAreReadFromTheirPlace()
{
    QFETCH(int, offset);
    QFETCH(int, size);
    QByteArray buffer(size, 'x');
    QCOMPARE(read(path, offset, size, buffer.data()), 0);
    QVERIFY(buffer == patternBytes(100'000).mid(offset, size));
    QCOMPARE(debugLines(), QStringList());
}

void TstBootExtractFiles::aStreamWithoutDeviceIs25()
{
    QDataStream stream;
    char byte = 'x';
    QCOMPARE(Util::Read(stream, 0, 1, &byte), 25);
    QCOMPARE(byte, 'x');
    QCOMPARE(debugLines(), QStringList());
}

void TstBootExtractFiles::aPlaceThatIsNoneIs25()
{
    char byte = 'x';
    QCOMPARE(read(path, -1, 1, &byte), 25);
    QCOMPARE(read(path, std::numeric_limits<int>::min(), 1, &byte), 25);
    QCOMPARE(byte, 'x');
    QCOMPARE(debugLines(), QStringList());
}

void TstBootExtractFiles::aClosedFileIs25()
{
    allowWarning("not open");
    QFile file(path);
    QDataStream stream(&file);
    char byte = 'x';
    QCOMPARE(Util::Read(stream, 0, 1, &byte), 25);
    QCOMPARE(byte, 'x');
}

void TstBootExtractFiles::aPipeIs25()
{
    allowWarning("Cannot set file position");
    int ends[2];
    QCOMPARE(pipe(ends), 0);
    QCOMPARE(write(ends[1], "abcd", 4), ssize_t(4));
    close(ends[1]);
    QFile file;
    QVERIFY(file.open(ends[0], QIODevice::ReadOnly, QFile::AutoCloseHandle));
    QDataStream stream(&file);
    char byte = 'x';
    QCOMPARE(Util::Read(stream, 0, 1, &byte), 25);
    QCOMPARE(byte, 'x');
}

void TstBootExtractFiles::fewerBytesThanAskedForAre32_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("size");

    QTest::newRow("one too many") << 99'000 << 1'001;
    QTest::newRow("from the end on") << 100'000 << 1;
    QTest::newRow("far behind it") << 2'000'000'000 << 2048;
    QTest::newRow("last place there is") << std::numeric_limits<int>::max() << 1;
    QTest::newRow("a size that is none") << 0 << -1;
}

void TstBootExtractFiles::fewerBytesThanAskedForAre32()
{
    QFETCH(int, offset);
    QFETCH(int, size);
    QByteArray buffer(5'000, 'x');
    QCOMPARE(read(path, offset, size, buffer.data()), 32);
    QCOMPARE(debugLines(), QStringList("Util::Read error"));
    QVERIFY(buffer.endsWith(QByteArray(3'999, 'x')));
}

void TstBootExtractFiles::aFileThatIsNotForReadingIs32()
{
    allowWarning("WriteOnly device");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Append));
    QDataStream stream(&file);
    char byte = 'x';
    QCOMPARE(Util::Read(stream, 0, 1, &byte), 32);
    QCOMPARE(debugLines().last(), QString("Util::Read error"));
}

void TstBootExtractFiles::aFailureDoesNotSpoilTheNextRead()
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QDataStream stream(&file);
    QByteArray buffer(2048, 'x');
    QCOMPARE(Util::Read(stream, 99'999, 2048, buffer.data()), 32);
    QCOMPARE(Util::Read(stream, -1, 2048, buffer.data()), 25);
    QCOMPARE(Util::Read(stream, 4096, 2048, buffer.data()), 0);
    QCOMPARE(buffer, patternBytes(100'000).mid(4096, 2048));
}

void TstBootExtractFiles::nothingIsReadBeyondTheSize()
{
    QByteArray buffer(100, 'x');
    QCOMPARE(read(path, 8, 10, buffer.data()), 0);
    QCOMPARE(buffer.left(10), patternBytes(20).mid(8, 10));
    QCOMPARE(buffer.mid(10), QByteArray(90, 'x'));
}

void TstBootExtractFiles::aMissingFileIsMade()
{
    QString target = folder.filePath(QString::fromUtf8("-new \"光\" .bin"));
    QByteArray content = patternBytes(3'000'000);
    Util::WriteData(target, content.data(), content.size());
    QVERIFY(readFile(target) == content);
    QCOMPARE(debugLines(), QStringList());
}

void TstBootExtractFiles::aLongerFileKeepsItsTail()
{
    QByteArray content(1000, 'n');
    Util::WriteData(path, content.data(), 1000);
    QVERIFY(readFile(path) == content + patternBytes(100'000).mid(1000));
}

void TstBootExtractFiles::aShorterFileGrows()
{
    QByteArray content(200'000, 'n');
    Util::WriteData(path, content.data(), content.size());
    QVERIFY(readFile(path) == content);
}

void TstBootExtractFiles::noBytesLeaveAFileAsItIs()
{
    char byte = 'n';
    Util::WriteData(path, &byte, 0);
    QVERIFY(readFile(path) == patternBytes(100'000));
    QCOMPARE(debugLines(), QStringList());
}

void TstBootExtractFiles::aPathThatCannotBeOpened_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("a folder") << ".";
    QTest::newRow("missing folder") << "missing/boot.bin";
    QTest::newRow("below a file") << "file.bin/boot.bin";
}

void TstBootExtractFiles::aPathThatCannotBeOpened()
{
    QFETCH(QString, name);
    QString target = folder.filePath(name);
    char byte = 'n';
    Util::WriteData(target, &byte, 1);
    QCOMPARE(debugLines(), QStringList("Util::WriteData can not open file"));
    QVERIFY(readFile(path) == patternBytes(100'000));
    QVERIFY(!QFile::exists(folder.filePath("missing")));
}

void TstBootExtractFiles::aFullDiskIsReported_data()
{
    QTest::addColumn<int>("size");

    QTest::newRow("less than a buffer") << 512;
    QTest::newRow("a diskette") << 1'474'560;
}

void TstBootExtractFiles::aFullDiskIsReported()
{
    QFETCH(int, size);
    QString target = "/dev/full";
    QByteArray content = patternBytes(size);
    Util::WriteData(target, content.data(), size);
    QCOMPARE(debugLines(), QStringList("WriteData error"));
}

KORVEX_TEST_MAIN(TstBootExtractFiles)

#include "tst_bootextract_files.moc"
