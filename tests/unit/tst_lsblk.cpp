// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "lsblk.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// Reading the answers of lsblk, from files and as they may come damaged.
class TstLsblk : public TestCase
{
    Q_OBJECT

private slots:
    void everyFactOfAStick();
    void oldFormTellsTheSame();
    void blanksAndUnicodeOfNamesAreKept();
    void whatLiesOnAPartitionIsItsChild();
    void everyMountPointIsRead();
    void sizeThatNoDiskHasIsNone_data();
    void sizeThatNoDiskHasIsNone();
    void damagedAnswer_data();
    void damagedAnswer();
    void everyCutAnswerIsAnError();
    void emptyListIsNoError();
    void nameOfADeviceCannotBecomeASwitch();
    void partitionByNumber_data();
    void partitionByNumber();
    void otherDiskUnderTheSameName_data();
    void otherDiskUnderTheSameName();
    void realToolAnswers();
    void realToolRefusesWhatIsNoDevice();
};

namespace
{

QByteArray answer(const QString& name)
{
    return readFile(QStringLiteral(KORVEX_TEST_DATA "/lsblk/%1.json").arg(name));
}

BlockDevice disk(const QString& name)
{
    return readBlockDevices(answer(name)).devices.value(0);
}

} // namespace

void TstLsblk::everyFactOfAStick()
{
    const BlockDevices read = readBlockDevices(answer("usb-stick"));
    QCOMPARE(read.error, QString());
    QCOMPARE(read.devices.size(), 1);
    const BlockDevice& stick = read.devices.first();
    QCOMPARE(stick.path, QString("/dev/sdb"));
    QVERIFY(stick.isDisk());
    QVERIFY(!stick.isPartition());
    QVERIFY(!stick.isOptical());
    QVERIFY(stick.isUsb());
    QCOMPARE(stick.size, 31914983424LL);
    QVERIFY(stick.removable);
    QVERIFY(stick.hotplug);
    QVERIFY(!stick.readOnly);
    QCOMPARE(stick.vendor, QString("SanDisk"));
    QCOMPARE(stick.model, QString("Cruzer Blade"));
    QCOMPARE(stick.serial, QString("4C530001230415113245"));
    QCOMPARE(stick.label, QString());
    QCOMPARE(stick.mountPoints, QStringList());
    QCOMPARE(stick.children.size(), 1);
    const BlockDevice& partition = stick.children.first();
    QVERIFY(partition.isPartition());
    QCOMPARE(partition.size, 31913934848LL);
    QCOMPARE(partition.fileSystem, QString("vfat"));
    QCOMPARE(partition.label, QString("MY STICK"));
    QCOMPARE(partition.mountPoints, QStringList("/media/user/MY STICK"));
    QVERIFY(!disk("usb-ssd").removable);
    QVERIFY(disk("write-protected-stick").readOnly);
    QVERIFY(disk("cd-drive").isOptical());
}

void TstLsblk::oldFormTellsTheSame()
{
    const BlockDevice now = disk("usb-stick");
    const BlockDevice old = disk("usb-stick-old-form");
    QVERIFY(old.isSameDisk(now));
    QCOMPARE(old.removable, now.removable);
    QCOMPARE(old.readOnly, now.readOnly);
    QCOMPARE(old.children.first().mountPoints, now.children.first().mountPoints);
}

void TstLsblk::blanksAndUnicodeOfNamesAreKept()
{
    const BlockDevice partition = disk("usb-ssd").children.first();
    QCOMPARE(partition.label, QString::fromUtf8("Datensicherung \u00c4"));
    QCOMPARE(partition.mountPoints,
             QStringList(QString::fromUtf8("/run/media/user/Datensicherung \u00c4")));
    const BlockDevices read =
        readBlockDevices(R"({"blockdevices":[{"label":" a","mountpoints":["/media/user/ b "]}]})");
    QCOMPARE(read.devices.value(0).label, QString(" a"));
    QCOMPARE(read.devices.value(0).mountPoints, QStringList("/media/user/ b "));
}

void TstLsblk::whatLiesOnAPartitionIsItsChild()
{
    const BlockDevice crypt = disk("installed-usb-ssd-luks-lvm").children.at(1).children.at(0);
    QCOMPARE(crypt.type, QString("crypt"));
    QCOMPARE(crypt.children.at(0).mountPoints, QStringList("/"));
    QCOMPARE(crypt.children.at(1).mountPoints, QStringList("[SWAP]"));
}

void TstLsblk::everyMountPointIsRead()
{
    QCOMPARE(disk("usb-stick-mounted-as-root-too").children.first().mountPoints,
             QStringList({"/media/user/x", "/"}));
}

void TstLsblk::sizeThatNoDiskHasIsNone_data()
{
    QTest::addColumn<QByteArray>("size");
    QTest::addColumn<qint64>("bytes");
    QTest::newRow("number") << QByteArray("1e12") << 1000000000000LL;
    QTest::newRow("largest") << QByteArray("9223372036854774784") << 9223372036854774784LL;
    QTest::newRow("one too much") << QByteArray("9223372036854775808") << 0LL;
    QTest::newRow("far too much") << QByteArray("1e71") << 0LL;
    QTest::newRow("far below zero") << QByteArray("-1e71") << 0LL;
    QTest::newRow("below zero") << QByteArray("-512") << 0LL;
    QTest::newRow("text, too much") << QByteArray("\"9223372036854775808\"") << 0LL;
    QTest::newRow("text, below zero") << QByteArray("\"-512\"") << 0LL;
}

void TstLsblk::sizeThatNoDiskHasIsNone()
{
    QFETCH(QByteArray, size);
    QFETCH(qint64, bytes);
    const BlockDevices read = readBlockDevices(R"({"blockdevices":[{"size":)" + size + "}]}");
    QCOMPARE(read.error, QString());
    QCOMPARE(read.devices.value(0).size, bytes);
}

void TstLsblk::damagedAnswer_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("lsblk: unknown column\n");
    QTest::newRow("no list") << QByteArray("{}");
    QTest::newRow("list of another kind") << QByteArray(R"({"blockdevices":"sdb"})");
    QTest::newRow("an array") << QByteArray("[]");
}

void TstLsblk::damagedAnswer()
{
    QFETCH(QByteArray, json);
    const BlockDevices read = readBlockDevices(json);
    QVERIFY(read.error.startsWith("The answer of lsblk cannot be read: "));
    QVERIFY(read.devices.isEmpty());
}

void TstLsblk::everyCutAnswerIsAnError()
{
    const QByteArray whole = answer("nvme-system-disk").trimmed();
    for (int length = 0; length < whole.size(); ++length)
        QVERIFY2(!readBlockDevices(whole.left(length)).error.isEmpty(),
                 qPrintable(QString::number(length)));
    QVERIFY(readBlockDevices(whole).error.isEmpty());
}

void TstLsblk::emptyListIsNoError()
{
    const BlockDevices read = readBlockDevices(R"({"blockdevices":[]})");
    QCOMPARE(read.error, QString());
    QVERIFY(read.devices.isEmpty());
}

void TstLsblk::nameOfADeviceCannotBecomeASwitch()
{
    QCOMPARE(lsblkArguments("--help").mid(4), QStringList({"--", "--help"}));
    QCOMPARE(lsblkArguments(QString()).size(), 4);
    // Else the answer is flat, and no disk has partitions.
    QCOMPARE(lsblkArguments(QString()).last().split(',').first(), QString("NAME"));
}

void TstLsblk::partitionByNumber_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("path");
    QTest::newRow("letter") << "usb-stick" << 1 << "/dev/sdb1";
    QTest::newRow("digit") << "card-in-built-in-reader" << 1 << "/dev/mmcblk0p1";
    QTest::newRow("third") << "nvme-system-disk" << 3 << "/dev/nvme0n1p3";
    QTest::newRow("gap") << "live-stick-ubuntu" << 2 << QString();
    QTest::newRow("none") << "usb-stick-without-partitions" << 1 << QString();
    QTest::newRow("zero") << "usb-stick" << 0 << QString();
}

void TstLsblk::partitionByNumber()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    QFETCH(QString, path);
    const BlockDevice device = disk(name);
    const BlockDevice* partition = device.partition(number);
    QCOMPARE(partition ? partition->path : QString(), path);
}

void TstLsblk::otherDiskUnderTheSameName_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<bool>("same");
    QTest::newRow("unchanged") << QByteArray("x") << QByteArray("x") << true;
    QTest::newRow("mounted elsewhere") << QByteArray("/media/user/") << QByteArray("/mnt/") << true;
    QTest::newRow("size") << QByteArray("31914983424") << QByteArray("31914983936") << false;
    QTest::newRow("serial") << QByteArray("4C53") << QByteArray("4C54") << false;
    QTest::newRow("model") << QByteArray("Cruzer Blade") << QByteArray("Cruzer Fit") << false;
    QTest::newRow("vendor") << QByteArray("SanDisk") << QByteArray("Another") << false;
    QTest::newRow("name") << QByteArray("/dev/sdb") << QByteArray("/dev/sdc") << false;
}

void TstLsblk::otherDiskUnderTheSameName()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(bool, same);
    const BlockDevice before = disk("usb-stick");
    const BlockDevices after = readBlockDevices(answer("usb-stick").replace(from, to));
    QCOMPARE(before.isSameDisk(after.devices.value(0)), same);
}

void TstLsblk::realToolAnswers()
{
    const BlockDevices read = blockDevices();
    QCOMPARE(read.error, QString());
    for (const BlockDevice& device : read.devices) {
        QVERIFY(device.path.startsWith("/dev/"));
        QVERIFY(!device.type.isEmpty());
    }
}

void TstLsblk::realToolRefusesWhatIsNoDevice()
{
    for (const char* device : {"/dev/null", "/nowhere/at all", "--help", "/"}) {
        const BlockDevices read = blockDevices(device);
        QVERIFY2(read.error.startsWith("lsblk failed with exit code "), qPrintable(read.error));
        QVERIFY(read.devices.isEmpty());
    }
}

KORVEX_TEST_MAIN(TstLsblk)
#include "tst_lsblk.moc"
