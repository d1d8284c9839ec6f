// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cbaseimagectrl.h"
#include "picture.h"

#include <QPainter>

#include <algorithm>

namespace
{

const QColor focusColour(0, 98, 143);
constexpr qreal focusLine = 1.5;
constexpr qreal focusRadius = 4;

} // namespace

void CBaseImageCtrl::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const CaptionLook::State now = state();
    drawPicture(painter, now);
    drawTexts(painter, now);
    if (keyboardFocus && hasFocus())
        drawFocusMark(painter);
}

void CBaseImageCtrl::drawPicture(QPainter& painter, CaptionLook::State state) const
{
    QString path = normalPicture;
    int frame = 0;
    if (frameCount >= 2) {
        // The states are numbered as the frames are; a short strip has no disabled frame.
        const bool noDisabledFrame = state == CaptionLook::Disabled && frameCount < 4;
        frame = noDisabledFrame ? 0 : std::min<int>(state, frameCount - 1);
    } else if (state == CaptionLook::Disabled) {
        path = disabledPicture.isEmpty() ? normalPicture : disabledPicture;
    } else if (state != CaptionLook::Normal) {
        path = state == CaptionLook::Pressed ? pressedPicture : hoverPicture;
    }
    const QPixmap picture = loadPicture(path, devicePixelRatioF());
    if (picture.isNull())
        return;
    const int frameWidth = frameCount < 2 ? picture.width() : picture.width() / frameCount;
    const QRect source(frame * frameWidth, 0, frameWidth, picture.height());
    const QSizeF size = QSizeF(source.size()) / picture.devicePixelRatio();
    painter.drawPixmap(QRectF(place(size), size), picture, source);
}

QPoint CBaseImageCtrl::place(const QSizeF& picture) const
{
    const int freeX = width() - qRound(picture.width());
    const int freeY = height() - qRound(picture.height());
    switch (alignment) {
    case 0:
        return {0, freeY / 2};
    case 1:
        return {freeX / 2, 0};
    case 2:
        return {freeX, freeY / 2};
    case 3:
        return {freeX / 2, freeY};
    default:
        return {freeX / 2, freeY / 2};
    }
}

void CBaseImageCtrl::drawTexts(QPainter& painter, CaptionLook::State state) const
{
    const auto draw = [&](const QString& text, const CaptionLook& look) {
        painter.setFont(look.font(font()));
        painter.setPen(look.colours[state]);
        painter.drawText(look.area(rect()), Qt::AlignCenter, text);
    };
    if (CaptionLook::hasDescription(style))
        draw(description, CaptionLook::description());
    draw(caption, CaptionLook::caption(style));
}

void CBaseImageCtrl::drawFocusMark(QPainter& painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    // With a white line inside, so that it stands out on filled buttons, too.
    const auto draw = [&](const QColor& colour, qreal inset) {
        painter.setPen(QPen(colour, focusLine));
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), focusRadius,
                                focusRadius);
    };
    draw(Qt::white, 1 + focusLine);
    draw(focusColour, 1);
}
