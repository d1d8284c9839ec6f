// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "disccopytest.h"
#include "heartbeat.h"
#include "processcounts.h"
#include "testfiles.h"
#include "testmain.h"

#include <QApplication>
#include <QComboBox>
#include <QTest>

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
    QTRY_COMPARE(drives()->count(), 1);
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
    QTRY_COMPARE(drives()->count(), devices.size());
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
    QTRY_VERIFY(debugLines().filter("sloterrorstart").size() == 1);
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
    scenario->on(
        "drutil", {"status"},
        {"flood 1", DriveScenario::printing(DriveTexts::opticalStatus(firstDrive())), "flood 1"});
    openPage();
    const Heartbeat heartbeat;
    QTRY_COMPARE_WITH_TIMEOUT(driveTexts(), QStringList(firstText()), 20000);
    QVERIFY2(heartbeat.count() > 3, qPrintable(QString::number(heartbeat.count())));
}

void TstCPage5Drives::pageIsClosedWhileTheToolHangs_data()
{
    QTest::addColumn<QStringList>("actions");
    QTest::newRow("silent") << QStringList("sleep 60000");
    QTest::newRow("deaf") << QStringList({"ignore-term", "sleep 60000"});
    QTest::newRow("flood") << QStringList({"flood 2000"});
}

void TstCPage5Drives::pageIsClosedWhileTheToolHangs()
{
    QFETCH(QStringList, actions);
    scenario->on("drutil", {"status"}, actions);
    openPage();
    QVERIFY(waitForCalls("drutil", 1));
    fixture->press("back");
    QTRY_VERIFY(page.isNull());
    QVERIFY(waitUntilToolsAreGone());
    QTRY_VERIFY(processesOf("scripteddrive").isEmpty());
}

KORVEX_TEST_MAIN(TstCPage5Drives)
#include "tst_cpage5_drives.moc"
