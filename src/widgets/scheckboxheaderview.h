// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHeaderView>

// A table header with a check box in one section. The pages' file tables use it to tick or clear
// all rows at once.
class SCheckBoxHeaderView : public QHeaderView
{
    Q_OBJECT

public:
    // checkColumn is the section that carries the box, -1 for none.
    SCheckBoxHeaderView(int checkColumn, Qt::Orientation orientation, QWidget* parent = nullptr);

    bool isChecked() const;
    // Shows the box checked or not, without a signal: for a table whose rows have changed.
    void setChecked(bool on);

signals:
    // The user has toggled the box. Spelled so.
    void checkStausChange(bool checked);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

private:
    bool checked = false;
    int column;
};
