// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "tickdelegate.h"

#include <QAbstractItemView>
#include <QMouseEvent>

namespace
{

bool isLeftClick(const QEvent* event)
{
    const bool isButton = event->type() == QEvent::MouseButtonPress ||
                          event->type() == QEvent::MouseButtonRelease ||
                          event->type() == QEvent::MouseButtonDblClick;
    return isButton && static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton;
}

} // namespace

TickDelegate::TickDelegate(QAbstractItemView* view)
    : NoFocusDelegate(view)
{
}

bool TickDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                               const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (!isLeftClick(event))
        return NoFocusDelegate::editorEvent(event, model, option, index);
    const auto* const view = static_cast<const QAbstractItemView*>(parent());
    const QPoint inViewport = static_cast<const QMouseEvent*>(event)->pos();
    if (view->viewport()->mapTo(view, inViewport).x() > lastPixel)
        return false;
    const QVariant tick = index.data(Qt::CheckStateRole);
    const Qt::ItemFlags needed = Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;
    if (!tick.isValid() || (index.flags() & needed) != needed)
        return false;
    if (event->type() != QEvent::MouseButtonRelease)
        return true;
    const bool wasTicked = tick.toInt() == Qt::Checked;
    return model->setData(index, wasTicked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}
