// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

// Paints items without a frame around the current cell. Used by the pages' tables, which select
// whole rows.
class NoFocusDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit NoFocusDelegate(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    // Shows the whole text of a cell that is too narrow for it.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};
