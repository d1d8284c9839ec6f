// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "cprogressdialog.h"
#include "disccopytest.h"
#include "heartbeat.h"
#include "processcounts.h"
#include "testmain.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

// The Copy Disk page while a disc is copied.
class TstCPage5Copy : public DiscCopyTest
{
    Q_OBJECT

private slots:
    void init();
    void dialogSaysStartReadingAndCannotBeStopped();
    void pageIsBlockedMeanwhileButTheWindowLives();
    void progressIsReadFromALine_data();
    void progressIsReadFromALine();
    void progressOfTheToolShows();
    void nextCopyStartsAtZero();
    void stopCreateEndsTheTool_data();
    void stopCreateEndsTheTool();
    void stopCreateWithoutCopyDoesNothing();
    void copyAfterAStopGetsNothingOfTheEarlierOne();
};

void TstCPage5Copy::init()
{
    DiscCopyTest::init();
    openReadyPage();
}

void TstCPage5Copy::dialogSaysStartReadingAndCannotBeStopped()
{
    startHeld();
    CProgressDialog* const dialog = fixture->progress();
    QVERIFY(dialog->isVisible());
    QCOMPARE(fixture->progressText(), QString("Start reading..."));
    QCOMPARE(fixture->progressValue(), 0);
    QCOMPARE(fixture->progressMaximum(), 10000);
    QVERIFY(!dialog->findChild<QWidget*>("btncancel")->isEnabled());
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(dialog->isVisible());
    scenario->release("copied");
    QCOMPARE(closeMessage(), copySuccess());
}

void TstCPage5Copy::pageIsBlockedMeanwhileButTheWindowLives()
{
    startHeld();
    const Heartbeat heartbeat;
    QCOMPARE(QApplication::activeModalWidget(), fixture->progress());
    fixture->press("back");
    fixture->press("start");
    QVERIFY(page && page->isVisible());
    QTRY_VERIFY(heartbeat.count() > 5);
    QCOMPARE(scenario->callsOf("hdiutil").size(), 1);
    scenario->release("copied");
    QCOMPARE(closeMessage(), copySuccess());
}

void TstCPage5Copy::progressIsReadFromALine_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("value");
    constexpr int unchanged = 1000;
    QTest::newRow("quarter") << "DRStatusPercentCompleteKey: 0.25\n" << 2500;
    QTest::newRow("all") << "DRStatusPercentCompleteKey: 1\n" << 10000;
    QTest::newRow("truncated") << "DRStatusPercentCompleteKey: 0.12349\n" << 1234;
    QTest::newRow("least") << "DRStatusPercentCompleteKey: 0.00015\n" << 1;
    QTest::newRow("carriage return") << "\rDRStatusPercentCompleteKey:0.5\r\n" << 5000;
    QTest::newRow("indented") << "   DRStatusPercentCompleteKey:   0.5   " << 5000;
    QTest::newRow("exponent") << "DRStatusPercentCompleteKey: 2.5e-1" << 2500;
    QTest::newRow("zero") << "DRStatusPercentCompleteKey: 0\n" << unchanged;
    QTest::newRow("negative") << "DRStatusPercentCompleteKey: -1\n" << unchanged;
    QTest::newRow("no number") << "DRStatusPercentCompleteKey: half\n" << unchanged;
    QTest::newRow("not a number") << "DRStatusPercentCompleteKey: nan\n" << unchanged;
    QTest::newRow("endless") << "DRStatusPercentCompleteKey: inf\n" << unchanged;
    QTest::newRow("no value") << "DRStatusPercentCompleteKey:\n" << unchanged;
    QTest::newRow("no colon") << "DRStatusPercentCompleteKey 0.5\n" << unchanged;
    QTest::newRow("comma") << "DRStatusPercentCompleteKey: 0,5\n" << unchanged;
    QTest::newRow("other key") << "DRStatusStateKey: 0.5\n" << unchanged;
    QTest::newRow("other case") << "drstatuspercentcompletekey: 0.5\n" << unchanged;
    QTest::newRow("empty") << "" << unchanged;
}

void TstCPage5Copy::progressIsReadFromALine()
{
    QFETCH(QString, line);
    fixture->progress()->SetRange(0, 10000);
    page->OnReadLineOutput("DRStatusPercentCompleteKey: 0.1\n");
    QCOMPARE(fixture->progressValue(), 1000);
    page->OnReadLineOutput(line);
    QTEST(fixture->progressValue(), "value");
}

void TstCPage5Copy::progressOfTheToolShows()
{
    onMakeHybrid({DriveScenario::printing(DriveTexts::makingHybrid({"0.1", "0.25"})),
                  scenario->holding("more"),
                  DriveScenario::printing(DriveTexts::discProgress("0.75")),
                  scenario->holding("copied")});
    fixture->press("start");
    QTRY_COMPARE(fixture->progressValue(), 2500);
    scenario->release("more");
    QTRY_COMPARE(fixture->progressValue(), 7500);
    QCOMPARE(fixture->progressText(), QString("Start reading..."));
    scenario->release("copied");
    QCOMPARE(closeMessage(), copySuccess());
}

void TstCPage5Copy::nextCopyStartsAtZero()
{
    onMakeHybrid({DriveScenario::printing(DriveTexts::makingHybrid({"0.9"}))});
    QCOMPARE(copyToEnd(), copySuccess());
    QCOMPARE(fixture->progressValue(), 9000);
    onMakeHybrid({scenario->holding("copied")});
    fixture->press("start");
    QVERIFY(waitForCalls("hdiutil", 2));
    QCOMPARE(fixture->progressValue(), 0);
    scenario->release("copied");
    QCOMPARE(closeMessage(), copySuccess());
}

void TstCPage5Copy::stopCreateEndsTheTool_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("polite") << "sleep 0";
    QTest::newRow("deaf") << "ignore-term";
}

// The dialog's button is off, but its signal is connected all the same.
void TstCPage5Copy::stopCreateEndsTheTool()
{
    QFETCH(QString, action);
    startHeld({action, DriveScenario::printing(DriveTexts::makingHybrid({"0.25"}))});
    QTRY_COMPARE(fixture->progressValue(), 2500);
    fixture->progress()->OnBtnCancel();
    QVERIFY(!fixture->progress()->isVisible());
    QVERIFY(waitUntilToolsAreGone());
    QCoreApplication::processEvents();
    QVERIFY(processesOf("scripteddrive").isEmpty());
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(page->isEnabled());
}

void TstCPage5Copy::stopCreateWithoutCopyDoesNothing()
{
    page->StopCreate();
    page->StopCreate();
    QVERIFY(page->isVisible());
    QCOMPARE(drives()->count(), 1);
}

void TstCPage5Copy::copyAfterAStopGetsNothingOfTheEarlierOne()
{
    startHeld({"ignore-term", scenario->holding("line"),
               DriveScenario::printing(DriveTexts::makingHybrid({"0.1"}))});
    // Sent before the stop, received after it.
    scenario->release("line");
    QTest::qSleep(200);
    QCOMPARE(fixture->progressValue(), 0);
    page->StopCreate();
    QCoreApplication::processEvents();
    QCOMPARE(fixture->progressValue(), 0);
    fixture->progress()->hide();
    onMakeHybrid({scenario->holding("second")});
    fixture->press("start");
    QVERIFY(waitForCalls("hdiutil", 2));
    QTRY_VERIFY(runnerThreadCount() == 1);
    QCoreApplication::processEvents();
    QCOMPARE(fixture->progressValue(), 0);
    QVERIFY(fixture->progress()->isVisible());
    scenario->release("second");
    QCOMPARE(closeMessage(), copySuccess());
}

KORVEX_TEST_MAIN(TstCPage5Copy)
#include "tst_cpage5_copy.moc"
