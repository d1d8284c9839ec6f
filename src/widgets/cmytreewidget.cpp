// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cmytreewidget.h"

#include <QMouseEvent>

CMyTreeWidget::CMyTreeWidget(QWidget* parent)
    : QTreeWidget(parent)
{
}

void CMyTreeWidget::mousePressEvent(QMouseEvent* event)
{
    QTreeWidget::mousePressEvent(event);
    if (!indexAt(event->pos()).isValid())
        clearSelection();
}
