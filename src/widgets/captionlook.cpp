// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "captionlook.h"

namespace
{

// Style numbers as the windows pass them to SetBackGround().
enum Style
{
    CloseStyle = 0,
    TileStyle = 1,
    TopBarStyle = 2,
    PlainStyle = 3,
    CancelStyle = 4,
    OkStyle = 5,
    StopStyle = 12,
    OpenFolderStyle = 13
};

const QColor white(Qt::white);
const QColor lightBlue(0, 164, 242);
// Readable on white and on the light blue of the hover pictures.
const QColor deepBlue(0, 98, 143);
// The one colour of style 4 under the mouse, so it has to do on the pressed picture's blue, too.
const QColor nightBlue(0, 38, 56);
const QColor text(0x33, 0x33, 0x33);
const QColor faded(0x8C, 0x98, 0xA0);

} // namespace

CaptionLook CaptionLook::caption(int style)
{
    switch (style) {
    case TileStyle:
        return {16, 50, 35, {Qt::black, Qt::black, white, Qt::black}};
    case TopBarStyle:
        return {0, -1, 40, {white, white, white, white}};
    case CloseStyle:
    case PlainStyle:
    case OkStyle:
        return {14, -1, 0, {white, white, white, white}};
    case CancelStyle:
        return {12, -1, 0, {lightBlue, nightBlue, nightBlue, white}};
    case StopStyle:
        return {12, -1, 0, {deepBlue, deepBlue, white, faded}};
    case OpenFolderStyle:
        return {12, -1, 0, {deepBlue, deepBlue, deepBlue, faded}};
    default:
        return {14, -1, 0, {text, text, text, faded}};
    }
}

CaptionLook CaptionLook::description()
{
    return {13, -1, 90, {Qt::gray, Qt::gray, white, Qt::gray}};
}

bool CaptionLook::hasDescription(int style)
{
    return style == TileStyle;
}

QFont CaptionLook::font(const QFont& base) const
{
    QFont font(base);
    if (pixelSize > 0)
        font.setPixelSize(pixelSize);
    if (weight >= 0)
        font.setWeight(weight);
    return font;
}

QRect CaptionLook::area(const QRect& control) const
{
    return control.adjusted(0, 0, 0, reach);
}
