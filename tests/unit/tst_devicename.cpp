// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "devicename.h"
#include "systempath.h"
#include "testcase.h"
#include "testmain.h"

#include <QDir>
#include <QTemporaryDir>

// The program's names for devices and the places where the system's tools are looked for.
class TstDeviceName : public TestCase
{
    Q_OBJECT

private slots:
    void paths_data();
    void paths();
    void names();
    void ownFolderLeavesThePath();
    void currentFolderLeavesThePath();
};

void TstDeviceName::paths_data()
{
    QTest::addColumn<QString>("path");
    const auto row = [](const char* name, const char* path) {
        QTest::newRow(name) << QString(path);
    };
    row("/dev/sdb", "/dev/sdb");
    row("sdb", "/dev/sdb");
    row("/dev/sdbs1", "/dev/sdb1");
    row("sdbs1", "/dev/sdb1");
    row("/dev/sdbs12", "/dev/sdb12");
    row("/dev/sdaas1", "/dev/sdaa1");
    row("/dev/mmcblk0s1", "/dev/mmcblk0p1");
    row("/dev/nvme0n1s2", "/dev/nvme0n1p2");
    row("/dev/loop7s1", "/dev/loop7p1");
    row("/dev/vdas1", "/dev/vda1");
    // The disk "sds" has partitions of the system's own form as well.
    row("/dev/sds", "/dev/sds");
    row("/dev/sds1", "/dev/sds1");
    row("/dev/sdss1", "/dev/sds1");
    row("/dev/sdb1", "/dev/sdb1");
    row("/dev/sdbs0", "/dev/sdbs0");
    row("/dev/sdbs", "/dev/sdbs");
    row("/dev/mapper/sdbs1", "/dev/mapper/sdbs1");
    row("/tmp/sdbs1", "/tmp/sdbs1");
    row("--help", "/dev/--help");
}

void TstDeviceName::paths()
{
    QTEST(devicePath(QTest::currentDataTag()), "path");
}

void TstDeviceName::names()
{
    QCOMPARE(deviceName("/dev/sdb1"), QString("sdb1"));
    QCOMPARE(deviceName("/dev/mapper/x"), QString("mapper/x"));
    QCOMPARE(deviceName("sdb"), QString("sdb"));
}

void TstDeviceName::ownFolderLeavesThePath()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("own"));
    QVERIFY(QFile::link(folder.filePath("own"), folder.filePath("link")));
    const QByteArray own = QFile::encodeName(folder.filePath("own"));
    const QByteArray link = QFile::encodeName(folder.filePath("link"));
    QCOMPARE(systemPath(own + ":/usr/bin:" + link + ':' + own + "/../own", folder.filePath("own")),
             QByteArray("/usr/bin:/usr/sbin:/sbin:/bin"));
}

void TstDeviceName::currentFolderLeavesThePath()
{
    QCOMPARE(systemPath(":/opt/x:.:bin:/opt/x:", "/nowhere"),
             QByteArray("/opt/x:/usr/sbin:/usr/bin:/sbin:/bin"));
    QCOMPARE(systemPath("", "/nowhere"), QByteArray("/usr/sbin:/usr/bin:/sbin:/bin"));
}

KORVEX_TEST_MAIN(TstDeviceName)

#include "tst_devicename.moc"
