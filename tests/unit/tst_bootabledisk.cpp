// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootabledisk.h"
#include "imagedisk.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QProcess>

// The order of the steps and what happens when one fails, on a disk made of files.
class TstBootableDisk : public TestCase
{
    Q_OBJECT

private slots:
    void everyStepInItsOrder();
    void bootCodeAndActiveFlagAreWritten();
    void modulesLieWhereTheyAreLookedFor();
    void olderModulesAreReplaced();
    void mountedPartitionIsUnmountedFirst();
    void topmostMountIsTakenAwayFirst();
    void failingProgramEndsTheRun_data();
    void failingProgramEndsTheRun();
    void desktopThatMountsMeanwhileDoesNotMountTwice();
    void bootLoaderIsNotInstalledOnAMountedPartition();
    void mountThatDidNotHappenIsTold();
    void folderThatVanishesBeforeMountingIsMadeAgain();
    void filesBelowTheMountStayUncovered();
    void diskIsLockedWhileItChanges();
    void stopBetweenSteps_data();
    void stopBetweenSteps();
};

namespace
{

// Runs it all and returns why it failed.
QString make(const ImageDisk& stick, QStringList* said = nullptr)
{
    QStringList lines;
    const QString error = BootableDisk(stick.setup(&lines)).make();
    if (said)
        *said = lines;
    return error;
}

QString mountCall(const ImageDisk& stick)
{
    return "mount -t vfat -o rw,nosuid,nodev,uid=1000,gid=1001,fmask=0022,dmask=0022,utf8,flush "
           "-- " +
           stick.partition() + ' ' + stick.mountPoint();
}

} // namespace

void TstBootableDisk::everyStepInItsOrder()
{
    const ImageDisk stick;
    QStringList said;
    QCOMPARE(make(stick, &said), QString());
    QCOMPARE(stick.calls(),
             QStringList({"syslinux --install " + stick.partition(), mountCall(stick),
                          "sync --file-system -- " + stick.mountPoint()}));
    QCOMPARE(said, QStringList({"Checking " + stick.disk(), "Unmounting " + stick.partition(),
                                "Writing the boot code to " + stick.disk(),
                                "Installing the boot loader on " + stick.partition(),
                                "Mounting " + stick.partition() + " at " + stick.mountPoint(),
                                "Copying the boot loader's modules", "Writing everything out"}));
}

void TstBootableDisk::bootCodeAndActiveFlagAreWritten()
{
    const ImageDisk stick;
    const QByteArray before = readFile(stick.disk());
    QCOMPARE(make(stick), QString());
    const QByteArray after = readFile(stick.disk());
    QCOMPARE(after.left(440), QByteArray(440, 'm'));
    QCOMPARE(after.at(446), '\x80');
    QByteArray rest = after.mid(440);
    rest[6] = '\0';
    QVERIFY(rest == before.mid(440));
}

void TstBootableDisk::modulesLieWhereTheyAreLookedFor()
{
    const ImageDisk stick;
    QCOMPARE(make(stick), QString());
    QCOMPARE(entriesOf(stick.mountPoint()),
             QStringList({"libcom32.c32", "libutil.c32", "syslinux"}));
    QCOMPARE(entriesOf(stick.mountPoint() + "/syslinux"),
             QStringList({"chain.c32", "libcom32.c32", "libutil.c32"}));
    QCOMPARE(readFile(stick.mountPoint() + "/syslinux/chain.c32"), QByteArray(440, 'c'));
    QCOMPARE(readFile(stick.mountPoint() + "/libutil.c32"), QByteArray(440, 'l'));
}

void TstBootableDisk::olderModulesAreReplaced()
{
    const ImageDisk stick;
    stick.behave("mount",
                 "echo \"[\\\"$7\\\"]\" >'" + stick.path("mounted").toUtf8() +
                     "'; mkdir \"$7/syslinux\"; head -c 9000 /dev/zero >\"$7/syslinux/chain.c32\"; "
                     "echo kept >\"$7/other\"");
    QCOMPARE(make(stick), QString());
    QCOMPARE(readFile(stick.mountPoint() + "/syslinux/chain.c32"), QByteArray(440, 'c'));
    QCOMPARE(readFile(stick.mountPoint() + "/other"), QByteArray("kept\n"));
}

void TstBootableDisk::mountedPartitionIsUnmountedFirst()
{
    const ImageDisk stick;
    stick.setMounted({stick.mountPoint()});
    QCOMPARE(make(stick), QString());
    QCOMPARE(stick.calls().value(0), "umount -- " + stick.mountPoint());
    QCOMPARE(stick.calls().size(), 4);
}

void TstBootableDisk::topmostMountIsTakenAwayFirst()
{
    const ImageDisk stick;
    stick.setMounted({"/media/a", "/media/b"});
    QCOMPARE(make(stick), QString());
    QCOMPARE(stick.calls().mid(0, 2), QStringList({"umount -- /media/b", "umount -- /media/a"}));
}

void TstBootableDisk::failingProgramEndsTheRun_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<int>("calls");
    QTest::addColumn<bool>("untouched");
    QTest::newRow("umount") << "Unmounting" << 1 << true;
    QTest::newRow("syslinux") << "Installing the boot loader" << 2 << false;
    QTest::newRow("mount") << "Mounting" << 5 << false;
    QTest::newRow("sync") << "Writing everything out" << 4 << false;
}

void TstBootableDisk::failingProgramEndsTheRun()
{
    QFETCH(QString, step);
    QFETCH(int, calls);
    QFETCH(bool, untouched);
    const ImageDisk stick;
    const QString program = QTest::currentDataTag();
    stick.setMounted({stick.mountPoint()});
    stick.behave(program, "echo 'it is busy' >&2; exit 32");
    const QString error = make(stick);
    QVERIFY2(error.startsWith(step), qPrintable(error));
    QVERIFY2(error.endsWith(" failed: " + program + " failed with exit code 32: it is busy"),
             qPrintable(error));
    QCOMPARE(stick.calls().size(), calls);
    QCOMPARE(stick.isUntouched(), untouched);
}

void TstBootableDisk::desktopThatMountsMeanwhileDoesNotMountTwice()
{
    const ImageDisk stick;
    stick.behave("syslinux",
                 "echo '[\"/media/user/other\"]' >'" + stick.path("mounted").toUtf8() + "'");
    QCOMPARE(make(stick), QString());
    QCOMPARE(stick.calls().mid(1, 2),
             QStringList({"umount -- /media/user/other", mountCall(stick)}));
}

void TstBootableDisk::bootLoaderIsNotInstalledOnAMountedPartition()
{
    const ImageDisk stick;
    stick.setMounted({stick.mountPoint()});
    stick.behave("umount", ":");
    const QString error = make(stick);
    QVERIFY2(error.startsWith("Installing") && error.endsWith("has been mounted meanwhile"),
             qPrintable(error));
    QCOMPARE(stick.calls().size(), 1);
}

void TstBootableDisk::mountThatDidNotHappenIsTold()
{
    const ImageDisk stick;
    stick.behave("mount", ":");
    const QString error = make(stick);
    QVERIFY2(error.contains("disk1 is mounted at: "), qPrintable(error));
    QCOMPARE(entriesOf(stick.mountPoint()), QStringList());
}

void TstBootableDisk::folderThatVanishesBeforeMountingIsMadeAgain()
{
    const ImageDisk stick;
    const QByteArray mounted = stick.path("mounted").toUtf8();
    stick.behave("mount", "if [ ! -e '" + mounted + ".once' ]; then touch '" + mounted +
                              ".once'; rmdir \"$7\"; exit 32; fi\necho \"[\\\"$7\\\"]\" >'" +
                              mounted + "'");
    QCOMPARE(make(stick), QString());
    QCOMPARE(stick.calls().size(), 4);
    QCOMPARE(entriesOf(stick.mountPoint()).size(), 3);
}

void TstBootableDisk::filesBelowTheMountStayUncovered()
{
    const ImageDisk stick;
    stick.setMounted({stick.mountPoint()});
    writeFile(stick.mountPoint() + "/below", "x");
    QVERIFY(make(stick).endsWith("is a folder with files in it"));
    QCOMPARE(entriesOf(stick.mountPoint()), QStringList("below"));
}

void TstBootableDisk::diskIsLockedWhileItChanges()
{
    const ImageDisk stick;
    const QByteArray probe = "flock -n '" + stick.disk().toUtf8() + "' true && echo unlocked >>'" +
                             stick.path("calls").toUtf8() + "'; true";
    QCOMPARE(QProcess::execute("sh", {"-c", probe}), 0);
    QCOMPARE(stick.calls(), QStringList("unlocked"));
    stick.behave("syslinux", probe);
    QCOMPARE(make(stick), QString());
    QCOMPARE(stick.calls().count("unlocked"), 1);
}

void TstBootableDisk::stopBetweenSteps_data()
{
    QTest::addColumn<QString>("lastStep");
    QTest::addColumn<QString>("nextStep");
    QTest::addColumn<int>("calls");
    QTest::newRow("look") << "Checking"
                          << "Unmounting" << 0;
    QTest::newRow("unmount") << "Unmounting"
                             << "Writing the boot code" << 1;
    QTest::newRow("boot code") << "Writing the boot code"
                               << "Installing" << 1;
    QTest::newRow("install") << "Installing"
                             << "Mounting" << 2;
    QTest::newRow("mount") << "Mounting"
                           << "Copying" << 3;
}

void TstBootableDisk::stopBetweenSteps()
{
    QFETCH(QString, lastStep);
    QFETCH(QString, nextStep);
    QFETCH(int, calls);
    const ImageDisk stick;
    stick.setMounted({stick.mountPoint()});
    QStringList said;
    std::atomic<bool> stopped{false};
    BootableDisk::Setup setup = stick.setup(&said);
    setup.stopped = &stopped;
    setup.say = [&](const QString& line) { stopped = stopped || line.startsWith(lastStep); };
    const QString error = BootableDisk(setup).make();
    QVERIFY2(error.startsWith("Stopped before: " + nextStep), qPrintable(error));
    QCOMPARE(stick.calls().size(), calls);
}

KORVEX_TEST_MAIN(TstBootableDisk)
#include "tst_bootabledisk.moc"
