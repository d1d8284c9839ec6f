// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "screenpicture.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace
{

const QColor background(0xE4, 0xEB, 0xF1);
const QColor frameColour(0xC9, 0xD3, 0xDB);
const QColor titleColour(0x33, 0x33, 0x33);
constexpr int margin = 40;
constexpr int titleHeight = 26;
constexpr int shadowSteps = 10;

bool hasFrame(const QWidget* window)
{
    const bool isPlain = window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
    return isPlain && !(window->windowFlags() & Qt::FramelessWindowHint);
}

QRect areaOf(const QWidget* window)
{
    const QRect area(window->pos(), window->size());
    return hasFrame(window) ? area.adjusted(-1, -titleHeight, 1, 1) : area;
}

// Menus lie above dialogs, dialogs above the main window, the active dialog above the others.
int heightOf(const QWidget* window)
{
    if (window->windowType() == Qt::Popup)
        return 3;
    if (window == QApplication::activeModalWidget())
        return 2;
    return window->windowType() == Qt::Dialog ? 1 : 0;
}

QList<QWidget*> visibleWindows()
{
    QList<QWidget*> windows;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && !window->isMinimized())
            windows.append(window);
    }
    std::stable_sort(windows.begin(), windows.end(), [](const QWidget* one, const QWidget* other) {
        return heightOf(one) < heightOf(other);
    });
    return windows;
}

void drawShadow(QPainter& painter, const QRect& area)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x20, 0x40, 0x60, 5));
    for (int step = 1; step <= shadowSteps; ++step) {
        const int out = shadowSteps - step;
        painter.drawRoundedRect(area.adjusted(-out, 4 - out, out, 4 + out), 8 + out, 8 + out);
    }
}

void drawFrame(QPainter& painter, const QWidget* window)
{
    const QRect area = areaOf(window);
    painter.setPen(Qt::NoPen);
    painter.setBrush(frameColour);
    painter.drawRect(area);
    painter.setPen(titleColour);
    painter.setFont(QApplication::font());
    painter.drawText(QRect(area.topLeft(), QSize(area.width(), titleHeight)), Qt::AlignCenter,
                     window->windowTitle());
}

} // namespace

QImage screenPicture()
{
    const QList<QWidget*> windows = visibleWindows();
    QRect area;
    for (const QWidget* const window : windows)
        area |= areaOf(window);
    area.adjust(-margin, -margin, margin, margin);
    QImage picture(area.size(), QImage::Format_RGB32);
    picture.fill(background);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.topLeft());
    for (QWidget* const window : windows) {
        drawShadow(painter, areaOf(window));
        if (hasFrame(window))
            drawFrame(painter, window);
        painter.drawPixmap(QRect(window->pos(), window->size()), window->grab());
    }
    return picture;
}
