// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cimagebutton.h"
#include "foldertest.h"

#include <memory>

// What the tests of picture buttons share: a window with a button whose states are plain colours,
// red, green, blue and yellow, on a light gray ground. The mouse rests beside the button.
class ImageCtrlTest : public FolderTest
{
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    static const QSize small; // of the button and its pictures
    static const QPoint corner;

    // Writes a picture of one colour and returns its path.
    QString picture(const QString& name, const QColor& colour, const QSize& size = small);
    // The rectangle of all pixels near the given colour.
    static QRect boundsOf(const QImage& image, const QColor& colour);

    std::unique_ptr<QWidget> window;
    CImageButton* button = nullptr;
};
