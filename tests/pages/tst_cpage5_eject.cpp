// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "disccopytest.h"
#include "testmain.h"

#include <QApplication>
#include <QComboBox>
#include <QTest>

// Ejecting a disc from the Copy Disk page.
class TstCPage5Eject : public DiscCopyTest
{
    Q_OBJECT

private slots:
    void ejectTakesTheChosenDrive();
    void ejectIsNotAwaited();
    void ejectOutlivesThePage();
    void ejectWithoutDriveRunsNothing();
    void ejectFailureIsNotTold_data();
    void ejectFailureIsNotTold();
};

void TstCPage5Eject::ejectTakesTheChosenDrive()
{
    addTwoDrives();
    openPage();
    QTRY_COMPARE_WITH_TIMEOUT(drives()->count(), 2, patienceMs);
    drives()->setCurrentIndex(1);
    fixture->press("eject");
    QVERIFY(waitForCalls("hdiutil", 1));
    QVERIFY(waitUntilToolsAreGone());
    QCOMPARE(scenario->callsOf("hdiutil"), QList<QStringList>({{"eject", "/dev/disk7"}}));
    QVERIFY(!QApplication::activeModalWidget());
}

void TstCPage5Eject::ejectIsNotAwaited()
{
    openPageWithDisc();
    scenario->on("hdiutil", {"eject", "/dev/disk4"}, {scenario->holding("tray")});
    page->OnEject();
    QVERIFY(waitForCalls("hdiutil", 1));
    QVERIFY(page->isEnabled());
    QVERIFY(!fixture->progress()->isVisible());
    // Again, as an impatient user does.
    page->OnEject();
    QVERIFY(waitForCalls("hdiutil", 2));
    scenario->release("tray");
    QVERIFY(waitUntilToolsAreGone());
}

void TstCPage5Eject::ejectOutlivesThePage()
{
    openPageWithDisc();
    scenario->on("hdiutil", {"eject", "/dev/disk4"}, {scenario->holding("tray")});
    page->OnEject();
    QVERIFY(waitForCalls("hdiutil", 1));
    fixture->press("back");
    QTRY_VERIFY_WITH_TIMEOUT(page.isNull(), patienceMs);
    QCOMPARE(scenario->calls().last().ended, -1);
    scenario->release("tray");
    QVERIFY(waitUntilToolsAreGone());
    QVERIFY(scenario->calls().last().ended >= 0);
}

void TstCPage5Eject::ejectWithoutDriveRunsNothing()
{
    openPage();
    QVERIFY(waitForCalls("drutil", 1));
    fixture->press("eject");
    QVERIFY(waitUntilToolsAreGone());
    QCOMPARE(scenario->commands(), QList<QStringList>({{"drutil", "status"}}));
    QVERIFY(!QApplication::activeModalWidget());
}

void TstCPage5Eject::ejectFailureIsNotTold_data()
{
    QTest::addColumn<bool>("isMissing");
    QTest::newRow("refused") << false;
    QTest::newRow("missing") << true;
}

void TstCPage5Eject::ejectFailureIsNotTold()
{
    QFETCH(bool, isMissing);
    openPageWithDisc();
    if (isMissing)
        scenario->missing("hdiutil");
    else
        scenario->on("hdiutil", {"eject", "..."},
                     {"err hdiutil: couldn't eject \"disk4\" - Resource busy\\n", "exit 16"});
    page->OnEject();
    QVERIFY(waitUntilToolsAreGone());
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(drives()->count(), 1);
}

KORVEX_TEST_MAIN(TstCPage5Eject)
#include "tst_cpage5_eject.moc"
