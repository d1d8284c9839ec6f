// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cbaseimagectrl.h"

#include "imagectrlaccessible.h"
#include "picture.h"

#include <QCursor>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

CBaseImageCtrl::CBaseImageCtrl(QWidget* parent)
    : QWidget(parent)
{
    ImageCtrlAccessible::install();
    // Reached with Tab but not by clicking, so that the mouse leaves the focus where it is.
    setFocusPolicy(Qt::TabFocus);
}

void CBaseImageCtrl::SetBackGround(QString normal, QString hoverImage, QString pressed,
                                   QString disabled, QString captionText, QString descriptionText,
                                   int styleNumber)
{
    normalPicture = normal;
    hoverPicture = hoverImage;
    pressedPicture = pressed;
    disabledPicture = disabled;
    caption = captionText;
    description = descriptionText;
    style = styleNumber;
    frameCount = 0;
    adopt();
}

void CBaseImageCtrl::SetBackGround(QString strip, int frames, QString captionText, int styleNumber)
{
    SetBackGround(strip, QString(), QString(), QString(), captionText, QString(), styleNumber);
    frameCount = frames;
    adopt();
}

void CBaseImageCtrl::adopt()
{
    if (!caption.isEmpty())
        setAccessibleName(caption.simplified());
    setAccessibleDescription(description.simplified());
    if (autoSize)
        Resize();
    update();
}

void CBaseImageCtrl::SetAlign(int align)
{
    alignment = align;
    update();
}

void CBaseImageCtrl::SetAutoSizeByImage(bool on)
{
    autoSize = on;
    if (autoSize)
        Resize();
}

void CBaseImageCtrl::Resize()
{
    const QSize picture = loadPicture(normalPicture, 1).size();
    if (picture.isEmpty())
        return;
    resize(frameCount < 2 ? picture.width() : picture.width() / frameCount, picture.height());
}

bool CBaseImageCtrl::isMouseIn() const
{
    return hover && rect().contains(mapFromGlobal(QCursor::pos()));
}

CaptionLook::State CBaseImageCtrl::state() const
{
    if (!isEnabled())
        return CaptionLook::Disabled;
    if (!isMouseIn())
        return CaptionLook::Normal;
    return QGuiApplication::mouseButtons() & Qt::LeftButton ? CaptionLook::Pressed
                                                            : CaptionLook::Hover;
}

QRect CBaseImageCtrl::captionRect() const
{
    return textRect(caption, CaptionLook::caption(style));
}

QRect CBaseImageCtrl::descriptionRect() const
{
    return textRect(description, CaptionLook::description());
}

QRect CBaseImageCtrl::textRect(const QString& text, const CaptionLook& look) const
{
    const QFontMetrics metrics(look.font(font()), this);
    return metrics.boundingRect(look.area(rect()), Qt::AlignCenter, text);
}

void CBaseImageCtrl::click()
{
    if (!isEnabled())
        return;
    const QPointer<CBaseImageCtrl> self(this); // a receiver may delete the window with the button
    emit clicked();
    if (self)
        emit clicked(false);
}

void CBaseImageCtrl::enterEvent(QEvent*)
{
    hover = true;
    update();
}

void CBaseImageCtrl::leaveEvent(QEvent*)
{
    hover = false;
    update();
}

void CBaseImageCtrl::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        pressedHere = true;
    update();
}

void CBaseImageCtrl::mouseMoveEvent(QMouseEvent*)
{
    update();
}

void CBaseImageCtrl::mouseReleaseEvent(QMouseEvent* event)
{
    update();
    // A double click that closes a window releases the button over whatever lies below; only a
    // press on this control makes a click here.
    if (event->button() != Qt::LeftButton || !pressedHere)
        return;
    pressedHere = false;
    if (isMouseIn())
        click();
}

void CBaseImageCtrl::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter)
        QWidget::keyPressEvent(event);
    else if (!event->isAutoRepeat()) // a key held down is one click
        click();
}

void CBaseImageCtrl::focusInEvent(QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
        reason == Qt::ShortcutFocusReason)
        keyboardFocus = true;
    update();
}

void CBaseImageCtrl::focusOutEvent(QFocusEvent* event)
{
    // Coming back to the window brings the mark back as well.
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        keyboardFocus = false;
    update();
}
