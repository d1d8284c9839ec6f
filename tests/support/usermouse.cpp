// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "usermouse.h"

#include <QCursor>
#include <QTest>
#include <QWidget>
#include <QWindow>

void UserMouse::move(QWidget* widget, QPoint position)
{
    QWidget* top = widget->window();
    const QPoint inWindow = widget->mapTo(top, position);
    // By way of a neighbouring pixel: a window that opens under a resting mouse is only told of the
    // mouse when it moves.
    for (const QPoint step : {inWindow + QPoint(1, 1), inWindow}) {
        QCursor::setPos(top->mapToGlobal(step));
        QTest::mouseMove(top->windowHandle(), step);
    }
    QCoreApplication::processEvents();
}

void UserMouse::press(QWidget* widget, QPoint position)
{
    move(widget, position);
    QWidget* top = widget->window();
    QTest::mousePress(top->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      widget->mapTo(top, position));
}

void UserMouse::release(QWidget* widget, QPoint position)
{
    move(widget, position);
    QWidget* top = widget->window();
    QTest::mouseRelease(top->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                        widget->mapTo(top, position));
}

void UserMouse::click(QWidget* widget)
{
    const QPoint centre = widget->rect().center();
    // A mouse that rests on the widget while its window opens or another one closes does not enter
    // it: that takes a movement.
    moveAway(widget);
    press(widget, centre);
    release(widget, centre);
}

void UserMouse::moveAway(QWidget* widget)
{
    QWidget* top = widget->window();
    move(top, top->rect().bottomRight());
}
