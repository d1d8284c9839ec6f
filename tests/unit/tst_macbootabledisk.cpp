// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "loaderfile.h"
#include "macbootabledisk.h"
#include "macimagedisk.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// The order of the steps where diskutil rules over the disks, and what happens when one fails.
class TstMacBootableDisk : public TestCase
{
    Q_OBJECT

private slots:
    void everyStepInItsOrder();
    void diskHoldsWhatMakesItBoot();
    void mountedPartitionIsUsedAsItIs();
    void partitionMountedElsewhereIsMovedThere();
    void desktopThatMountsBeforeWeDoIsTakenAsItIs();
    void desktopThatMountsBeforeTheWritingIsSentAway();
    void partitionThatIsGoneForAMomentIsWaitedFor();
    void failingProgramEndsTheRun_data();
    void failingProgramEndsTheRun();
    void mountThatDidNotHappenIsTold();
    void unmountThatDidNotHappenIsTold();
    void stopBetweenSteps_data();
    void stopBetweenSteps();
};

namespace
{

const FatImage& fileSystem()
{
    static const FatImage image(16, 4, 20);
    return image;
}

QString make(const MacImageDisk& stick, QStringList* said = nullptr)
{
    QStringList lines;
    const QString error = MacBootableDisk(stick.setup(&lines)).make();
    if (said)
        *said = lines;
    return error;
}

QString mountCall(const MacImageDisk& stick)
{
    return "diskutil mount -mountPoint " + stick.mountPoint() + ' ' + stick.partition();
}

QString unmountCall(const MacImageDisk& stick)
{
    return "diskutil unmountDisk " + stick.disk();
}

} // namespace

void TstMacBootableDisk::everyStepInItsOrder()
{
    const MacImageDisk stick(fileSystem());
    QStringList said;
    QCOMPARE(make(stick, &said), QString());
    QCOMPARE(stick.calls(),
             QStringList({mountCall(stick), "sync", unmountCall(stick), mountCall(stick)}));
    const QString mounting = "Mounting " + stick.partition() + " at " + stick.mountPoint();
    QCOMPARE(said, QStringList({"Checking " + stick.disk(), mounting, "Copying the boot loader",
                                "Writing everything out", "Unmounting " + stick.disk(),
                                "Installing the boot loader on " + stick.partition(),
                                "Writing the boot code to " + stick.disk(), mounting}));
    QCOMPARE(stick.mounted(), stick.mountPoint());
}

void TstMacBootableDisk::diskHoldsWhatMakesItBoot()
{
    const MacImageDisk stick(fileSystem());
    QCOMPARE(make(stick), QString());
    const QByteArray disk = readFile(stick.disk());
    const QByteArray bootCode = readFile(stick.path("syslinux/mbr.bin"));
    QCOMPARE(disk.left(bootCode.size()), bootCode);
    QCOMPARE(disk.at(446), '\x80');
    QCOMPARE(disk.mid(1048576 + 3, 8), QByteArray("SYSLINUX"));
    QCOMPARE(
        entriesOf(stick.mountPoint()),
        QStringList({"ldlinux.c32", "ldlinux.sys", "libcom32.c32", "libutil.c32", "syslinux"}));
    QCOMPARE(entriesOf(stick.mountPoint() + "/syslinux"),
             QStringList({"chain.c32", "libcom32.c32", "libutil.c32"}));
    const QByteArray loader = readFile(stick.mountPoint() + "/ldlinux.sys");
    QVERIFY(loader != readFile(stick.path("syslinux/ldlinux.sys")));
    QCOMPARE(LoaderFile(loader).content().size(), loader.size());
}

void TstMacBootableDisk::mountedPartitionIsUsedAsItIs()
{
    const MacImageDisk stick(fileSystem());
    stick.mountAt(stick.mountPoint());
    QCOMPARE(make(stick), QString());
    QCOMPARE(stick.calls(), QStringList({"sync", unmountCall(stick), mountCall(stick)}));
}

void TstMacBootableDisk::partitionMountedElsewhereIsMovedThere()
{
    const MacImageDisk stick(fileSystem());
    stick.mountAt(stick.path("other"));
    QCOMPARE(make(stick), QString());
    QCOMPARE(stick.calls().mid(0, 2), QStringList({unmountCall(stick), mountCall(stick)}));
    QCOMPARE(stick.mounted(), stick.mountPoint());
}

// The end of the writing has the desktop look at the disk.
void TstMacBootableDisk::desktopThatMountsBeforeWeDoIsTakenAsItIs()
{
    const MacImageDisk stick(fileSystem());
    QStringList said;
    MacBootableDisk::Setup setup = stick.setup(&said);
    setup.say = [&](const QString& line) {
        said.append(line);
        if (said.size() == 8)
            stick.mountAt(stick.mountPoint());
    };
    QCOMPARE(MacBootableDisk(setup).make(), QString());
    QCOMPARE(said.size(), 8);
    QCOMPARE(stick.calls(), QStringList());
    QCOMPARE(stick.mounted(), stick.mountPoint());
}

void TstMacBootableDisk::desktopThatMountsBeforeTheWritingIsSentAway()
{
    const MacImageDisk stick(fileSystem());
    QStringList said;
    MacBootableDisk::Setup setup = stick.setup(&said);
    setup.say = [&](const QString& line) {
        if (line.startsWith("Installing"))
            stick.mountAt(stick.path("other"));
    };
    QCOMPARE(MacBootableDisk(setup).make(), QString());
    QCOMPARE(stick.calls(), QStringList({unmountCall(stick), mountCall(stick)}));
}

void TstMacBootableDisk::partitionThatIsGoneForAMomentIsWaitedFor()
{
    const MacImageDisk stick(fileSystem());
    QStringList said;
    MacBootableDisk::Setup setup = stick.setup(&said);
    setup.say = [&](const QString& line) {
        said.append(line);
        if (said.size() == 8)
            stick.before("diskutil-info", "rm \"$home/before-diskutil-info\"\n"
                                          "echo 'Could not find disk' >&2\nexit 1");
    };
    QCOMPARE(MacBootableDisk(setup).make(), QString());
    QVERIFY(!QFile::exists(stick.path("before-diskutil-info")));
    QCOMPARE(stick.mounted(), stick.mountPoint());
}

void TstMacBootableDisk::failingProgramEndsTheRun_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("step");
    QTest::addColumn<int>("calls");
    QTest::newRow("diskutil-mount") << "diskutil"
                                    << "Mounting" << 5;
    QTest::newRow("sync") << "sync"
                          << "Writing everything out" << 2;
    QTest::newRow("diskutil-unmountDisk") << "diskutil"
                                          << "Unmounting" << 3;
}

void TstMacBootableDisk::failingProgramEndsTheRun()
{
    QFETCH(QString, program);
    QFETCH(QString, step);
    QFETCH(int, calls);
    const MacImageDisk stick(fileSystem());
    stick.before(QTest::currentDataTag(), "echo 'it is busy' >&2\nexit 1");
    const QString error = make(stick);
    QVERIFY2(error.startsWith(step), qPrintable(error));
    QVERIFY2(error.endsWith(" failed: " + program + " failed with exit code 1: it is busy"),
             qPrintable(error));
    QCOMPARE(stick.calls().size(), calls);
    QVERIFY(stick.isUntouched());
}

void TstMacBootableDisk::mountThatDidNotHappenIsTold()
{
    const MacImageDisk stick(fileSystem());
    stick.before("diskutil-mount", "exit 0");
    const QString error = make(stick);
    QVERIFY2(error.endsWith("disks1 is mounted at: "), qPrintable(error));
    QCOMPARE(entriesOf(stick.mountPoint()), QStringList());
}

void TstMacBootableDisk::unmountThatDidNotHappenIsTold()
{
    const MacImageDisk stick(fileSystem());
    stick.before("diskutil-unmountDisk", "exit 0");
    const QString error = make(stick);
    QVERIFY2(error.startsWith("Unmounting") && error.endsWith("disks1 is still mounted"),
             qPrintable(error));
    QVERIFY(stick.isUntouched());
}

void TstMacBootableDisk::stopBetweenSteps_data()
{
    QTest::addColumn<int>("lastStep");
    QTest::addColumn<QString>("nextStep");
    QTest::addColumn<int>("calls");
    QTest::newRow("look") << 1 << "Mounting" << 0;
    QTest::newRow("first mount") << 2 << "Copying" << 1;
    QTest::newRow("write out") << 4 << "Unmounting" << 2;
    QTest::newRow("unmount") << 5 << "Installing" << 3;
    QTest::newRow("boot code") << 7 << "Mounting" << 3;
}

void TstMacBootableDisk::stopBetweenSteps()
{
    QFETCH(int, lastStep);
    QFETCH(QString, nextStep);
    QFETCH(int, calls);
    const MacImageDisk stick(fileSystem());
    QStringList said;
    std::atomic<bool> stopped{false};
    MacBootableDisk::Setup setup = stick.setup(&said);
    setup.stopped = &stopped;
    setup.say = [&](const QString& line) {
        said.append(line);
        stopped = said.size() == lastStep;
    };
    const QString error = MacBootableDisk(setup).make();
    QVERIFY2(error.startsWith("Stopped before: " + nextStep), qPrintable(error));
    QCOMPARE(stick.calls().size(), calls);
}

KORVEX_TEST_MAIN(TstMacBootableDisk)
#include "tst_macbootabledisk.moc"
