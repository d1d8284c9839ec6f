// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskutilfacts.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QTemporaryDir>

// What diskutil tells of a device, and which disks are refused by it.
class TstDiskutilFacts : public TestCase
{
    Q_OBJECT

private slots:
    void wholeStick();
    void mountedPartition();
    void otherNamesOfOlderSystems();
    void refusedDisks_data();
    void refusedDisks();
    void factThatIsMissingRefuses_data();
    void factThatIsMissingRefuses();
    void errors_data();
    void errors();
    void failingDiskutilTellsWhy_data();
    void failingDiskutilTellsWhy();
    void nodes_data();
    void nodes();
};

namespace
{

const QByteArray stick = R"(<plist version="1.0"><dict>
<key>BusProtocol</key><string>USB</string>
<key>DeviceBlockSize</key><integer>512</integer>
<key>DeviceNode</key><string>/dev/disk6</string>
<key>DeviceTreePath</key><string>IODeviceTree:/PCI0@0/XHC1@14</string>
<key>Internal</key><false/>
<key>MediaName</key><string>1081 </string>
<key>MountPoint</key><string></string>
<key>RemovableMedia</key><true/>
<key>TotalSize</key><integer>31914983424</integer>
<key>VirtualOrPhysical</key><string>Physical</string>
<key>VolumeName</key><string></string>
<key>WholeDisk</key><true/>
<key>WritableMedia</key><true/>
</dict></plist>
)";

QByteArray changed(const QByteArray& from, const QByteArray& to)
{
    QByteArray text = stick;
    return text.replace(from, to);
}

} // namespace

void TstDiskutilFacts::wholeStick()
{
    const DiskutilFacts facts = readDiskutilInfo(stick);
    QCOMPARE(facts.error, QString());
    QCOMPARE(facts.device.path, QString("/dev/disk6"));
    QVERIFY(facts.device.isDisk() && facts.device.isUsb());
    QVERIFY(facts.device.removable && !facts.device.readOnly);
    QCOMPARE(facts.device.size, 31914983424LL);
    QCOMPARE(facts.device.model, QString("1081"));
    QCOMPARE(facts.device.serial, QString("IODeviceTree:/PCI0@0/XHC1@14"));
    QCOMPARE(facts.device.mountPoints, QStringList());
    QVERIFY(facts.isExternal && facts.isPhysical);
    QCOMPARE(facts.blockSize, 512LL);
    QCOMPARE(diskutilRefusal(facts), QString());
}

void TstDiskutilFacts::mountedPartition()
{
    QByteArray text = changed("WholeDisk</key><true/>", "WholeDisk</key><false/>");
    text.replace("MountPoint</key><string>", "MountPoint</key><string>/Volumes/MY &amp; STICK ");
    const DiskutilFacts facts = readDiskutilInfo(text);
    QVERIFY(facts.device.isPartition());
    QCOMPARE(facts.device.mountPoints, QStringList("/Volumes/MY & STICK "));
    QCOMPARE(diskutilRefusal(facts), QString("/dev/disk6 is not a whole disk"));
}

void TstDiskutilFacts::otherNamesOfOlderSystems()
{
    QByteArray text = changed("RemovableMedia", "Removable");
    text.replace("TotalSize", "Size").replace("WritableMedia", "Writable");
    const DiskutilFacts facts = readDiskutilInfo(text);
    QCOMPARE(facts.device.size, 31914983424LL);
    QCOMPARE(diskutilRefusal(facts), QString());
}

void TstDiskutilFacts::refusedDisks_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("why");
    QTest::newRow("built in") << QByteArray("Internal</key><false/>")
                              << QByteArray("Internal</key><true/>") << "is built in";
    QTest::newRow("fixed") << QByteArray("RemovableMedia</key><true/>")
                           << QByteArray("RemovableMedia</key><false/>") << "is not removable";
    QTest::newRow("container") << QByteArray(">Physical<") << QByteArray(">Virtual<")
                               << "is not a piece of hardware";
    QTest::newRow("image of a disk")
        << QByteArray(">USB<") << QByteArray(">Disk Image<") << "is not a piece of hardware";
    QTest::newRow("inner bus") << QByteArray(">USB<") << QByteArray(">SATA<")
                               << "is neither a USB disk nor a removable one";
    QTest::newRow("optical drive")
        << QByteArray("<key>WholeDisk")
        << QByteArray("<key>OpticalDeviceType</key><string>CD-ROM</string><key>WholeDisk")
        << "is an optical drive";
    QTest::newRow("no medium") << QByteArray("31914983424") << QByteArray("0")
                               << "There is no medium in /dev/disk6";
    QTest::newRow("the system's") << QByteArray("MountPoint</key><string>")
                                  << QByteArray("MountPoint</key><string>/")
                                  << "/dev/disk6 is in use as /";
}

void TstDiskutilFacts::refusedDisks()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, why);
    const QString refused = diskutilRefusal(readDiskutilInfo(changed(from, to)));
    QVERIFY2(refused.endsWith(why), qPrintable(refused));
}

void TstDiskutilFacts::factThatIsMissingRefuses_data()
{
    QTest::addColumn<QByteArray>("key");
    for (const char* key :
         {"Internal", "RemovableMedia", "TotalSize", "WholeDisk", "WritableMedia"})
        QTest::newRow(key) << QByteArray(key);
}

void TstDiskutilFacts::factThatIsMissingRefuses()
{
    QFETCH(QByteArray, key);
    const DiskutilFacts facts = readDiskutilInfo(changed(key + "</key>", "Other</key>"));
    QCOMPARE(facts.error, QString());
    QVERIFY(!diskutilRefusal(facts).isEmpty());
}

void TstDiskutilFacts::errors_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");
    QTest::newRow("no list") << QByteArray("x")
                             << "The answer of diskutil cannot be read: Premature end of document.";
    QTest::newRow("another list") << QByteArray("<plist><array/></plist>")
                                  << "The answer of diskutil tells of no device";
    QTest::newRow("told") << QByteArray("<plist><dict><key>Error</key><true/><key>ErrorMessage"
                                        "</key><string>Could not find disk: disk9</string>"
                                        "</dict></plist>")
                          << "diskutil failed: Could not find disk: disk9";
}

void TstDiskutilFacts::errors()
{
    QFETCH(QByteArray, text);
    QTEST(readDiskutilInfo(text).error, "error");
}

void TstDiskutilFacts::failingDiskutilTellsWhy_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("error");
    QTest::newRow("in its answer")
        << QByteArray("echo '<plist><dict><key>ErrorMessage</key><string>No disk</string></dict>"
                      "</plist>'; exit 1")
        << "diskutil failed: No disk";
    QTest::newRow("beside it") << QByteArray("echo 'No disk' >&2; exit 1")
                               << "diskutil failed with exit code 1: No disk";
    QTest::newRow("after an answer")
        << "cat <<'END'\n" + stick + "END\nexit 3" << "diskutil failed with exit code 3";
    QTest::newRow("not at all")
        << "[ \"$*\" = 'info -plist /dev/disk6' ] || exit 1\ncat <<'END'\n" + stick + "END" << "";
}

void TstDiskutilFacts::failingDiskutilTellsWhy()
{
    QFETCH(QByteArray, body);
    const QTemporaryDir folder;
    writeScript(folder.filePath("diskutil"), body + '\n');
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8() + ':' + before);
    const DiskutilFacts facts = diskutilInfo("/dev/disk6");
    qputenv("PATH", before);
    QTEST(facts.error, "error");
}

void TstDiskutilFacts::nodes_data()
{
    QTest::addColumn<QString>("raw");
    QTest::addColumn<QString>("partition");
    QTest::newRow("/dev/disk2") << "/dev/rdisk2"
                                << "/dev/disk2s1";
    QTest::newRow("/dev/disk12") << "/dev/rdisk12"
                                 << "/dev/disk12s1";
    QTest::newRow("/tmp/disk") << "/tmp/disk"
                               << "/tmp/disks1";
}

void TstDiskutilFacts::nodes()
{
    QTEST(rawNode(QTest::currentDataTag()), "raw");
    QTEST(diskutilPartition(QTest::currentDataTag(), 1), "partition");
}

KORVEX_TEST_MAIN(TstDiskutilFacts)
#include "tst_diskutilfacts.moc"
