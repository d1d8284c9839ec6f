// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "macbootabledisk.h"
#include "macimagedisk.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// What keeps a disk from being written where diskutil rules over the disks, before the first step
// and between looking and writing.
class TstMacBootableDiskRefusal : public TestCase
{
    Q_OBJECT

private slots:
    void refusedDiskStaysUntouched_data();
    void refusedDiskStaysUntouched();
    void missingOrWrongFileIsToldFirst_data();
    void missingOrWrongFileIsToldFirst();
    void wrongSectorsStayUntouched_data();
    void wrongSectorsStayUntouched();
    void mountPointOfTheSystemIsRefused();
    void otherDiskUnderTheSameNameIsNotWritten();
    void tableThatChangesMeanwhileIsNotWritten();
    void loaderThatDidNotArriveIsNotStarted();
};

namespace
{

const FatImage& fileSystem()
{
    static const FatImage image(16, 4, 20);
    return image;
}

QString make(const MacImageDisk& stick)
{
    QStringList said;
    return MacBootableDisk(stick.setup(&said)).make();
}

} // namespace

void TstMacBootableDiskRefusal::refusedDiskStaysUntouched_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("why");
    QTest::newRow("built in") << QByteArray("Internal</key><false/>")
                              << QByteArray("Internal</key><true/>") << "disk is built in";
    QTest::newRow("fixed") << QByteArray("RemovableMedia</key><true/>")
                           << QByteArray("RemovableMedia</key><false/>") << "disk is not removable";
    QTest::newRow("not whole") << QByteArray("WholeDisk</key><true/>")
                               << QByteArray("WholeDisk</key><false/>")
                               << "disk is not a whole disk";
    QTest::newRow("image") << QByteArray(">Physical<") << QByteArray(">Virtual<")
                           << "disk is not a piece of hardware";
    QTest::newRow("write-protected")
        << QByteArray("WritableMedia</key><true/>") << QByteArray("WritableMedia</key><false/>")
        << "disk is write-protected";
    QTest::newRow("the system's") << QByteArray("<key>WholeDisk</key><false/>")
                                  << QByteArray("<key>MountPoint</key><string>/</string>")
                                  << "disks1 is in use as /";
    QTest::newRow("sectors of 4 KiB") << QByteArray(">512<") << QByteArray(">4096<")
                                      << "has sectors of 4096 bytes, the boot loader needs 512";
    QTest::newRow("no answer") << QByteArray("DeviceNode") << QByteArray("Node")
                               << "The answer of diskutil tells of no device";
}

void TstMacBootableDiskRefusal::refusedDiskStaysUntouched()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, why);
    const MacImageDisk stick(fileSystem());
    stick.changeFacts(from, to);
    const QString error = make(stick);
    QVERIFY2(error.startsWith("Checking ") && error.endsWith(why), qPrintable(error));
    QCOMPARE(stick.calls(), QStringList());
    QVERIFY(stick.isUntouched());
}

void TstMacBootableDiskRefusal::missingOrWrongFileIsToldFirst_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("why");
    for (const char* name : {"mbr.bin", "ldlinux.sys", "ldlinux.bss", "ldlinux.c32", "libcom32.c32",
                             "libutil.c32", "chain.c32"})
        QTest::newRow(name) << QString(name) << QByteArray()
                            << QString("syslinux/%1 is missing").arg(name);
    QTest::newRow("wrong loader") << "ldlinux.sys" << QByteArray(4096, 'x')
                                  << "ldlinux.sys is not the boot loader";
    QTest::newRow("wrong boot sector")
        << "ldlinux.bss" << QByteArray(512, 'x') << "syslinux/ldlinux.sys";
    QTest::newRow("wrong boot code")
        << "mbr.bin" << QByteArray(441, 'x') << "mbr.bin is no boot code";
}

void TstMacBootableDiskRefusal::missingOrWrongFileIsToldFirst()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(QString, why);
    const MacImageDisk stick(fileSystem());
    QVERIFY(QFile::remove(stick.path("syslinux/" + file)));
    if (!content.isEmpty())
        writeFile(stick.path("syslinux/" + file), content);
    const QString error = make(stick);
    QVERIFY2(error.startsWith("Checking ") && error.endsWith(why), qPrintable(error));
    QCOMPARE(stick.calls(), QStringList());
    QVERIFY(stick.isUntouched());
}

void TstMacBootableDiskRefusal::wrongSectorsStayUntouched_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("why");
    QTest::newRow("table") << 510 << "the disk has no partition table";
    QTest::newRow("partition") << 450 << "the first partition is none for FAT16 or FAT32";
    QTest::newRow("file system") << 1048576 + 510 << "the first partition holds no FAT file system";
    QTest::newRow("its parameters")
        << 1048576 + 22 << "the file system's first sector contradicts itself";
}

void TstMacBootableDiskRefusal::wrongSectorsStayUntouched()
{
    QFETCH(int, offset);
    QFETCH(QString, why);
    const MacImageDisk stick(fileSystem());
    QByteArray wrong = readFile(stick.disk());
    wrong[offset] = '\1';
    writeFile(stick.disk(), wrong);
    const QString error = make(stick);
    QVERIFY2(error.startsWith("Checking ") && error.endsWith(why), qPrintable(error));
    QCOMPARE(stick.calls(), QStringList());
    QVERIFY(readFile(stick.disk()) == wrong);
}

void TstMacBootableDiskRefusal::mountPointOfTheSystemIsRefused()
{
    const MacImageDisk stick(fileSystem());
    QStringList said;
    MacBootableDisk::Setup setup = stick.setup(&said);
    setup.request.mountPoint = "/usr/stick";
    QVERIFY(
        MacBootableDisk(setup).make().endsWith("/usr/stick is no place to mount a USB disk at"));
    QVERIFY(stick.isUntouched());
}

void TstMacBootableDiskRefusal::otherDiskUnderTheSameNameIsNotWritten()
{
    const MacImageDisk stick(fileSystem());
    stick.before("sync", "sed -i s/PORT1/PORT2/ \"$home/facts\"");
    const QString error = make(stick);
    QVERIFY2(error.startsWith("Unmounting") && error.endsWith("is another disk than before"),
             qPrintable(error));
    QCOMPARE(stick.calls().size(), 2);
    QVERIFY(stick.isUntouched());
}

void TstMacBootableDiskRefusal::tableThatChangesMeanwhileIsNotWritten()
{
    const MacImageDisk stick(fileSystem());
    stick.before("sync", "printf x | dd of=\"$home/disk\" bs=1 seek=460 conv=notrunc status=none");
    const QString error = make(stick);
    QVERIFY2(error.endsWith("has changed since it was checked"), qPrintable(error));
    const QByteArray disk = readFile(stick.disk());
    QCOMPARE(disk.left(440), QByteArray(440, '\0'));
    QCOMPARE(disk.mid(1048576, 512), fileSystem().sector(0));
}

void TstMacBootableDiskRefusal::loaderThatDidNotArriveIsNotStarted()
{
    const MacImageDisk stick(fileSystem());
    stick.before("sync", "printf x >>\"$(cat \"$home/mounted\")/ldlinux.sys\"");
    const QString error = make(stick);
    QVERIFY2(error.endsWith("its file is not what was copied"), qPrintable(error));
    const QByteArray disk = readFile(stick.disk());
    QCOMPARE(disk.left(440), QByteArray(440, '\0'));
    QCOMPARE(disk.mid(1048576, 512), fileSystem().sector(0));
}

KORVEX_TEST_MAIN(TstMacBootableDiskRefusal)
#include "tst_macbootabledisk_refusal.moc"
