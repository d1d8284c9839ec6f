// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "nofocusdelegate.h"

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
