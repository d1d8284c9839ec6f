// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>
#include <QStyleOptionComboBox>

// A combo box that tells when the user is about to open its list, so that the drive lists of the
// Burn and Copy Disk pages can be refilled first. A text that is too long for it loses its middle,
// since drives differ in their ends, and is whole in the open list and in the tool tip.
class CMyComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit CMyComboBox(QWidget* parent = nullptr);

    void showPopup() override;

signals:
    // Emitted before the list opens, by the left mouse button or from the keyboard.
    void dropdownclicked();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QStyleOptionComboBox shownOption() const;

    bool announced = false;
};
