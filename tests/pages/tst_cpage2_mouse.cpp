// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "extractpagefixture.h"
#include "scheckboxheaderview.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "usermouse.h"

#include <QHeaderView>

// What the user does on the Extract page with mouse and keyboard, once an image is loaded.
class TstCPage2Mouse : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void clickTogglesTheTickOnceWhereverItIs_data();
    void clickTogglesTheTickOnceWhereverItIs();
    void pageTogglesOnlyBesideTheTick();
    void clickInAnyColumnTogglesTheRow_data();
    void clickInAnyColumnTogglesTheRow();
    void clickInAScrolledTableTogglesItsRow();
    void partialTickStaysAsItIs();
    void clickOnACellOfAnotherTableTicksNothing();
    void spaceTogglesTheTickOfTheCurrentRow();
    void headerBoxTicksAndClearsAllRows();
    void headerBoxIsClearWhenOtherRowsAreShown();
    void headerBoxOnAnEmptyTableDoesNothing();
    void doubleClickOpensAFolderAndItsNode();
    void doubleClickThatOpensAFolderTicksNothingInIt();
    void doubleClickOnAFileOpensNothing();
    void doubleClickWithoutACurrentCellDoesNothing();
    void clickOnANodeShowsItsEntries();
    void returnOnANodeShowsItsEntries();
    void clickBesideTheNodesKeepsTheEntries();
    void goingElsewhereForgetsTheTicks();
    void refreshTreeExpandsACollapsedParent();
    void backClosesThePageAndKeepsIt();
    void escapeDoesNotCloseThePage();
    void pageCannotBeDragged();

private:
    void clickHeaderBox() const;

    std::unique_ptr<ExtractPageFixture> fixture;
};

void TstCPage2Mouse::initTestCase()
{
    setApplicationLook();
}

void TstCPage2Mouse::init()
{
    TestCase::init();
    fixture = std::make_unique<ExtractPageFixture>();
    QVERIFY(fixture->load());
}

void TstCPage2Mouse::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage2Mouse::clickHeaderBox() const
{
    const QHeaderView* const header = fixture->table()->horizontalHeader();
    const QPoint box(header->sectionSize(0) - 13, header->height() / 2);
    UserMouse::press(header->viewport(), box);
    UserMouse::release(header->viewport(), box);
}

void TstCPage2Mouse::clickTogglesTheTickOnceWhereverItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("folder") << "boot";
    QTest::newRow("file") << "readme.txt";
}

// The table toggles on its check box, the page beside it: between the two lies neither a gap nor an
// overlap. (The table's frame is no part of its rows.)
void TstCPage2Mouse::clickTogglesTheTickOnceWhereverItIs()
{
    QFETCH(QString, name);
    const int row = fixture->rowOf(name);
    QStringList wrong;
    for (int x = fixture->table()->frameWidth(); x <= 60; ++x) {
        const QStringList before = fixture->ticked();
        fixture->clickRow(row, x);
        if (fixture->ticked() == before)
            wrong.append(QString::number(x));
    }
    QVERIFY2(wrong.isEmpty(), qPrintable("no single toggle at x " + wrong.join(' ')));
}

void TstCPage2Mouse::pageTogglesOnlyBesideTheTick()
{
    QTableWidgetItem* const cell = fixture->table()->item(0, 0);
    for (int x = 0; x <= 40; ++x) {
        cell->setCheckState(Qt::Unchecked);
        UserMouse::move(fixture->table(), {x, 100});
        fixture->page->OnListViewClicked(cell);
        QCOMPARE(cell->checkState(), x > 16 ? Qt::Checked : Qt::Unchecked);
    }
}

void TstCPage2Mouse::clickInAnyColumnTogglesTheRow_data()
{
    QTest::addColumn<int>("x");
    QTest::newRow("name") << 100;
    QTest::newRow("size") << 180;
    QTest::newRow("type") << 290;
    QTest::newRow("time") << 400;
}

void TstCPage2Mouse::clickInAnyColumnTogglesTheRow()
{
    QFETCH(int, x);
    fixture->clickRow(fixture->rowOf("docs"), x);
    QCOMPARE(fixture->ticked(), QStringList("docs"));
    fixture->clickRow(fixture->rowOf("docs"), x);
    QCOMPARE(fixture->ticked(), QStringList());
}

void TstCPage2Mouse::clickInAScrolledTableTogglesItsRow()
{
    QStringList entries;
    for (int i = 0; i < 100; ++i)
        entries.append(ExtractPageFixture::fileLine(QString("file %1").arg(i)));
    QVERIFY(fixture->load(entries));
    fixture->table()->scrollToItem(fixture->table()->item(90, 0));
    fixture->clickRow(90, 60);
    QCOMPARE(fixture->ticked(), QStringList("file 90"));
    fixture->clickRow(90, 8);
    QCOMPARE(fixture->ticked(), QStringList());
}

void TstCPage2Mouse::partialTickStaysAsItIs()
{
    fixture->table()->item(0, 0)->setCheckState(Qt::PartiallyChecked);
    fixture->clickRow(0, 80);
    QCOMPARE(fixture->table()->item(0, 0)->checkState(), Qt::PartiallyChecked);
}

void TstCPage2Mouse::clickOnACellOfAnotherTableTicksNothing()
{
    QTableWidget other(1, 1);
    other.setItem(0, 0, new QTableWidgetItem("boot"));
    UserMouse::move(fixture->table(), {80, 100});
    fixture->page->OnListViewClicked(other.item(0, 0));
    fixture->page->OnListViewClicked(nullptr);
    QCOMPARE(fixture->ticked(), QStringList());
}

void TstCPage2Mouse::spaceTogglesTheTickOfTheCurrentRow()
{
    fixture->table()->setCurrentCell(1, 0);
    QTest::keyClick(fixture->table(), Qt::Key_Space);
    QCOMPARE(fixture->ticked(), QStringList("readme.txt"));
}

void TstCPage2Mouse::headerBoxTicksAndClearsAllRows()
{
    fixture->tick({"docs"});
    clickHeaderBox();
    QCOMPARE(fixture->ticked(), fixture->shownNames());
    clickHeaderBox();
    QCOMPARE(fixture->ticked(), QStringList());
}

void TstCPage2Mouse::headerBoxIsClearWhenOtherRowsAreShown()
{
    clickHeaderBox();
    fixture->enter("boot");
    QCOMPARE(fixture->ticked(), QStringList());
    clickHeaderBox();
    QCOMPARE(fixture->ticked(), fixture->shownNames());
}

void TstCPage2Mouse::headerBoxOnAnEmptyTableDoesNothing()
{
    QVERIFY(fixture->load({}));
    clickHeaderBox();
    QCOMPARE(fixture->table()->rowCount(), 0);
}

void TstCPage2Mouse::doubleClickOpensAFolderAndItsNode()
{
    fixture->enter("boot");
    QCOMPARE(fixture->shownNames(), QStringList({"grub", "kernel"}));
    const QTreeWidgetItem* const boot = fixture->topNode()->child(0);
    QVERIFY(boot->isSelected());
    QVERIFY(boot->isExpanded());
    fixture->enter("grub");
    QCOMPARE(fixture->shownNames(), QStringList({"font.pf2", "grub.cfg"}));
    QVERIFY(!boot->isSelected());
    QVERIFY(boot->child(0)->isSelected());
}

void TstCPage2Mouse::doubleClickThatOpensAFolderTicksNothingInIt()
{
    fixture->enter("boot");
    QCOMPARE(fixture->ticked(), QStringList());
}

void TstCPage2Mouse::doubleClickOnAFileOpensNothing()
{
    const QStringList before = fixture->shownNames();
    fixture->doubleClickRow(fixture->rowOf("readme.txt"));
    QCOMPARE(fixture->shownNames(), before);
    QVERIFY(fixture->tree()->selectedItems().isEmpty());
}

void TstCPage2Mouse::doubleClickWithoutACurrentCellDoesNothing()
{
    const QStringList before = fixture->shownNames();
    fixture->table()->setCurrentCell(-1, -1);
    fixture->page->OnListViewDoubleClicked();
    QCOMPARE(fixture->shownNames(), before);
}

void TstCPage2Mouse::clickOnANodeShowsItsEntries()
{
    QTreeWidgetItem* const boot = fixture->topNode()->child(0);
    boot->setExpanded(true);
    fixture->clickNode(boot->child(0));
    QCOMPARE(fixture->shownNames(), QStringList({"font.pf2", "grub.cfg"}));
    QVERIFY(boot->child(0)->isSelected());
    fixture->clickNode(fixture->topNode());
    QCOMPARE(fixture->shownNames(), QStringList({"boot", "readme.txt", "docs", "autorun.inf"}));
}

void TstCPage2Mouse::returnOnANodeShowsItsEntries()
{
    fixture->tree()->setCurrentItem(fixture->topNode()->child(1));
    QTest::keyClick(fixture->tree(), Qt::Key_Return);
    QCOMPARE(fixture->shownNames(), QStringList("manual.pdf"));
}

void TstCPage2Mouse::clickBesideTheNodesKeepsTheEntries()
{
    fixture->clickNode(fixture->topNode()->child(1));
    UserMouse::press(fixture->tree(), {100, 300});
    UserMouse::release(fixture->tree(), {100, 300});
    QCOMPARE(fixture->shownNames(), QStringList("manual.pdf"));
    QVERIFY(fixture->tree()->selectedItems().isEmpty());
}

void TstCPage2Mouse::goingElsewhereForgetsTheTicks()
{
    fixture->tick({"readme.txt"});
    fixture->clickNode(fixture->topNode()->child(1));
    fixture->clickNode(fixture->topNode());
    QCOMPARE(fixture->ticked(), QStringList());
}

void TstCPage2Mouse::refreshTreeExpandsACollapsedParent()
{
    fixture->enter("boot");
    QTreeWidgetItem* const boot = fixture->topNode()->child(0);
    boot->setExpanded(false);
    fixture->enter("grub");
    QVERIFY(boot->isExpanded());
    QCOMPARE(fixture->tree()->selectedItems(), QList<QTreeWidgetItem*>{boot->child(0)});
}

void TstCPage2Mouse::backClosesThePageAndKeepsIt()
{
    UserMouse::click(fixture->button("back"));
    QVERIFY(fixture->page);
    QVERIFY(!fixture->page->isVisible());
    QVERIFY(fixture->window.isVisible());
}

void TstCPage2Mouse::escapeDoesNotCloseThePage()
{
    for (QWidget* const target : QList<QWidget*>{fixture->page, fixture->table(), fixture->tree()})
        QTest::keyClick(target, Qt::Key_Escape);
    QVERIFY(fixture->page->isVisible());
}

void TstCPage2Mouse::pageCannotBeDragged()
{
    UserMouse::press(fixture->page, {300, 440});
    UserMouse::move(fixture->page, {340, 450});
    UserMouse::release(fixture->page, {340, 450});
    QCOMPARE(fixture->page->pos(), QPoint(195, 107));
}

KORVEX_TEST_MAIN(TstCPage2Mouse)
#include "tst_cpage2_mouse.moc"
