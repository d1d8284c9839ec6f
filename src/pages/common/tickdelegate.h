// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "nofocusdelegate.h"

// The delegate of the pages' entry tables. It decides where a click is one on the tick, whatever
// the style draws there: a page that toggles on clicks beside it then misses no pixel and toggles
// none twice.
class TickDelegate : public NoFocusDelegate
{
    Q_OBJECT

public:
    // The last pixel of the tick, from the view's left edge.
    static constexpr int lastPixel = 16;

    // view is the table that it is the delegate of, and its parent.
    explicit TickDelegate(QAbstractItemView* view);

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
};
