// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "clineedit.h"

#include "picture.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>

#include <cstdlib>

CLineEdit::CLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
}

void CLineEdit::SetImage(QString first, QString second, QString third, QPoint pos)
{
    firstPicture = first;
    secondPicture = second;
    thirdPicture = third;
    position = pos;
    update();
}

QRect CLineEdit::getRect() const
{
    const int x = position.x() < 0 ? width() + position.x() : position.x();
    const int y = position.y() < 0 ? height() + position.y() : position.y();
    const int side = height() - 2 * std::abs(position.y());
    return {x, y, side, side};
}

bool CLineEdit::isMouseInSquare() const
{
    return getRect().contains(mapFromGlobal(QCursor::pos()));
}

QString CLineEdit::currentPicture() const
{
    if (thirdPicture.isEmpty())
        return hasFocus() ? secondPicture : firstPicture;
    if (!isMouseInSquare())
        return firstPicture;
    return QGuiApplication::mouseButtons() & Qt::LeftButton ? thirdPicture : secondPicture;
}

void CLineEdit::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    const QPixmap picture = loadPicture(currentPicture(), devicePixelRatioF());
    if (picture.isNull())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(getRect(), picture);
}

void CLineEdit::enterEvent(QEvent* event)
{
    QLineEdit::enterEvent(event);
    update();
}

void CLineEdit::leaveEvent(QEvent* event)
{
    QLineEdit::leaveEvent(event);
    update();
}

void CLineEdit::mousePressEvent(QMouseEvent* event)
{
    QLineEdit::mousePressEvent(event);
    update();
}

void CLineEdit::mouseMoveEvent(QMouseEvent* event)
{
    QLineEdit::mouseMoveEvent(event);
    update();
}

void CLineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    update();
    if (event->button() == Qt::LeftButton && isMouseInSquare())
        emit OnClicked();
}
