// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "clineedit.h"
#include "editcontentfixture.h"
#include "extractpagefixture.h"
#include "scheckboxheaderview.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "usermouse.h"

#include <QHeaderView>

// Which rows the Edit page shows and which of them are ticked: its search field and the ways to
// tick.
class TstCPage4Search : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void entriesThatContainTheTextAreShown_data();
    void entriesThatContainTheTextAreShown();
    void emptyTextShowsAllAgain();
    void withoutAnImageNothingHappens();
    void textHoldsForTheNextFolderToo();
    void searchForgetsTheTicks();
    void rowStandsForTheChildOfItsNumberThoughRowsAreHidden();
    void renameActsOnTheChildOfTheRowsNumberThoughRowsAreHidden();
    void tenThousandEntriesAreSearched();
    void selectAllTicksAndClearsEveryRow();
    void selectAllTicksOnlyWhatIsShown();
    void headerBoxTicksAllRows();
    void clickTogglesTheTickOnce_data();
    void clickTogglesTheTickOnce();
    void pageTogglesOnlyBesideTheTick();
    void partialTickBecomesATick();
    void mouseOpensFolders();

private:
    std::unique_ptr<EditContentFixture> fixture;
};

void TstCPage4Search::initTestCase()
{
    setApplicationLook();
}

void TstCPage4Search::init()
{
    TestCase::init();
    fixture = std::make_unique<EditContentFixture>();
}

void TstCPage4Search::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage4Search::entriesThatContainTheTextAreShown_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("begin") << "bo" << QStringList("boot");
    QTest::newRow("middle") << "o" << QStringList({"boot", "docs", "autorun.inf"});
    QTest::newRow("other case") << "README" << QStringList("readme.txt");
    QTest::newRow("extension") << ".txt" << QStringList("readme.txt");
    QTest::newRow("no pattern") << "*" << QStringList();
    QTest::newRow("no expression") << ".*" << QStringList();
    QTest::newRow("name of an entry below") << "kernel" << QStringList();
    QTest::newRow("blank") << " " << QStringList();
}

void TstCPage4Search::entriesThatContainTheTextAreShown()
{
    QFETCH(QString, text);
    QVERIFY(fixture->open());
    fixture->search()->setFocus();
    QTest::keyClicks(fixture->search(), text);
    QTEST(fixture->shownNames(), "names");
    QCOMPARE(fixture->root()->children.size(), 4);
}

void TstCPage4Search::emptyTextShowsAllAgain()
{
    QVERIFY(fixture->open());
    fixture->search()->setText("readme");
    QCOMPARE(fixture->table()->rowCount(), 1);
    fixture->search()->clear();
    QCOMPARE(fixture->shownNames(), QStringList({"boot", "docs", "readme.txt", "autorun.inf"}));
}

void TstCPage4Search::withoutAnImageNothingHappens()
{
    fixture->search()->setText("a");
    fixture->page->OnSearch();
    QCOMPARE(fixture->table()->rowCount(), 0);
    QVERIFY(fixture->open());
    QCOMPARE(fixture->shownNames(), QStringList({"readme.txt", "autorun.inf"}));
}

void TstCPage4Search::textHoldsForTheNextFolderToo()
{
    QVERIFY(fixture->open());
    fixture->search()->setText("b");
    fixture->openFolder("boot");
    QCOMPARE(fixture->shownNames(), QStringList("grub"));
}

void TstCPage4Search::searchForgetsTheTicks()
{
    QVERIFY(fixture->open());
    fixture->page->slotSelectAll(true);
    fixture->search()->setText("o");
    QCOMPARE(fixture->ticked(), QStringList());
}

void TstCPage4Search::rowStandsForTheChildOfItsNumberThoughRowsAreHidden()
{
    QVERIFY(fixture->open());
    fixture->search()->setText("readme");
    fixture->remove({"readme.txt"}); // row 0
    fixture->search()->clear();
    QCOMPARE(fixture->shownNames(), QStringList({"docs", "readme.txt", "autorun.inf"}));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Search::renameActsOnTheChildOfTheRowsNumberThoughRowsAreHidden()
{
    QVERIFY(fixture->open());
    fixture->search()->setText("readme");
    fixture->rename("readme.txt", "start");
    QCOMPARE(fixture->shownNames(), QStringList("start"));
    fixture->search()->clear();
    QCOMPARE(fixture->shownNames(), QStringList({"start", "docs", "readme.txt", "autorun.inf"}));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Search::tenThousandEntriesAreSearched()
{
    QStringList entries;
    for (int i = 0; i < 10000; ++i)
        entries.append(QString("folder/entry %1.dat").arg(i));
    fixture->setImage(entries);
    QVERIFY(fixture->load());
    fixture->openFolder("folder");
    QCOMPARE(fixture->table()->rowCount(), 10000);
    fixture->search()->setText("ENTRY 99");
    QCOMPARE(fixture->table()->rowCount(), 111); // 99, 990 to 999, 9900 to 9999
    fixture->search()->setText("entry 9999.dat");
    QCOMPARE(fixture->shownNames(), QStringList("entry 9999.dat"));
    fixture->search()->clear();
    QCOMPARE(fixture->table()->rowCount(), 10000);
}

void TstCPage4Search::selectAllTicksAndClearsEveryRow()
{
    QVERIFY(fixture->open());
    fixture->tick({"docs"});
    fixture->page->slotSelectAll(true);
    QCOMPARE(fixture->ticked(), fixture->shownNames());
    fixture->page->slotSelectAll(false);
    QCOMPARE(fixture->ticked(), QStringList());
}

void TstCPage4Search::selectAllTicksOnlyWhatIsShown()
{
    QVERIFY(fixture->open());
    fixture->search()->setText("o");
    fixture->page->slotSelectAll(true);
    QCOMPARE(fixture->ticked(), QStringList({"boot", "docs", "autorun.inf"}));
    fixture->search()->clear();
    QCOMPARE(fixture->ticked(), QStringList());
}

void TstCPage4Search::headerBoxTicksAllRows()
{
    QVERIFY(fixture->open());
    const QHeaderView* const header = fixture->table()->horizontalHeader();
    const QPoint box(header->sectionSize(0) - 13, header->height() / 2);
    UserMouse::press(header->viewport(), box);
    UserMouse::release(header->viewport(), box);
    QCOMPARE(fixture->ticked(), fixture->shownNames());
    fixture->search()->setText("o"); // other rows: none is ticked
    QVERIFY(!static_cast<const SCheckBoxHeaderView*>(header)->isChecked());
}

void TstCPage4Search::clickTogglesTheTickOnce_data()
{
    QTest::addColumn<int>("x");
    QTest::newRow("on the box") << 8;
    QTest::newRow("at the box's last pixel") << 16;
    QTest::newRow("right beside it") << 17;
    QTest::newRow("on the name") << 60;
    QTest::newRow("on the size") << 200;
    QTest::newRow("on the time") << 560;
}

void TstCPage4Search::clickTogglesTheTickOnce()
{
    QFETCH(int, x);
    QVERIFY(fixture->open());
    fixture->clickRow(2, x);
    QCOMPARE(fixture->ticked(), QStringList("readme.txt"));
    fixture->clickRow(2, x);
    QCOMPARE(fixture->ticked(), QStringList());
}

void TstCPage4Search::pageTogglesOnlyBesideTheTick()
{
    QVERIFY(fixture->open());
    QTableWidgetItem* const cell = fixture->table()->item(0, 0);
    for (int x = 0; x <= 40; ++x) {
        cell->setCheckState(Qt::Unchecked);
        UserMouse::move(fixture->table(), {x, 100});
        fixture->page->OnListViewClicked(cell);
        QCOMPARE(cell->checkState(), x >= 17 ? Qt::Checked : Qt::Unchecked);
    }
}

void TstCPage4Search::partialTickBecomesATick()
{
    QVERIFY(fixture->open());
    fixture->table()->item(0, 0)->setCheckState(Qt::PartiallyChecked);
    fixture->clickRow(0, 80);
    QCOMPARE(fixture->ticked(), QStringList("boot"));
}

void TstCPage4Search::mouseOpensFolders()
{
    QVERIFY(fixture->open());
    QTableWidget* const table = fixture->table();
    const QPoint row = table->visualItemRect(table->item(fixture->rowOf("boot"), 0)).center();
    const QPoint point(80, table->viewport()->mapTo(table, row).y());
    UserMouse::move(table, point);
    QTest::mouseDClick(fixture->window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       table->mapTo(&fixture->window, point));
    QCOMPARE(fixture->shownNames(), QStringList({"grub", "kernel"}));
    QTreeWidget* const tree = fixture->tree();
    const QPoint top = tree->visualItemRect(tree->topLevelItem(0)).center();
    UserMouse::press(tree, tree->viewport()->mapTo(tree, top));
    UserMouse::release(tree, tree->viewport()->mapTo(tree, top));
    QCOMPARE(fixture->shownNames(), QStringList({"boot", "docs", "readme.txt", "autorun.inf"}));
}

KORVEX_TEST_MAIN(TstCPage4Search)
#include "tst_cpage4_search.moc"
