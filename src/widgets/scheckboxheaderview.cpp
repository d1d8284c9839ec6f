// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "scheckboxheaderview.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>

#include <algorithm>

namespace
{

constexpr int boxSide = 20;
constexpr int boxMargin = 3;
// A click up to here belongs to the header alone.
constexpr int deadZone = 26;

} // namespace

SCheckBoxHeaderView::SCheckBoxHeaderView(int checkColumn, Qt::Orientation orientation,
                                         QWidget* parent)
    : QHeaderView(orientation, parent)
    , column(checkColumn)
{
    // The box takes the section's right end, so the text starts at the left.
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

bool SCheckBoxHeaderView::isChecked() const
{
    return checked;
}

void SCheckBoxHeaderView::setChecked(bool on)
{
    checked = on;
    updateSection(column);
}

void SCheckBoxHeaderView::mousePressEvent(QMouseEvent* event)
{
    const int section = visualIndexAt(event->x());
    if (event->button() == Qt::LeftButton && section >= 0 && section == column &&
        event->x() > deadZone) {
        checked = !checked;
        updateSection(column);
        emit checkStausChange(checked);
    }
    QHeaderView::mousePressEvent(event);
}

void SCheckBoxHeaderView::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const
{
    painter->save(); // the header leaves its own pen and font behind
    QHeaderView::paintSection(painter, rect, logicalIndex);
    painter->restore();
    if (logicalIndex != column)
        return;
    // At the right end, but never where a click would not reach it.
    const int left = std::max(deadZone + 1, rect.width() - boxSide - boxMargin);
    QStyleOptionButton box;
    box.initFrom(this);
    box.state &= ~(QStyle::State_MouseOver | QStyle::State_HasFocus);
    box.state |= checked ? QStyle::State_On : QStyle::State_Off;
    box.rect = QRect(rect.x() + left, rect.y() + (rect.height() - boxSide) / 2, boxSide, boxSide);
    style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, painter, this);
}
