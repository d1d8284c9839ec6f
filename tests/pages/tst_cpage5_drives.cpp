// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "disccopytest.h"
#include "otherlimit.h"
#include "processcounts.h"
#include "testfiles.h"
#include "testmain.h"

#include <QApplication>
#include <QComboBox>
#include <QTest>

#include <csignal>

namespace
{

// Only a test that fails needs so long.
constexpr int limitMs = 60000;

} // namespace

// The Copy Disk page's list of drives.
class TstCPage5Drives : public DiscCopyTest
{
    Q_OBJECT

private slots:
    void pageShowsBeforeTheDrivesAreKnown();
    void drivesAreAskedForOnceInTheExactWords();
    void driveIsListedByIdentificationAndDevice();
    void listFillsAsTheLinesArrive();
    void driveWithoutDiscIsNotListed();
    void secondDriveCarriesTheNameOfAnEmptyFirst();
    void deviceWithoutIdentificationBeginsWithABlank();
    void realStatusesAreRead_data();
    void realStatusesAreRead();
    void openingTheListAsksNobody();
    void missingToolLeavesTheListEmpty();
    void failingToolLeavesTheListEmpty_data();
    void failingToolLeavesTheListEmpty();
    void pauseInALineLosesNoDrive();
    void newRefreshEndsTheOlderOne();
    void floodOfOutputLeavesTheWindowAlive();
    void pageIsClosedWhileTheToolHangs_data();
    void pageIsClosedWhileTheToolHangs();
};

void TstCPage5Drives::pageShowsBeforeTheDrivesAreKnown()
{
    addTwoDrives();
    scenario->on("drutil", {"status"},
                 {scenario->holding("answer"),
                  DriveScenario::printing(DriveTexts::opticalStatus(firstDrive()))});
    openPage();
    QVERIFY(waitForCalls("drutil", 1));
    QVERIFY(page->isVisible());
    QVERIFY(page->isEnabled());
    QCOMPARE(driveTexts(), QStringList());
    scenario->release("answer");
    QVERIFY(waitForDrives({firstText()}));
}

void TstCPage5Drives::drivesAreAskedForOnceInTheExactWords()
{
    openPage();
    QVERIFY(waitForCalls("drutil", 1));
    QVERIFY(waitUntilToolsAreGone());
    QCOMPARE(scenario->commands(), QList<QStringList>({{"drutil", "status"}}));
}

void TstCPage5Drives::driveIsListedByIdentificationAndDevice()
{
    addTwoDrives();
    openPage();
    QVERIFY(waitForDrives({firstText(), secondText()}));
    QCOMPARE(drives()->itemData(0), QVariant("/dev/disk4"));
    QCOMPARE(drives()->itemData(1), QVariant("/dev/disk7"));
    QCOMPARE(drives()->currentIndex(), 0);
    QVERIFY(drives()->isEnabled());
}

void TstCPage5Drives::listFillsAsTheLinesArrive()
{
    scenario->on("drutil", {"status"},
                 {DriveScenario::printing(DriveTexts::opticalStatus(firstDrive())),
                  scenario->holding("rest"),
                  DriveScenario::printing(DriveTexts::opticalStatus(secondDrive()))});
    openPage();
    QVERIFY(waitForDrives({firstText()}));
    QVERIFY(runnerThreadCount() > 0);
    scenario->release("rest");
    QVERIFY(waitForDrives({firstText(), secondText()}));
}

void TstCPage5Drives::driveWithoutDiscIsNotListed()
{
    scenario->addOptical(" HL-DT-ST DVDRAM GP65NS60   PF00", "");
    openPage();
    QVERIFY(waitForCalls("drutil", 1));
    QVERIFY(waitUntilToolsAreGone());
    QCoreApplication::processEvents();
    QCOMPARE(driveTexts(), QStringList());
}

// What was read of the first is pending when the disc of the second completes the entry.
void TstCPage5Drives::secondDriveCarriesTheNameOfAnEmptyFirst()
{
    scenario->addOptical(" MATSHITA DVD-RAM UJ8E2 S   1.00", "");
    scenario->addOptical(" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk4", "/a");
    openPage();
    QTRY_COMPARE_WITH_TIMEOUT(drives()->count(), 1, limitMs);
    QCOMPARE(drives()->currentData(), QVariant("/dev/disk4"));
    QVERIFY2(driveTexts().first().startsWith("MATSHITA"), qPrintable(driveTexts().first()));
}

void TstCPage5Drives::deviceWithoutIdentificationBeginsWithABlank()
{
    openPage();
    page->onLineOutput("           Type: DVD-ROM              Name: /dev/disk3\r\n");
    QCOMPARE(driveTexts(), QStringList(" (/dev/disk3)"));
    QCOMPARE(drives()->currentData(), QVariant("/dev/disk3"));
}

void TstCPage5Drives::realStatusesAreRead_data()
{
    QTest::addColumn<QStringList>("devices");
    QTest::newRow("status-appendable-dvd-plus-r.txt") << QStringList("/dev/disk4");
    QTest::newRow("status-blank-cd-r.txt") << QStringList("/dev/disk7");
    QTest::newRow("status-dvd-rom.txt") << QStringList("/dev/disk4");
    QTest::newRow("status-no-disc.txt") << QStringList();
    QTest::newRow("status-no-drive-reconstructed.txt") << QStringList();
}

void TstCPage5Drives::realStatusesAreRead()
{
    QFETCH(QStringList, devices);
    const QString path = QString(KORVEX_TEST_DATA "/drutil/") + QTest::currentDataTag();
    const QString text = QString::fromUtf8(readFile(path));
    QVERIFY(!text.isEmpty());
    scenario->on("drutil", {"status"}, {DriveScenario::printing(text)});
    openPage();
    QTRY_COMPARE_WITH_TIMEOUT(drives()->count(), devices.size(), limitMs);
    QVERIFY(waitUntilToolsAreGone());
    QCoreApplication::processEvents();
    QStringList found;
    for (int i = 0; i < drives()->count(); ++i)
        found.append(drives()->itemData(i).toString());
    QCOMPARE(found, devices);
}

// Only the news of a drive does, unlike on the Burn page.
void TstCPage5Drives::openingTheListAsksNobody()
{
    openPageWithDisc();
    drives()->showPopup();
    drives()->hidePopup();
    QVERIFY(waitUntilToolsAreGone());
    QCOMPARE(scenario->callsOf("drutil").size(), 1);
    QCOMPARE(drives()->count(), 1);
}

void TstCPage5Drives::missingToolLeavesTheListEmpty()
{
    scenario->missing("drutil");
    openPage();
    QTRY_COMPARE_WITH_TIMEOUT(debugLines().filter("sloterrorstart").size(), 1, limitMs);
    QVERIFY(waitUntilToolsAreGone());
    QCoreApplication::processEvents();
    QCOMPARE(driveTexts(), QStringList());
    QVERIFY(page->isEnabled());
    QVERIFY(!QApplication::activeModalWidget());
}

void TstCPage5Drives::failingToolLeavesTheListEmpty_data()
{
    QTest::addColumn<QStringList>("actions");
    QTest::newRow("status") << QStringList({"err drutil: internal error\\n", "exit 1"});
    QTest::newRow("crash") << QStringList("crash");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("another format") << QStringList("lines 500 Vendor Product Rev Name");
    QTest::newRow("zero bytes") << QStringList("out \\x00\\x00 Name\\x00: /dev/disk4\\n");
}

void TstCPage5Drives::failingToolLeavesTheListEmpty()
{
    QFETCH(QStringList, actions);
    scenario->on("drutil", {"status"}, actions);
    openPage();
    QVERIFY(waitForCalls("drutil", 1));
    QVERIFY(waitUntilToolsAreGone());
    QCoreApplication::processEvents();
    QCOMPARE(driveTexts(), QStringList());
    QVERIFY(!QApplication::activeModalWidget());
}

void TstCPage5Drives::floodOfOutputLeavesTheWindowAlive()
{
    // The flood before the drive and the flood after it are far longer than what may be on its way
    // to the window; a turn of the window lies within each.
    int turns = 0;
    scenario->on("drutil", {"status"},
                 {"flood 1", DriveScenario::printing(DriveTexts::opticalStatus(firstDrive())),
                  "flood 1", scenario->holding("end")});
    const OtherLimit patience(toolLimits().deliveryMs, OtherLimit::forGood);
    openPage();
    QTimer turn;
    connect(&turn, &QTimer::timeout, this, [&turns] { ++turns; });
    turn.start(0);
    QVERIFY(scenario->isHeld("end"));
    QVERIFY(waitForDrives({firstText()}));
    QVERIFY2(turns > 3, qPrintable(QString::number(turns)));
    scenario->release("end");
}

// A pause of the tool in the middle of a line.
void TstCPage5Drives::pauseInALineLosesNoDrive()
{
    const OtherLimit quick(toolLimits().stepMs, 10);
    addTwoDrives();
    const QString status = DriveTexts::opticalStatus(firstDrive());
    const int cut = status.indexOf("/dev/disk4") + 5;
    scenario->on("drutil", {"status"},
                 {DriveScenario::printing(status.left(cut)), scenario->holding("pause"),
                  DriveScenario::printing(status.mid(cut))});
    openPage();
    QVERIFY(scenario->isHeld("pause"));
    const qint64 waits = runnerThreadWaits();
    QTRY_VERIFY_WITH_TIMEOUT(runnerThreadWaits() >= waits + 10, limitMs);
    scenario->release("pause");
    QVERIFY(waitForDrives({firstText()}));
}

void TstCPage5Drives::newRefreshEndsTheOlderOne()
{
    scenario->on("drutil", {"status"}, {"ignore-term", "sleep 600000"});
    openPage();
    QVERIFY(waitForCalls("drutil", 1));
    const QList<qint64> older = processesOf("scripteddrive");
    QCOMPARE(older.size(), 1);
    scenario->on("drutil", {"status"}, {scenario->holding("newer")});
    page->InitializeDVDComboBox();
    QVERIFY(scenario->isHeld("newer"));
    const bool hasEnded = QTest::qWaitFor(
        [&older] { return !processesOf("scripteddrive").contains(older.first()); }, limitMs);
    if (!hasEnded)
        ::kill(pid_t(older.first()), SIGKILL); // not to fail what comes next
    QVERIFY(hasEnded);
    scenario->release("newer");
}

void TstCPage5Drives::pageIsClosedWhileTheToolHangs_data()
{
    QTest::addColumn<QStringList>("actions");
    QTest::newRow("silent") << QStringList("sleep 600000");
    QTest::newRow("deaf") << QStringList({"ignore-term", "sleep 600000"});
    QTest::newRow("flood") << QStringList({"flood 100000000"});
}

void TstCPage5Drives::pageIsClosedWhileTheToolHangs()
{
    QFETCH(QStringList, actions);
    scenario->on("drutil", {"status"}, actions);
    openPage();
    QVERIFY(waitForCalls("drutil", 1));
    fixture->press("back");
    QTRY_VERIFY_WITH_TIMEOUT(page.isNull(), limitMs);
    QVERIFY(waitUntilToolsAreGone());
    QTRY_VERIFY_WITH_TIMEOUT(processesOf("scripteddrive").isEmpty(), limitMs);
}

KORVEX_TEST_MAIN(TstCPage5Drives)
#include "tst_cpage5_drives.moc"
