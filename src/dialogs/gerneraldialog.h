// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "imagedialog.h"

#include <QString>

class CImageButton;
class QLabel;

// A message on a picture of its own, with up to two buttons: "insert a USB drive", "select files
// first". The pages build it step by step and run it with exec(): 1 for OK, 0 for everything else.
// (Spelled so.)
class GerneralDialog : public ImageDialog
{
    Q_OBJECT

public:
    explicit GerneralDialog(QWidget* parent);

    // Takes the picture and with it the size, adds the close button and shows the text.
    void SetBackGround(QString picture, QString text);
    // Adds a button ten pixels below y; an x of 0 centres it.
    void AddOK(int y, int x);
    void AddNo(int y, int x);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void place(CImageButton* button, int y, int x);

    QLabel* label;
    CImageButton* btnclose = nullptr;
    CImageButton* btnok = nullptr;
};
