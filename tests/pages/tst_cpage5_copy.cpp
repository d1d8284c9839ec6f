// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "cprogressdialog.h"
#include "disccopytest.h"
#include "processcounts.h"
#include "receiver.h"
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
    void progressIsReadFromALine();
    void progressOfTheToolShows();
    void nextCopyStartsAtZero();
    void stopCreateEndsTheTool_data();
    void stopCreateEndsTheTool();
    void linesAndEndOnTheirWayAreIgnoredAfterAStop();
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
    QCOMPARE(QApplication::activeModalWidget(), fixture->progress());
    fixture->press("back");
    fixture->press("start");
    QVERIFY(page && page->isVisible());
    QCOMPARE(scenario->callsOf("hdiutil").size(), 1);
    scenario->release("copied");
    QCOMPARE(closeMessage(), copySuccess());
}

// How lines are read is the reader's test; here, that the bar gets what it reads.
void TstCPage5Copy::progressIsReadFromALine()
{
    fixture->progress()->SetRange(0, 10000);
    page->OnReadLineOutput("DRStatusPercentCompleteKey: 0.12349\n");
    QCOMPARE(fixture->progressValue(), 1234);
    page->OnReadLineOutput("DRStatusPercentCompleteKey: 1\n");
    QCOMPARE(fixture->progressValue(), 10000);
    page->OnReadLineOutput("DRStatusPercentCompleteKey: 0.1\n");
    QCOMPARE(fixture->progressValue(), 1000);
    for (const char* const line : {"DRStatusPercentCompleteKey: 0\n",
                                   "DRStatusPercentCompleteKey: -1\n", "DRStatusStateKey: 1", ""}) {
        page->OnReadLineOutput(line);
        QCOMPARE(fixture->progressValue(), 1000);
    }
}

void TstCPage5Copy::progressOfTheToolShows()
{
    onMakeHybrid({DriveScenario::printing(DriveTexts::makingHybrid({"0.1", "0.25"})),
                  scenario->holding("more"),
                  DriveScenario::printing(DriveTexts::discProgress("0.75")),
                  scenario->holding("copied")});
    fixture->press("start");
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 2500, patienceMs);
    scenario->release("more");
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 7500, patienceMs);
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
    QTest::newRow("polite") << "";
    QTest::newRow("deaf") << "ignore-term";
}

// The dialog's button is off, but its signal is connected all the same.
void TstCPage5Copy::stopCreateEndsTheTool()
{
    QFETCH(QString, action);
    startHeld({action, DriveScenario::printing(DriveTexts::makingHybrid({"0.25"}))});
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 2500, patienceMs);
    // The page is told when the dialog has gone.
    bool wasShown = true;
    Receiver told([&] { wasShown = fixture->progress()->isVisible(); });
    connect(fixture->progress(), SIGNAL(SigCancel()), &told, SLOT(call()));
    fixture->progress()->OnBtnCancel();
    QVERIFY(!wasShown);
    QVERIFY(!fixture->progress()->isVisible());
    QVERIFY(waitUntilToolsAreGone());
    QCoreApplication::processEvents();
    QVERIFY(processesOf("scripteddrive").isEmpty());
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(page->isEnabled());
}

// All that the tool had to tell waits to be delivered when the stop comes.
void TstCPage5Copy::linesAndEndOnTheirWayAreIgnoredAfterAStop()
{
    onMakeHybrid({DriveScenario::printing(DriveTexts::makingHybrid({"0.1"}))});
    fixture->press("start");
    const auto isCalled = [this] { return scenario->callsOf("hdiutil").size() == 1; };
    QVERIFY(PageFixture::waitWithoutEvents(isCalled));
    QVERIFY(PageFixture::waitUntilAllIsSent());
    QCOMPARE(fixture->progressValue(), 0);
    fixture->progress()->OnBtnCancel();
    QVERIFY(waitUntilToolsAreGone());
    QCOMPARE(fixture->progressValue(), 0);
    QVERIFY(!QApplication::activeModalWidget());
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
    startHeld({"ignore-term", scenario->holding("deaf"),
               DriveScenario::printing(DriveTexts::makingHybrid({"0.1"}))});
    QVERIFY(scenario->isHeld("deaf"));
    page->StopCreate();
    fixture->progress()->hide();
    onMakeHybrid({scenario->holding("second")});
    fixture->press("start");
    QVERIFY(scenario->isHeld("second"));
    // What the first one still says, if it comes to that.
    scenario->release("deaf");
    QTRY_COMPARE_WITH_TIMEOUT(runnerThreadCount(), 1, patienceMs);
    QCoreApplication::processEvents();
    QCOMPARE(fixture->progressValue(), 0);
    QVERIFY(fixture->progress()->isVisible());
    scenario->release("second");
    QCOMPARE(closeMessage(), copySuccess());
}

KORVEX_TEST_MAIN(TstCPage5Copy)
#include "tst_cpage5_copy.moc"
