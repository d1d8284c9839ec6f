// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "nofocusdelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

NoFocusDelegate::NoFocusDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

void NoFocusDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    QStyleOptionViewItem unfocused(option);
    unfocused.state &= ~QStyle::State_HasFocus;
    QStyledItemDelegate::paint(painter, unfocused, index);
}

bool NoFocusDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                const QStyleOptionViewItem& option, const QModelIndex& index)
{
    QStyleOptionViewItem oneLine(option);
    oneLine.features &= ~QStyleOptionViewItem::WrapText;
    const bool isCut = sizeHint(oneLine, index).width() > option.rect.width();
    if (event->type() != QEvent::ToolTip || !isCut)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    // Plain text: a name may look like markup.
    const QString text = index.data(Qt::DisplayRole).toString().toHtmlEscaped();
    QToolTip::showText(event->globalPos(), "<span>" + text + "</span>", view);
    return true;
}
