// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskmachine.h"
#include "diskpartitioner.h"
#include "standins.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usbwritercommand.h"

#include <QDir>

// Partitioning as root step by step, with stand-ins for the system's tools, and everything that has
// to stop it before anything is written.
class TstDiskPartitioner : public TestCase
{
    Q_OBJECT

private slots:
    void diskBecomesOneVolume();
    void smallDiskBecomesFat16();
    void mountFolderOfThatNameIsLeftAlone();
    void refusedBeforeAnythingIsWritten_data();
    void refusedBeforeAnythingIsWritten();
    void otherDiskOfThatNameIsNotWritten();
    void diskThatIsMountedAsSystemMeanwhileIsNotWritten();
    void otherDiskOfThatNameIsNotFormatted();
    void partitionThatNeverAppears();
    void failedStepEndsTheWork_data();
    void failedStepEndsTheWork();
    void unmountSays();
    void argumentsHaveToBeTheProgramsOwn_data();
    void argumentsHaveToBeTheProgramsOwn();
};

namespace
{

const QStringList arguments = partitionDiskArguments("/dev/sdb", "FAT32", "WIN 10", 31914983424);

QByteArray changed(const char* answer, const char* from, const char* to)
{
    return QByteArray(answer).replace(from, to);
}

} // namespace

void TstDiskPartitioner::diskBecomesOneVolume()
{
    DiskMachine machine({noPartition, noPartition, onePartition});
    QCOMPARE(machine.run(arguments).mid(0, 7),
             QStringList({"Started partitioning on sdb", "Unmounting disk",
                          "Creating the partition map", "Waiting for partitions to activate",
                          "Formatting sdb1 as MS-DOS (FAT32) with name WIN 10", "Mounting disk",
                          "Finished partitioning on sdb"}));
    const QStringList changes = machine.changes();
    QCOMPARE(changes.mid(0, 3),
             QStringList({"sfdisk|--lock=yes|--wipe|always|--wipe-partitions|always|--|/dev/sdb",
                          "udevadm|settle|--timeout=10", "mkfs.vfat|-F|32|-n|WIN 10|/dev/sdb1"}));
    QCOMPARE(changes.size(), 4);
    QVERIFY(changes[3].startsWith("mount|-t|vfat|-o|rw,nosuid,nodev,"));
    QVERIFY(changes[3].endsWith("|--|/dev/sdb1|" + machine.tools.filePath("media/WIN 10")));
    QCOMPARE(readFile(machine.tools.filePath("table")),
             QByteArray("label: dos\nstart=1MiB, type=0c\n"));
}

void TstDiskPartitioner::smallDiskBecomesFat16()
{
    DiskMachine machine({changed(noPartition, "31914983424", "4294967295"),
                         changed(noPartition, "31914983424", "4294967295"),
                         changed(onePartition, "31914983424", "4294967295")});
    const QStringList words = partitionDiskArguments("/dev/sdb", "FAT", "WIN 10", 4294967295);
    QVERIFY(machine.run(words).contains("Formatting sdb1 as MS-DOS (FAT16) with name WIN 10"));
    QVERIFY(machine.changes().contains("mkfs.vfat|-F|16|-n|WIN 10|/dev/sdb1"));
    QCOMPARE(readFile(machine.tools.filePath("table")),
             QByteArray("label: dos\nstart=1MiB, type=0e\n"));
}

void TstDiskPartitioner::mountFolderOfThatNameIsLeftAlone()
{
    DiskMachine machine({noPartition, noPartition, onePartition});
    writeFile(machine.tools.filePath("media/WIN 10/file"), "x");
    QCOMPARE(machine.run(arguments).last(), QString("0"));
    QVERIFY(machine.changes().last().endsWith(machine.tools.filePath("media/WIN 101")));
}

void TstDiskPartitioner::refusedBeforeAnythingIsWritten_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const QByteArray& answer, int at, const char* word,
                        const char* message) {
        QStringList words = arguments;
        words[at] = word;
        QTest::newRow(name) << answer << words << QString(message);
    };
    row("built-in disk", changed(noPartition, "\"usb\"", "\"sata\""), 1, "/dev/sdb",
        "Error: /dev/sdb is neither a USB disk nor a removable one");
    row("system disk", changed(onePartition, "\"fstype\"", R"("mountpoints":["/"],"fstype")"), 1,
        "/dev/sdb", "Error: The system runs from /dev/sdb: /dev/sdb1 is in use as /");
    row("partition", changed(noPartition, "\"disk\"", "\"part\""), 1, "/dev/sdbs1",
        "Error: /dev/sdb is not a whole disk");
    row("no such disk", "", 1, "/dev/sdz", "Error: Could not find disk: /dev/sdz");
    row("bad name", noPartition, 5, "A*B",
        "Error: The name A*B holds a character that FAT cannot hold: *");
    row("long name", noPartition, 5, "ABCDEFGHIJKL",
        "Error: The name ABCDEFGHIJKL is longer than 11 characters");
    row("unknown file system", noPartition, 4, "HFS+", "Error: Unknown file system: HFS+");
    row("too large for FAT16", noPartition, 4, "\"MS-DOS FAT16\"",
        "Error: -69850: The chosen size is not valid for the chosen file system");
    row("too large for the table", changed(noPartition, "31914983424", "2199023256064"), 1,
        "/dev/sdb",
        "Error creating partition map: The disk is too large to be supported by the given "
        "partition scheme (-69659)");
}

void TstDiskPartitioner::refusedBeforeAnythingIsWritten()
{
    QFETCH(QByteArray, answer);
    QFETCH(QStringList, words);
    QFETCH(QString, message);
    DiskMachine machine({answer});
    QCOMPARE(machine.run(words), QStringList({message, "1"}));
    QCOMPARE(machine.changes(), QStringList());
}

void TstDiskPartitioner::otherDiskOfThatNameIsNotWritten()
{
    for (const char* const field : {"\"serial\":\"1\"", "\"model\":\"Cruzer\""}) {
        DiskMachine machine(
            {noPartition,
             changed(noPartition, field, QByteArray(field).replace(':', ":\"x\",\"y\":"))});
        QCOMPARE(machine.run(arguments).mid(2),
                 QStringList({"Error: /dev/sdb is another disk now", "1"}));
        QCOMPARE(machine.changes(), QStringList());
    }
}

void TstDiskPartitioner::diskThatIsMountedAsSystemMeanwhileIsNotWritten()
{
    DiskMachine machine(
        {onePartition, changed(onePartition, "\"fstype\"", R"("mountpoints":["/var"],"fstype")")});
    QCOMPARE(
        machine.run(arguments).mid(2),
        QStringList({"Error: The system runs from /dev/sdb: /dev/sdb1 is in use as /var", "1"}));
    QCOMPARE(machine.changes(), QStringList());
}

void TstDiskPartitioner::otherDiskOfThatNameIsNotFormatted()
{
    DiskMachine machine({noPartition, noPartition, changed(onePartition, "Cruzer", "Backup")});
    QVERIFY(machine.run(arguments).contains("Error: /dev/sdb is another disk now"));
    QCOMPARE(machine.changes().filter("mkfs"), QStringList());
}

void TstDiskPartitioner::partitionThatNeverAppears()
{
    DiskMachine machine({noPartition});
    DiskPartitioner partitioner(machine.volumes);
    partitioner.setPatience(1);
    int code = -1;
    const QStringList lines = spokenLines(
        [&] { code = partitioner.partitionDisk("/dev/sdb", fatVolumeFrom("FAT32", "X")); });
    QCOMPARE(lines.last(), QString("Error: The new partition did not appear"));
    QCOMPARE(code, 1);
    QCOMPARE(machine.changes().filter("mkfs"), QStringList());
}

void TstDiskPartitioner::failedStepEndsTheWork_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("message");
    QTest::newRow("sfdisk") << "sfdisk"
                            << "Error creating partition map: no";
    QTest::newRow("mkfs.vfat") << "mkfs.vfat"
                               << "Error: mkfs.vfat failed with exit code 3: no";
    QTest::newRow("mount") << "mount"
                           << "Error: mount failed with exit code 3: no";
}

void TstDiskPartitioner::failedStepEndsTheWork()
{
    QFETCH(QString, tool);
    QFETCH(QString, message);
    DiskMachine machine({noPartition, noPartition, onePartition});
    machine.tools.add(tool, "echo no >&2; exit 3");
    const QStringList lines = machine.run(arguments);
    QCOMPARE(lines.mid(lines.size() - 2), QStringList({message, "1"}));
    QCOMPARE(machine.changes().last().section('|', 0, 0), tool);
    QCOMPARE(QDir(machine.tools.filePath("media")).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
             QStringList());
}

void TstDiskPartitioner::unmountSays()
{
    DiskMachine machine({onePartition});
    QCOMPARE(machine.run({"unmountDisk", "/dev/sdb"}),
             QStringList({"Unmount of all volumes on sdb was successful", "0"}));
    DiskMachine builtIn({changed(onePartition, "\"usb\"", "\"sata\"")});
    QCOMPARE(builtIn.run({"unmountDisk", "/dev/sdb"}),
             QStringList({"Unmount of sdb failed: /dev/sdb is neither a USB disk nor a removable "
                          "one",
                          "1"}));
}

void TstDiskPartitioner::argumentsHaveToBeTheProgramsOwn_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::newRow("none") << QStringList();
    QTest::newRow("unknown") << QStringList{"eraseDisk", "/dev/sdb"};
    QTest::newRow("two partitions")
        << QStringList{"partitionDisk", "/dev/sdb", "2", "MBR", "FAT32", "X", "R"};
    QTest::newRow("other table") << QStringList{"partitionDisk", "/dev/sdb", "1", "GPT",
                                                "FAT32",         "X",        "R"};
    QTest::newRow("other size") << QStringList{"partitionDisk", "/dev/sdb", "1", "MBR",
                                               "FAT32",         "X",        "1G"};
    QTest::newRow("one more") << arguments + QStringList("x");
    QTest::newRow("no disk") << QStringList{"unmountDisk"};
}

void TstDiskPartitioner::argumentsHaveToBeTheProgramsOwn()
{
    QFETCH(QStringList, words);
    DiskMachine machine({noPartition});
    const QStringList lines = machine.run(words);
    QVERIFY(lines.first().startsWith("Usage: diskutil "));
    QCOMPARE(lines.last(), QString("1"));
    QCOMPARE(machine.tools.calls(), QStringList());
}

KORVEX_TEST_MAIN(TstDiskPartitioner)

#include "tst_diskpartitioner.moc"
