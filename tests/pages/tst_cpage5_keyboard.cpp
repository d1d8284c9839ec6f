// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "disccopytest.h"
#include "testmain.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

// How the keyboard goes through the Copy Disk page, and how the page is left.
class TstCPage5Keyboard : public DiscCopyTest
{
    Q_OBJECT

private slots:
    void init();
    void tabGoesRoundInThePage();
    void spaceOnBackClosesThePage();
    void enterInTheFieldStartsNothing();
    void escapeDoesNotCloseThePage();
    void closedPageIsFreed();
    void pageWithoutParentWorks();
};

void TstCPage5Keyboard::init()
{
    DiscCopyTest::init();
    openPage();
}

void TstCPage5Keyboard::tabGoesRoundInThePage()
{
    QVERIFY(QTest::qWaitForWindowActive(&fixture->window));
    QList<QWidget*> expected;
    for (const char* const name :
         {"dvdlist", "eject", "formatlist", "lineEdit", "browser", "back", "start"})
        expected.append(page->findChild<QWidget*>(name, Qt::FindDirectChildrenOnly));
    expected.first()->setFocus(Qt::TabFocusReason);
    for (int i = 1; i <= expected.size(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), expected.at(i % expected.size()));
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), expected.last());
}

void TstCPage5Keyboard::spaceOnBackClosesThePage()
{
    QVERIFY(QTest::qWaitForWindowActive(&fixture->window));
    fixture->button("back")->setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTRY_VERIFY_WITH_TIMEOUT(page.isNull(), patienceMs);
}

void TstCPage5Keyboard::enterInTheFieldStartsNothing()
{
    QVERIFY(QTest::qWaitForWindowActive(&fixture->window));
    imageField()->setFocus();
    QTest::keyClicks(imageField(), "/home/disc.iso");
    QTest::keyClick(imageField(), Qt::Key_Return);
    QVERIFY(page->isVisible());
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(imageField()->text(), QString("/home/disc.iso"));
}

void TstCPage5Keyboard::escapeDoesNotCloseThePage()
{
    QTest::keyClick(page.data(), Qt::Key_Escape);
    QTest::keyClick(imageField(), Qt::Key_Escape);
    QVERIFY(page && page->isVisible());
}

void TstCPage5Keyboard::closedPageIsFreed()
{
    fixture->press("back");
    QVERIFY(page.isNull() || !page->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(page.isNull(), patienceMs);
}

void TstCPage5Keyboard::pageWithoutParentWorks()
{
    CPage5 alone(nullptr);
    QVERIFY(!alone.isModal());
    QVERIFY(waitForCalls("drutil", 2));
    QVERIFY(waitUntilToolsAreGone());
}

KORVEX_TEST_MAIN(TstCPage5Keyboard)
#include "tst_cpage5_keyboard.moc"
