// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskfile.h"
#include "mbr.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QTemporaryDir>

// Reading and writing the first sector of what may be a disk.
class TstDiskFile : public TestCase
{
    Q_OBJECT

private slots:
    void readsAndWritesTheFirstSectorOnly();
    void firstFailureIsTold();
    void shortDeviceCannotBeRead();
    void sectorOfAnotherSizeIsNotWritten();
    void openedForReadingItCannotBeWritten();
    void lockEndsWithTheObject();
};

namespace
{

QString device(const QTemporaryDir& folder, int size)
{
    const QString path = folder.filePath("device");
    writeFile(path, QByteArray(size, 'a'));
    return path;
}

} // namespace

void TstDiskFile::readsAndWritesTheFirstSectorOnly()
{
    const QTemporaryDir folder;
    const QString path = device(folder, 2000);
    DiskFile file(path, DiskFile::Access::Exclusive);
    QCOMPARE(file.size(), 2000LL);
    QCOMPARE(file.firstSector(), QByteArray(sectorSize, 'a'));
    const QByteArray sector(sectorSize, 'b');
    QVERIFY(file.writeFirstSector(sector));
    QCOMPARE(file.firstSector(), sector);
    QCOMPARE(file.error(), QString());
    QCOMPARE(readFile(path), sector + QByteArray(2000 - sectorSize, 'a'));
}

void TstDiskFile::firstFailureIsTold()
{
    DiskFile file("/nowhere/sdb", DiskFile::Access::Exclusive);
    const QString error = "/nowhere/sdb cannot be opened: No such file or directory";
    QCOMPARE(file.error(), error);
    QCOMPARE(file.firstSector(), QByteArray());
    QCOMPARE(file.size(), -1LL);
    QVERIFY(!file.lock(0));
    QVERIFY(!file.writeFirstSector(QByteArray(sectorSize, 'x')));
    QCOMPARE(file.error(), error);
}

void TstDiskFile::shortDeviceCannotBeRead()
{
    const QTemporaryDir folder;
    DiskFile file(device(folder, sectorSize - 1), DiskFile::Access::Read);
    QCOMPARE(file.firstSector(), QByteArray());
    QVERIFY(file.error().endsWith("device cannot be read"));
}

void TstDiskFile::sectorOfAnotherSizeIsNotWritten()
{
    const QTemporaryDir folder;
    const QString path = device(folder, 2000);
    for (const int size : {0, sectorSize - 1, sectorSize + 1}) {
        DiskFile file(path, DiskFile::Access::Exclusive);
        QVERIFY(!file.writeFirstSector(QByteArray(size, 'b')));
        QVERIFY(!file.error().isEmpty());
    }
    QCOMPARE(readFile(path), QByteArray(2000, 'a'));
}

void TstDiskFile::openedForReadingItCannotBeWritten()
{
    const QTemporaryDir folder;
    const QString path = device(folder, 2000);
    DiskFile file(path, DiskFile::Access::Read);
    QVERIFY(!file.writeFirstSector(QByteArray(sectorSize, 'b')));
    QVERIFY(file.error().contains("device cannot be written: "));
    QCOMPARE(readFile(path), QByteArray(2000, 'a'));
}

void TstDiskFile::lockEndsWithTheObject()
{
    const QTemporaryDir folder;
    const QString path = device(folder, 2000);
    {
        DiskFile first(path, DiskFile::Access::Read);
        QVERIFY(first.lock(0));
        DiskFile second(path, DiskFile::Access::Read);
        QVERIFY(!second.lock(200));
        QVERIFY(second.error().contains("device cannot be locked: "));
    }
    DiskFile third(path, DiskFile::Access::Read);
    QVERIFY(third.lock(0));
}

KORVEX_TEST_MAIN(TstDiskFile)
#include "tst_diskfile.moc"
