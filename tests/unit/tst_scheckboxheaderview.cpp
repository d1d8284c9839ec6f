// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "scheckboxheaderview.h"
#include "testcase.h"
#include "testmain.h"

#include <QSignalSpy>
#include <QTableWidget>

#include <memory>

class TstSCheckBoxHeaderView : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void clickTogglesBeyondTheDeadZone_data();
    void clickTogglesBeyondTheDeadZone();
    void secondClickTogglesBack();
    void noColumnTogglesNothing();
    void rightButtonTogglesNothing();
    void headerStillHandlesThePress();
    void setCheckedTellsNobody();
    void textsBeginAtTheLeft();
    void boxIsDrawnInItsSectionOnly();
    void boxLiesWhereAClickReachesIt_data();
    void boxLiesWhereAClickReachesIt();

private:
    SCheckBoxHeaderView* install(int column);
    void click(int x, Qt::MouseButton button = Qt::LeftButton);
    QRect changedByChecking();

    std::unique_ptr<QTableWidget> table;
    SCheckBoxHeaderView* header = nullptr;
};

void TstSCheckBoxHeaderView::init()
{
    TestCase::init();
    table = std::make_unique<QTableWidget>(2, 3);
    table->setHorizontalHeaderLabels({"File Name", " Size", "Type"});
    header = install(0);
    table->resize(400, 200);
    table->show();
    QVERIFY(QTest::qWaitForWindowExposed(table.get(), 30'000));
}

void TstSCheckBoxHeaderView::cleanup()
{
    table.reset();
    TestCase::cleanup();
}

SCheckBoxHeaderView* TstSCheckBoxHeaderView::install(int column)
{
    auto* view = new SCheckBoxHeaderView(column, Qt::Horizontal, table.get());
    table->setHorizontalHeader(view);
    view->setSectionsClickable(true);
    view->setFixedHeight(30);
    for (int i = 0; i < 3; ++i)
        view->resizeSection(i, 117);
    return view;
}

void TstSCheckBoxHeaderView::click(int x, Qt::MouseButton button)
{
    QTest::mouseClick(header->viewport(), button, Qt::NoModifier, QPoint(x, 15));
}

void TstSCheckBoxHeaderView::clickTogglesBeyondTheDeadZone_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<bool>("toggles");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("26 or less does not") << 26 << false;
    QTest::newRow("27") << 27 << true;
    QTest::newRow("last of the section") << 116 << true;
    QTest::newRow("next section") << 117 << false;
    QTest::newRow("behind the last section") << 380 << false;
}

void TstSCheckBoxHeaderView::clickTogglesBeyondTheDeadZone()
{
    QFETCH(int, x);
    QFETCH(bool, toggles);
    QSignalSpy spy(header, SIGNAL(checkStausChange(bool)));
    header->setSectionResizeMode(QHeaderView::Fixed); // no resizing at the edges
    click(x);
    QCOMPARE(header->isChecked(), toggles);
    QCOMPARE(spy.count(), toggles ? 1 : 0);
}

void TstSCheckBoxHeaderView::secondClickTogglesBack()
{
    QSignalSpy spy(header, SIGNAL(checkStausChange(bool)));
    click(60);
    click(60);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0).first().toBool(), true);
    QCOMPARE(spy.at(1).first().toBool(), false);
    QVERIFY(!header->isChecked());
}

void TstSCheckBoxHeaderView::noColumnTogglesNothing()
{
    header = install(-1);
    QSignalSpy spy(header, SIGNAL(checkStausChange(bool)));
    click(60);
    click(380); // where there is no section either
    QCOMPARE(spy.count(), 0);
}

void TstSCheckBoxHeaderView::rightButtonTogglesNothing()
{
    click(60, Qt::RightButton);
    QVERIFY(!header->isChecked());
}

void TstSCheckBoxHeaderView::headerStillHandlesThePress()
{
    QSignalSpy pressed(header, SIGNAL(sectionPressed(int)));
    click(60);
    click(10);
    click(150);
    QCOMPARE(pressed.count(), 3);
}

void TstSCheckBoxHeaderView::setCheckedTellsNobody()
{
    QSignalSpy spy(header, SIGNAL(checkStausChange(bool)));
    header->setChecked(true);
    QVERIFY(header->isChecked());
    QCOMPARE(spy.count(), 0);
}

// The smallest rectangle in which the header's picture differs when the box is checked.
QRect TstSCheckBoxHeaderView::changedByChecking()
{
    const QImage before = header->viewport()->grab().toImage();
    header->setChecked(true);
    const QImage after = header->viewport()->grab().toImage();
    QRect changed;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            if (before.pixel(x, y) != after.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
        }
    }
    return changed;
}

// Where the rows' texts begin, too.
void TstSCheckBoxHeaderView::textsBeginAtTheLeft()
{
    QCOMPARE(header->defaultAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
}

void TstSCheckBoxHeaderView::boxIsDrawnInItsSectionOnly()
{
    header = install(1);
    const QRect changed = changedByChecking();
    QVERIFY(!changed.isEmpty());
    QVERIFY(QRect(117, 0, 117, 30).contains(changed));
    QVERIFY(qAbs(changed.center().y() - 15) <= 2);
    QVERIFY(changed.width() <= 20 && changed.height() <= 20);
}

void TstSCheckBoxHeaderView::boxLiesWhereAClickReachesIt_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("wide") << 300;
    QTest::newRow("usual") << 117;
    QTest::newRow("narrow") << 60;
    QTest::newRow("narrower than it should be") << 40;
}

void TstSCheckBoxHeaderView::boxLiesWhereAClickReachesIt()
{
    QFETCH(int, width);
    header->resizeSection(0, width);
    const QRect changed = changedByChecking();
    QVERIFY(!changed.isEmpty());
    QVERIFY(changed.left() > 26);
    header->setChecked(false);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, changed.topLeft());
    QVERIFY(header->isChecked());
}

KORVEX_TEST_MAIN(TstSCheckBoxHeaderView)
#include "tst_scheckboxheaderview.moc"
