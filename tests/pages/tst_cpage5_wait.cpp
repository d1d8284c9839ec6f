// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "disccopytest.h"
#include "processcounts.h"
#include "testmain.h"
#include "trigger.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

// What may happen while the Copy Disk page waits for its tools.
class TstCPage5Wait : public DiscCopyTest
{
    Q_OBJECT

private slots:
    void init();
    void secondStartWhileMountIsSlowMeansNothing();
    void windowLivesWhileMountIsSlow();
    void pageIsClosedWhileMountIsSlow();
    void pageIsClosedWhileCopying_data();
    void pageIsClosedWhileCopying();
    void driveChangeWhileCopyingChangesTheListAlone();
};

void TstCPage5Wait::init()
{
    DiscCopyTest::init();
    openReadyPage();
}

void TstCPage5Wait::secondStartWhileMountIsSlowMeansNothing()
{
    scenario->on("mount", {}, {scenario->holding("table")});
    const Trigger pressAgain([&] { return scenario->callsOf("mount").size() == 1; },
                             [&] {
                                 fixture->press("start");
                                 page->OnStart();
                                 scenario->release("table");
                             });
    QCOMPARE(copyToEnd(), copySuccess());
    QVERIFY(pressAgain.hasFired());
    QCOMPARE(scenario->callsOf("mount").size(), 1);
    QCOMPARE(scenario->callsOf("hdiutil").size(), 1);
    // The next one counts again.
    QCOMPARE(copyToEnd(), copySuccess());
    QCOMPARE(scenario->callsOf("hdiutil").size(), 2);
}

void TstCPage5Wait::windowLivesWhileMountIsSlow()
{
    scenario->on("mount", {}, {scenario->holding("table")});
    // Fires from within the page's waiting, or not at all.
    bool isShown = true;
    const Trigger look([&] { return scenario->callsOf("mount").size() == 1; },
                       [&] {
                           isShown = fixture->progress()->isVisible();
                           scenario->release("table");
                       });
    QCOMPARE(copyToEnd(), copySuccess());
    QVERIFY(look.hasFired());
    QVERIFY(!isShown);
}

void TstCPage5Wait::pageIsClosedWhileMountIsSlow()
{
    scenario->on("mount", {}, {scenario->holding("table")});
    bool isThere = false;
    const Trigger close([&] { return scenario->callsOf("mount").size() == 1; },
                        [&] {
                            fixture->press("back");
                            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                            isThere = !page.isNull();
                            scenario->release("table");
                        });
    // Not through the button, which would go away with the page.
    page->OnStart();
    QVERIFY(close.hasFired());
    QVERIFY(isThere);
    // No copy was begun, not even one that would end with the page.
    QVERIFY(!fixture->progress()->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(page.isNull(), patienceMs);
    QVERIFY(waitUntilToolsAreGone());
    QCOMPARE(scenario->callsOf("hdiutil"), QList<QStringList>());
    QVERIFY(!QApplication::activeModalWidget());
}

void TstCPage5Wait::pageIsClosedWhileCopying_data()
{
    QTest::addColumn<QStringList>("actions");
    QTest::newRow("silent") << QStringList();
    QTest::newRow("deaf") << QStringList("ignore-term");
    QTest::newRow("flood") << QStringList("flood 100000");
}

// Only the program itself can, as the page is blocked. The half-written image stays.
void TstCPage5Wait::pageIsClosedWhileCopying()
{
    QFETCH(QStringList, actions);
    startHeld(actions);
    page->close();
    QTRY_VERIFY_WITH_TIMEOUT(page.isNull(), patienceMs);
    QVERIFY(!fixture->progress());
    QVERIFY(waitUntilToolsAreGone());
    QTRY_VERIFY_WITH_TIMEOUT(processesOf("scripteddrive").isEmpty(), patienceMs);
    QVERIFY(!QApplication::activeModalWidget());
}

void TstCPage5Wait::driveChangeWhileCopyingChangesTheListAlone()
{
    startHeld({DriveScenario::printing(DriveTexts::makingHybrid({"0.25"}))});
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 2500, patienceMs);
    scenario->removeDisk("/dev/disk4");
    emit news->sigdrivechange();
    QTRY_COMPARE_WITH_TIMEOUT(drives()->count(), 0, patienceMs);
    QVERIFY(waitForCalls("drutil", 2));
    QTRY_COMPARE_WITH_TIMEOUT(runnerThreadCount(), 1, patienceMs);
    QVERIFY(fixture->progress()->isVisible());
    QCOMPARE(fixture->progressValue(), 2500);
    QCOMPARE(currdev, QString("/dev/disk4"));
    scenario->release("copied");
    QCOMPARE(closeMessage(), copySuccess());
}

KORVEX_TEST_MAIN(TstCPage5Wait)
#include "tst_cpage5_wait.moc"
