// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>

// A combo box that tells when the user is about to open its list, so that the drive lists of the
// Burn and Copy Disk pages can be refilled first.
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
    void mousePressEvent(QMouseEvent* event) override;

private:
    bool announced = false;
};
