// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "picture.h"

#include <QApplication>
#include <QColor>
#include <QDebug>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPoint>
#include <QString>

// The look and feel that the dialog base and the main window base share: no system frame, one
// background picture with transparent corners, moved by dragging anywhere. Base is the Qt class to
// build on. The signals live in the two descendants, as a template cannot declare any.
template<class Base>
class ImageWindow : public Base
{
public:
    ImageWindow()
    {
        this->setWindowTitle("Korvex ISO Editor");
        this->setWindowFlags(Qt::FramelessWindowHint);
        this->setAutoFillBackground(false);
        this->setAttribute(Qt::WA_TranslucentBackground);
    }

    // Takes the picture as background and fixes the window to its size. A picture that cannot be
    // loaded leaves the window as it was.
    void SetBackGround(QString path)
    {
        const QPixmap picture = loadPicture(path, 1);
        if (picture.isNull()) {
            qDebug().noquote().nospace() << "Can not load the image file " << path;
            return;
        }
        background = path;
        this->setFixedSize(picture.size());
        this->update();
    }

    // Whether dragging moves the window. Off at first. While it is off, the mouse is left to the
    // window below, so a page laid over a moveable window drags that one.
    void SetMoveable(bool on) { moveable = on; }

    // Colours below the background picture, for the whole window and for its title band. They show
    // where the picture is transparent; an invalid colour paints nothing.
    void SetBackGroundColor(QColor colour)
    {
        backgroundColour = colour;
        this->update();
    }
    void SetTitleBackGround(QColor colour)
    {
        titleColour = colour;
        this->update();
    }

protected:
    virtual void announceVisible(bool visible) = 0;
    virtual void announceMove() = 0;

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        if (backgroundColour.isValid())
            painter.fillRect(this->rect(), backgroundColour);
        if (titleColour.isValid())
            painter.fillRect(0, 0, this->width(), titleHeight, titleColour);
        if (background.isEmpty())
            return;
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(this->rect(), loadPicture(background, this->devicePixelRatioF()));
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        pressed = true;
        dragOffset = event->screenPos().toPoint() - this->pos();
        event->setAccepted(moveable);
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        event->setAccepted(moveable);
        if (event->buttons() == Qt::NoButton || !pressed || !moveable)
            return;
        const QPoint screen = event->screenPos().toPoint();
        const QPoint target = screen - dragOffset;
        // Measured from the screen's origin on purpose: only there is a short drag ignored.
        if (target.manhattanLength() <= QApplication::startDragDistance())
            return;
        this->move(target);
        dragOffset = screen - this->pos();
        announceMove();
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        pressed = false;
        event->setAccepted(moveable);
    }

    void showEvent(QShowEvent* event) override
    {
        Base::showEvent(event);
        this->update();
        // Else the first button would get the focus, unseen, and a stray Space would press it; over
        // another window, the button that opened it would keep the focus.
        if (!this->focusWidget())
            this->setFocus();
        announceVisible(true);
    }

    void hideEvent(QHideEvent* event) override
    {
        Base::hideEvent(event);
        announceVisible(false);
    }

    void changeEvent(QEvent* event) override
    {
        Base::changeEvent(event);
        const bool changed =
            event->type() == QEvent::WindowStateChange || event->type() == QEvent::ActivationChange;
        if (changed && this->isActiveWindow() && !this->isMinimized())
            announceVisible(true);
    }

private:
    static constexpr int titleHeight = 30;

    QString background;
    bool moveable = false;
    bool pressed = false;
    QPoint dragOffset; // from the window's position to the mouse, at the last press or move
    QColor backgroundColour;
    QColor titleColour;
};
