// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootabledisk.h"
#include "imagedisk.h"
#include "mbr.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// What keeps a disk from being written, before the first step and between looking and writing.
class TstBootableDiskRefusal : public TestCase
{
    Q_OBJECT

private slots:
    void refusedDiskStaysUntouched_data();
    void refusedDiskStaysUntouched();
    void otherDiskUnderTheSameNameIsNotWritten();
    void tableThatChangesMeanwhileIsNotWritten();
    void diskOfAnotherSizeIsNotWritten();
    void missingBootFilesAreToldFirst();
    void emptyBootCodeIsNotWritten();
};

namespace
{

QString make(const ImageDisk& stick)
{
    QStringList said;
    return BootableDisk(stick.setup(&said)).make();
}

QByteArray firstSectorOf(const ImageDisk& stick)
{
    return readFile(stick.disk()).left(sectorSize);
}

} // namespace

void TstBootableDiskRefusal::refusedDiskStaysUntouched_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("why");
    QTest::newRow("inner disk") << QByteArray("\"usb\"") << QByteArray("\"nvme\"")
                                << "is neither a USB disk nor a removable one";
    QTest::newRow("write-protected")
        << QByteArray("\"rm\":true") << QByteArray("\"ro\":true") << "is write-protected";
    QTest::newRow("partition") << QByteArray("\"disk\"") << QByteArray("\"part\"")
                               << "is not a whole disk";
    QTest::newRow("no partition") << QByteArray("disk1") << QByteArray("disk2")
                                  << "has no first partition";
    QTest::newRow("no answer") << QByteArray("blockdevices") << QByteArray("devices")
                               << "no list of devices";
}

void TstBootableDiskRefusal::refusedDiskStaysUntouched()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, why);
    const ImageDisk stick;
    stick.setFacts(stick.facts().replace(from, to));
    const QString error = make(stick);
    QVERIFY2(error.startsWith("Checking ") && error.endsWith(why), qPrintable(error));
    QCOMPARE(stick.calls(), QStringList());
    QVERIFY(stick.isUntouched());
}

void TstBootableDiskRefusal::otherDiskUnderTheSameNameIsNotWritten()
{
    const ImageDisk stick;
    stick.setMounted({stick.mountPoint()});
    stick.behave("umount", "echo '[null]' >'" + stick.path("mounted").toUtf8() +
                               "'; sed -i s/SERIAL/ANOTHER/ '" + stick.path("facts").toUtf8() +
                               "'");
    const QString error = make(stick);
    QVERIFY2(error.endsWith("is another disk than before"), qPrintable(error));
    QCOMPARE(stick.calls().size(), 1);
    QVERIFY(stick.isUntouched());
}

void TstBootableDiskRefusal::tableThatChangesMeanwhileIsNotWritten()
{
    const ImageDisk stick;
    stick.setMounted({stick.mountPoint()});
    stick.behave("umount", "echo '[null]' >'" + stick.path("mounted").toUtf8() +
                               "'; printf x | dd of='" + stick.disk().toUtf8() +
                               "' bs=1 seek=460 conv=notrunc status=none");
    const QString error = make(stick);
    QVERIFY2(error.endsWith("has changed since it was checked"), qPrintable(error));
    QCOMPARE(firstSectorOf(stick).left(440), QByteArray(440, '\0'));
}

void TstBootableDiskRefusal::diskOfAnotherSizeIsNotWritten()
{
    const ImageDisk stick;
    QVERIFY(QFile::resize(stick.disk(), 5000000));
    const QString error = make(stick);
    QVERIFY2(error.endsWith("has changed since it was checked"), qPrintable(error));
    QVERIFY(stick.isUntouched());
}

void TstBootableDiskRefusal::missingBootFilesAreToldFirst()
{
    const ImageDisk stick;
    QStringList said;
    BootableDisk::Setup setup = stick.setup(&said);
    setup.bootFiles = findBootFiles(stick.path("nowhere/"));
    QVERIFY(BootableDisk(setup).make().endsWith("(package syslinux-common)"));
    QVERIFY(stick.isUntouched());
}

void TstBootableDiskRefusal::emptyBootCodeIsNotWritten()
{
    const ImageDisk stick;
    writeFile(stick.path("installed/mbr.bin"), "");
    QVERIFY(make(stick).endsWith("mbr.bin is no boot code"));
    QVERIFY(stick.isUntouched());
}

KORVEX_TEST_MAIN(TstBootableDiskRefusal)
#include "tst_bootabledisk_refusal.moc"
