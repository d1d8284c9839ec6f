// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cmytreewidget.h"
#include "testcase.h"
#include "testmain.h"

#include <memory>

class TstCMyTreeWidget : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void clickOnAnItemSelectsIt();
    void clickBelowTheLastRowLeavesNothingSelected();
    void clickBelowTheLastRowClearsASelectionOfSeveral();
    void clickIntoAnEmptyTreeIsHarmless();

private:
    QPoint below() const { return {20, tree->viewport()->height() - 5}; }
    void click(QPoint position, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    std::unique_ptr<CMyTreeWidget> tree;
};

void TstCMyTreeWidget::init()
{
    TestCase::init();
    tree = std::make_unique<CMyTreeWidget>();
    tree->resize(200, 300);
    for (const char* name : {"one", "two", "three"})
        tree->addTopLevelItem(new QTreeWidgetItem({name}));
    tree->show();
    QVERIFY(QTest::qWaitForWindowExposed(tree.get(), 30'000));
}

void TstCMyTreeWidget::click(QPoint position, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, modifiers, position);
}

void TstCMyTreeWidget::clickOnAnItemSelectsIt()
{
    click(tree->visualItemRect(tree->topLevelItem(1)).center());
    QCOMPARE(tree->selectedItems(), {tree->topLevelItem(1)});
}

void TstCMyTreeWidget::clickBelowTheLastRowLeavesNothingSelected()
{
    tree->setCurrentItem(tree->topLevelItem(1));
    QCOMPARE(tree->selectedItems().size(), 1);
    click(below());
    QVERIFY(tree->selectedItems().isEmpty());
}

void TstCMyTreeWidget::clickBelowTheLastRowClearsASelectionOfSeveral()
{
    tree->setSelectionMode(QAbstractItemView::MultiSelection);
    tree->selectAll();
    QCOMPARE(tree->selectedItems().size(), 3);
    click(below(), Qt::ControlModifier);
    QVERIFY(tree->selectedItems().isEmpty());
}

void TstCMyTreeWidget::clickIntoAnEmptyTreeIsHarmless()
{
    tree->clear();
    click(QPoint(20, 20));
    QVERIFY(tree->selectedItems().isEmpty());
}

KORVEX_TEST_MAIN(TstCMyTreeWidget)
#include "tst_cmytreewidget.moc"
