// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "nofocusdelegate.h"
#include "testcase.h"
#include "testmain.h"

#include <QPainter>
#include <QStandardItemModel>
#include <QStyleFactory>

class TstNoFocusDelegate : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void currentCellHasNoFrame();
    void selectionIsStillPainted();

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

KORVEX_TEST_MAIN(TstNoFocusDelegate)
#include "tst_nofocusdelegate.moc"
