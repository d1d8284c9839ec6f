// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "cpage2.h"
#include "cpage3.h"
#include "mainwindowtest.h"
#include "startup.h"
#include "testmain.h"
#include "usermouse.h"

#include <QApplication>
#include <QPointer>

// What the home screen's function buttons open, and where that lies.
class TstMainWindowPages : public MainWindowTest
{
    Q_OBJECT

private slots:
    void extractOpensItsPage();
    void createOpensItsPage();
    void closedCreatePageIsFreed();
    void extractTwiceOpensTwoPagesTheLaterOnTop();
    void pageCoversTheTilesBelowIt();
    void pageStaysWhereItIsWhenDragged();
    void spaceOnTheExtractButtonOpensOnePage();
    void buttonsOfMissingFunctionsDoNothing_data();
    void buttonsOfMissingFunctionsDoNothing();
};

void TstMainWindowPages::extractOpensItsPage()
{
    UserMouse::click(button("extract"));
    const auto pages = window->findChildren<CPage2*>();
    QCOMPARE(pages.size(), 1);
    QVERIFY(pages.first()->isVisible());
    QCOMPARE(pages.first()->parentWidget(), window.get());
    QCOMPARE(pages.first()->pos(), QPoint(195, 107));
    QVERIFY(!pages.first()->isWindow());
}

void TstMainWindowPages::createOpensItsPage()
{
    UserMouse::click(button("create"));
    const auto pages = window->findChildren<CPage3*>();
    QCOMPARE(pages.size(), 1);
    QVERIFY(pages.first()->isVisible());
    QCOMPARE(pages.first()->parentWidget(), window.get());
    QCOMPARE(pages.first()->pos(), QPoint(195, 107));
    QVERIFY(!pages.first()->isWindow());
}

void TstMainWindowPages::closedCreatePageIsFreed()
{
    window->onCreate();
    const QPointer<CPage3> page = window->findChild<CPage3*>();
    UserMouse::click(page->findChild<QWidget*>("back"));
    QVERIFY(page.isNull() || !page->isVisible());
    QTRY_VERIFY(page.isNull());
}

void TstMainWindowPages::extractTwiceOpensTwoPagesTheLaterOnTop()
{
    window->onExtract();
    window->onExtract();
    const auto pages = window->findChildren<CPage2*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(pages.size(), 2);
    const QWidget* const below = window->childAt(400, 200);
    QVERIFY(pages.at(1) == below || pages.at(1)->isAncestorOf(below));
    pages.at(1)->close();
    const QWidget* const uncovered = window->childAt(400, 200);
    QVERIFY(pages.at(0) == uncovered || pages.at(0)->isAncestorOf(uncovered));
}

void TstMainWindowPages::pageCoversTheTilesBelowIt()
{
    window->onExtract();
    const QRect page = window->findChild<CPage2*>()->geometry();
    for (const char* const name : {"burn", "extract", "create", "edit", "copy"})
        QVERIFY2(page.contains(button(name)->geometry()), name);
    for (const char* const name : {"menu", "min", "close", "home", "help"})
        QVERIFY2(!page.intersects(button(name)->geometry()), name);
}

void TstMainWindowPages::pageStaysWhereItIsWhenDragged()
{
    window->onExtract();
    auto* const page = window->findChild<CPage2*>();
    UserMouse::press(page, {300, 440});
    UserMouse::move(page, {340, 450});
    UserMouse::release(page, {340, 450});
    QCOMPARE(page->pos(), QPoint(195, 107));
}

void TstMainWindowPages::spaceOnTheExtractButtonOpensOnePage()
{
    button("extract")->setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(window->findChildren<CPage2*>().size(), 1);
    // The page has the keyboard now, not the button that it covers.
    QCOMPARE(QApplication::focusWidget(), window->findChild<CPage2*>());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(window->findChildren<CPage2*>().size(), 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("loadiso"));
}

void TstMainWindowPages::buttonsOfMissingFunctionsDoNothing_data()
{
    QTest::addColumn<QString>("name");
    for (const char* const name : {"burn", "copy"})
        QTest::newRow(name) << name;
}

void TstMainWindowPages::buttonsOfMissingFunctionsDoNothing()
{
    QFETCH(QString, name);
    const int children = window->children().size();
    UserMouse::click(button(name));
    QCOMPARE(window->children().size(), children);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(window->isActiveWindow());
}

KORVEX_TEST_MAIN(TstMainWindowPages)
#include "tst_mainwindow_pages.moc"
