// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "nofocusdelegate.h"
#include "testcase.h"
#include "testmain.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyleFactory>
#include <QTableWidget>
#include <QToolTip>

class TstNoFocusDelegate : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void currentCellHasNoFrame();
    void selectionIsStillPainted();
    void cellThatIsCutShowsItsWholeTextAsAToolTip();

private:
    QImage painted(const QStyledItemDelegate& delegate, QStyle::State state);

    QStandardItemModel model{1, 1};
};

void TstNoFocusDelegate::initTestCase()
{
    QApplication::setStyle(QStyleFactory::create("Windows")); // one that draws a frame
    model.setData(model.index(0, 0), "name");
}

QImage TstNoFocusDelegate::painted(const QStyledItemDelegate& delegate, QStyle::State state)
{
    QImage image(100, 20, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = image.rect();
    option.state = state | QStyle::State_Enabled | QStyle::State_KeyboardFocusChange;
    delegate.paint(&painter, option, model.index(0, 0));
    painter.end();
    return image;
}

void TstNoFocusDelegate::currentCellHasNoFrame()
{
    const NoFocusDelegate delegate;
    const QStyledItemDelegate usual;
    QVERIFY(painted(usual, QStyle::State_HasFocus) != painted(usual, QStyle::State_None));
    QCOMPARE(painted(delegate, QStyle::State_HasFocus), painted(usual, QStyle::State_None));
}

void TstNoFocusDelegate::selectionIsStillPainted()
{
    const NoFocusDelegate delegate;
    QVERIFY(painted(delegate, QStyle::State_Selected) != painted(delegate, QStyle::State_None));
}

void TstNoFocusDelegate::cellThatIsCutShowsItsWholeTextAsAToolTip()
{
    QTableWidget table(1, 2);
    table.setItemDelegate(new NoFocusDelegate(&table));
    table.setItem(0, 0, new QTableWidgetItem("a <b>long</b> name that does not fit its column"));
    table.setItem(0, 1, new QTableWidgetItem("b"));
    table.resize(400, 100);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table, 30'000));
    const auto toolTipOver = [&table](int column) {
        QToolTip::hideText();
        const QPoint place =
            table.visualRect(table.model()->index(0, column)).topLeft() + QPoint(5, 5);
        QHelpEvent event(QEvent::ToolTip, place, table.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(table.viewport(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    QCOMPARE(toolTipOver(0),
             QString("<span>a &lt;b&gt;long&lt;/b&gt; name that does not fit its column</span>"));
    QTRY_COMPARE_WITH_TIMEOUT(toolTipOver(1), QString(), 30'000);
    table.setColumnWidth(0, 800);
    QTRY_COMPARE_WITH_TIMEOUT(toolTipOver(0), QString(), 30'000);
}

KORVEX_TEST_MAIN(TstNoFocusDelegate)
#include "tst_nofocusdelegate.moc"
