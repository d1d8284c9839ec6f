// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "buttonpictures.h"
#include "cburndialog.h"
#include "cimagebutton.h"
#include "cpage2.h"
#include "cpage3.h"
#include "cpage5.h"
#include "drivescenario.h"
#include "mainwindowtest.h"
#include "startup.h"
#include "testmain.h"
#include "usermouse.h"

#include <QApplication>
#include <QHeaderView>
#include <QPointer>
#include <QStyleOption>
#include <QTableWidget>

// What the home screen's function buttons open, and where that lies.
class TstMainWindowPages : public MainWindowTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void buttonsShowThePictureOfTheirState_data();
    void buttonsShowThePictureOfTheirState();
    void entriesStandInATableWithItsColours_data();
    void entriesStandInATableWithItsColours();
    void extractOpensItsPage();
    void createOpensItsPage();
    void closedCreatePageIsFreed();
    void extractTwiceOpensTwoPagesTheLaterOnTop();
    void pageCoversTheTilesBelowIt();
    void pageStaysWhereItIsWhenDragged();
    void spaceOnTheExtractButtonOpensOnePage();
    void burnOpensItsPage();
    void copyOpensItsPage();
    void closedPageWithDrivesIsFreed_data();
    void closedPageWithDrivesIsFreed();
    void twoPressesOpenTwoPages_data();
    void twoPressesOpenTwoPages();
    void pagesWithDrivesHearOfADriveChange();

private:
    // Presses the button; the only new page of this class is where pages belong.
    template<class Page>
    void openPage(const QString& name);

    // No drives.
    std::unique_ptr<DriveScenario> scenario;
};

template<class Page>
void TstMainWindowPages::openPage(const QString& name)
{
    UserMouse::click(button(name));
    const auto pages = window->findChildren<Page*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(pages.size(), 1);
    QVERIFY(pages.first()->isVisible());
    QCOMPARE(pages.first()->pos(), QPoint(195, 107));
    QVERIFY(!pages.first()->isWindow());
}

void TstMainWindowPages::init()
{
    scenario = std::make_unique<DriveScenario>();
    MainWindowTest::init();
}

void TstMainWindowPages::cleanup()
{
    MainWindowTest::cleanup();
    QCOMPARE(scenario->unmatchedCalls(), QList<QStringList>());
    scenario.reset();
}

void TstMainWindowPages::buttonsShowThePictureOfTheirState_data()
{
    QTest::addColumn<QByteArray>("slot");
    // Each button's name with that of its pictures and their numbers: normal, under the mouse,
    // pressed and disabled.
    QTest::addColumn<QStringList>("buttons");
    QTest::newRow("home screen") << QByteArray()
                                 << QStringList{"menu menu 1231",       "min osxmin 1234",
                                                "close osxclose 1234",  "burn mburn 1231",
                                                "extract Extract 1231", "create Create 1231",
                                                "edit Edit 1231",       "copy Copy-Disc 1231",
                                                "home Home 1231",       "help Help 1231"};
    QTest::newRow("extract") << QByteArray("onExtract")
                             << QStringList{"loadiso loadiso 1231", "back Back 1231",
                                            "extract btnextract 1231"};
    QTest::newRow("create") << QByteArray("onCreate")
                            << QStringList{"addfile addfile 1231", "adddir adddir 1231",
                                           "remove Remove 1231", "back Back 1231",
                                           "create Create-IOS 1231"};
    QTest::newRow("edit") << QByteArray("onEdit")
                          << QStringList{"loadiso loadiso 1231", "add Add 1231",
                                         "export_2 Export 1231", "rename Rename 1231",
                                         "delete_2 Delete 1231", "new_2 New 1231",
                                         "back backwhite 1231",  "save save 1231"};
    QTest::newRow("burn") << QByteArray("onBurn")
                          << QStringList{"browser Broswe 1231", "back backwhite 1231",
                                         "burn burn 1231"};
    QTest::newRow("copy disk") << QByteArray("onCopy")
                               << QStringList{"eject refresh 1231", "browser filedialog 1231",
                                              "back backwhite 1231", "start start 1231"};
}

void TstMainWindowPages::buttonsShowThePictureOfTheirState()
{
    QFETCH(QByteArray, slot);
    QFETCH(QStringList, buttons);
    const QWidget* owner = window.get();
    if (!slot.isEmpty()) {
        QVERIFY(QMetaObject::invokeMethod(window.get(), slot));
        owner = window->findChild<ImageDialog*>(QString(), Qt::FindDirectChildrenOnly);
    }
    QVERIFY(owner);
    QStringList seen;
    for (auto* const each :
         owner->findChildren<CImageButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        const QStringList named =
            buttons.filter(QRegularExpression('^' + each->objectName() + ' '));
        const QString picture = named.value(0).section(' ', 1, 1);
        seen << each->objectName() + ' ' + picture + ' ' + shownPictures(each, picture);
    }
    QCOMPARE(seen, buttons);
}

void TstMainWindowPages::entriesStandInATableWithItsColours_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::newRow("extract") << QByteArray("onExtract");
    QTest::newRow("edit") << QByteArray("onEdit");
}

void TstMainWindowPages::entriesStandInATableWithItsColours()
{
    QFETCH(QByteArray, slot);
    QVERIFY(QMetaObject::invokeMethod(window.get(), slot));
    const auto* const table = window->findChild<QTableWidget*>("list");
    QVERIFY(table);
    QStyleOption option;
    option.initFrom(table);
    const int grid = table->style()->styleHint(QStyle::SH_Table_GridLineColor, &option, table);
    QCOMPARE(QColor::fromRgb(static_cast<QRgb>(grid)), QColor("#C2EFFD"));
    QCOMPARE(table->palette().color(QPalette::Highlight), QColor("#C2EFFD"));

    // The headers' size is that of a header which is told nothing but this.
    QTableWidget other(0, table->columnCount());
    other.setFont(table->font());
    other.setStyleSheet("QHeaderView::section { font: 13pt; }");
    for (int column = 0; column < table->columnCount(); ++column)
        other.setHorizontalHeaderItem(column, table->horizontalHeaderItem(column)->clone());
    other.ensurePolished();
    other.horizontalHeader()->ensurePolished();
    for (int column = 0; column < table->columnCount(); ++column)
        QCOMPARE(table->horizontalHeader()->sectionSizeHint(column),
                 other.horizontalHeader()->sectionSizeHint(column));
    QCOMPARE(table->horizontalHeader()->sizeHint().height(),
             other.horizontalHeader()->sizeHint().height());
}

void TstMainWindowPages::extractOpensItsPage()
{
    openPage<CPage2>("extract");
}

void TstMainWindowPages::createOpensItsPage()
{
    openPage<CPage3>("create");
}

void TstMainWindowPages::closedCreatePageIsFreed()
{
    window->onCreate();
    const QPointer<CPage3> page = window->findChild<CPage3*>();
    UserMouse::click(page->findChild<QWidget*>("back"));
    QVERIFY(page.isNull() || !page->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(page.isNull(), 30'000);
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

void TstMainWindowPages::burnOpensItsPage()
{
    openPage<CBurnDialog>("burn");
    QVERIFY(!scenario->callsOf("diskutil").isEmpty());
}

void TstMainWindowPages::copyOpensItsPage()
{
    openPage<CPage5>("copy");
    QTRY_VERIFY_WITH_TIMEOUT(!scenario->callsOf("drutil").isEmpty(), 30'000);
}

void TstMainWindowPages::closedPageWithDrivesIsFreed_data()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("burn") << "CBurnDialog";
    QTest::newRow("copy") << "CPage5";
}

void TstMainWindowPages::closedPageWithDrivesIsFreed()
{
    QFETCH(QString, page);
    UserMouse::click(button(QTest::currentDataTag()));
    const QPointer<QWidget> opened = window->findChild<QWidget*>(page, Qt::FindDirectChildrenOnly);
    QVERIFY(opened);
    UserMouse::click(opened->findChild<QWidget*>("back"));
    QVERIFY(opened.isNull() || !opened->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(opened.isNull(), 30'000);
    QCOMPARE(QApplication::activeWindow(), window.get());
}

void TstMainWindowPages::twoPressesOpenTwoPages_data()
{
    closedPageWithDrivesIsFreed_data();
}

// The second press is a signal's, as the first page covers the button.
void TstMainWindowPages::twoPressesOpenTwoPages()
{
    QFETCH(QString, page);
    CImageButton* const pressed = button(QTest::currentDataTag());
    UserMouse::click(pressed);
    pressed->click();
    const auto pages = window->findChildren<QWidget*>(page, Qt::FindDirectChildrenOnly);
    QCOMPARE(pages.size(), 2);
    for (const QWidget* const opened : pages) {
        QVERIFY(opened->isVisible());
        QCOMPARE(opened->pos(), QPoint(195, 107));
    }
}

void TstMainWindowPages::pagesWithDrivesHearOfADriveChange()
{
    window->onBurn();
    window->onCopy();
    QTRY_COMPARE_WITH_TIMEOUT(scenario->callsOf("drutil").size(), 2, 30'000);
    emit window->sigdrivechange();
    QTRY_COMPARE_WITH_TIMEOUT(scenario->callsOf("drutil").size(), 4, 30'000);
}

KORVEX_TEST_MAIN(TstMainWindowPages)
#include "tst_mainwindow_pages.moc"
