// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>
#include <QRect>

// How a picture button of a given style paints its texts: the one place where the styles' fonts,
// places and colours are decided. Used by CBaseImageCtrl.
struct CaptionLook
{
    enum State
    {
        Normal,
        Hover,
        Pressed,
        Disabled
    };

    int pixelSize; // 0 for the control's own font size
    int weight;    // -1 for the control's own weight
    int reach;     // how far below the control the rectangle ends in which the text is centred
    QColor colours[4];

    // The look of the first text. An unknown style gets a dark text in the middle of the control.
    static CaptionLook caption(int style);
    // The look of the second text, which only style 1 paints.
    static CaptionLook description();
    static bool hasDescription(int style);

    QFont font(const QFont& base) const;
    // The rectangle in which the text is centred, for a control with the given rectangle.
    QRect area(const QRect& control) const;
};
