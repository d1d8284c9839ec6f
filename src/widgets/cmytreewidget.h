// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTreeWidget>

// A tree that drops its selection when the user clicks into empty space. Used by the pages' trees.
class CMyTreeWidget : public QTreeWidget
{
    Q_OBJECT

public:
    explicit CMyTreeWidget(QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
};
