// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "mountedvolumes.h"
#include "mounttable.h"
#include "testcase.h"
#include "testmain.h"

// Reading the kernel's mount table and writing it the way the program reads it.
class TstMountedVolumes : public TestCase
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();
    void otherLinesAreLeftOut_data();
    void otherLinesAreLeftOut();
    void everyLineOfTheRealTableIsRead();
    void uppermostVolumeIsFound();
    void volumeThatHoldsAFile_data();
    void volumeThatHoldsAFile();
    void programFindsTheMountPointOfADisc_data();
    void programFindsTheMountPointOfADisc();
};

void TstMountedVolumes::lines_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, const char* entry, const char* line) {
        QTest::newRow(name) << QByteArray(entry) << QString::fromUtf8(line);
    };
    row("disc",
        "90 25 11:0 / /media/user/DISC ro,nosuid,nodev,relatime shared:50 - iso9660 /dev/sr0 ro",
        "/dev/sr0 on /media/user/DISC (iso9660, local, nodev, nosuid, read-only)");
    row("stick", "91 25 8:17 / /media/user/STICK rw,nosuid - vfat /dev/sdb1 rw,uid=1000",
        "/dev/sdb1 on /media/user/STICK (vfat, local, nosuid)");
    row("no device", "22 25 0:21 / /proc rw,nodev - proc proc rw", "proc on /proc (proc, nodev)");
    row("several optional fields", "1 2 8:1 / / rw shared:1 master:2 - ext4 /dev/sda1 rw",
        "/dev/sda1 on / (ext4, local)");
    row("blank and word", "1 2 11:0 / /media/u/A\\040on\\040B ro - udf /dev/sr0 ro",
        "/dev/sr0 on /media/u/A on B (udf, local, read-only)");
    row("backslash", "1 2 11:0 / /m/a\\134040b rw - udf /dev/sr0 ro",
        "/dev/sr0 on /m/a\\040b (udf, local)");
    row("unicode", "1 2 11:0 / /m/\xe5\x85\x89 rw - udf /dev/sr0 ro",
        "/dev/sr0 on /m/\xe5\x85\x89 (udf, local)");
    row("line feed stays escaped", "1 2 11:0 / /m/a\\012/dev/sr0 rw - udf /dev/sr0 ro",
        "/dev/sr0 on /m/a\\012/dev/sr0 (udf, local)");
    row("broken escape", "1 2 11:0 / /m/a\\04 rw - udf /dev/sr0 ro",
        "/dev/sr0 on /m/a\\04 (udf, local)");
    row("escape beyond a byte", "1 2 11:0 / /m/\\777 rw - udf /dev/sr0 ro",
        "/dev/sr0 on /m/\\777 (udf, local)");
    row("read-only below, not in this place", "1 2 11:0 / /m rw - udf /dev/sr0 ro",
        "/dev/sr0 on /m (udf, local)");
}

void TstMountedVolumes::lines()
{
    QFETCH(QByteArray, entry);
    const QList<MountedVolume> table = readMountTable(entry + '\n');
    QCOMPARE(table.size(), 1);
    QTEST(mountLine(table.first()), "line");
}

void TstMountedVolumes::otherLinesAreLeftOut_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no separator") << QByteArray("1 2 8:1 / / rw shared:1 ext4 /dev/sda1 rw");
    QTest::newRow("separator too early") << QByteArray("1 2 - ext4 /dev/sda1 rw");
    QTest::newRow("breaks off") << QByteArray("1 2 8:1 / / rw - ext4");
    QTest::newRow("old table") << QByteArray("/dev/sda1 / ext4 rw 0 0");
}

void TstMountedVolumes::otherLinesAreLeftOut()
{
    QFETCH(QByteArray, text);
    QVERIFY(readMountTable(text).isEmpty());
}

void TstMountedVolumes::everyLineOfTheRealTableIsRead()
{
    QFile file("/proc/self/mountinfo");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(mountTable().size(), file.readAll().count('\n'));
    QCOMPARE(volumeMountedAt(mountTable(), "/").path, QString("/"));
}

void TstMountedVolumes::uppermostVolumeIsFound()
{
    const QList<MountedVolume> table = readMountTable("1 2 8:1 / /m rw - ext4 /dev/sda1 rw\n"
                                                      "3 1 8:2 / /m rw - ext4 /dev/sda2 rw\n"
                                                      "4 1 8:3 / /m/x rw - ext4 /dev/sda3 rw\n");
    QCOMPARE(volumeMountedAt(table, "/m").source, QString("/dev/sda2"));
    QCOMPARE(volumeMountedAt(table, "/m/").source, QString());
    QCOMPARE(volumeMountedAt(table, "").source, QString());
}

void TstMountedVolumes::volumeThatHoldsAFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("source");
    QTest::newRow("root") << "/x.iso"
                          << "/dev/sda1";
    QTest::newRow("stick") << "/media/u/A/folder/x.iso"
                           << "/dev/sdb1";
    QTest::newRow("the volume's own folder") << "/media/u/A"
                                             << "/dev/sdb1";
    QTest::newRow("begins like a mount point") << "/media/u/A B/x.iso"
                                               << "/dev/sda1";
    QTest::newRow("volume in a volume") << "/media/u/A/inner/x.iso"
                                        << "/dev/sdc1";
    QTest::newRow("hidden by a later one") << "/mnt/x.iso"
                                           << "/dev/sde1";
    QTest::newRow("nowhere") << "x.iso"
                             << "";
}

void TstMountedVolumes::volumeThatHoldsAFile()
{
    QFETCH(QString, path);
    const QList<MountedVolume> table = readMountTable("1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                                      "2 1 8:33 / /media/u/A/inner rw - vfat "
                                                      "/dev/sdc1 rw\n"
                                                      "3 1 8:17 / /media/u/A rw - vfat /dev/sdb1 "
                                                      "rw\n"
                                                      "4 1 8:49 / /mnt rw - vfat /dev/sdd1 rw\n"
                                                      "5 4 8:65 / /mnt rw - vfat /dev/sde1 rw\n");
    QTEST(volumeHolding(table, path).source, "source");
}

void TstMountedVolumes::programFindsTheMountPointOfADisc_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << "/media/user/DISC";
    QTest::newRow("blanks") << "/media/user/My Disc 1";
    QTest::newRow("word of the line") << "/media/user/a on b";
    QTest::newRow("run folder") << "/run/media/user/DISC";
}

void TstMountedVolumes::programFindsTheMountPointOfADisc()
{
    QFETCH(QString, path);
    const MountedVolume disc{"/dev/sr0", path, "iso9660", {"ro"}};
    QCOMPARE(mountPointInLine(mountLine(disc), "/dev/sr0").value_or(QString()), path);
    QVERIFY(!mountPointInLine(mountLine(disc), "/dev/sr1"));
}

KORVEX_TEST_MAIN(TstMountedVolumes)

#include "tst_mountedvolumes.moc"
