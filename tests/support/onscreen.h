// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

// What the screen shows of a widget at a place in it. Unlike a grab, this does not make the widget
// paint itself, so it shows what the user sees where a widget fails to ask for being painted.
inline QColor onScreen(const QWidget* widget, QPoint place)
{
    const QWidget* const window = widget->window();
    const QImage shown = window->screen()->grabWindow(window->winId()).toImage();
    return shown.pixelColor(widget->mapTo(window, place) * shown.devicePixelRatio());
}
