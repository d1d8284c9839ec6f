// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>
#include <QPoint>
#include <QString>

// A line edit with a picture inside it: a focus mark with two pictures, a button with three. Used
// by the pages' search fields.
class CLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit CLineEdit(QWidget* parent = nullptr);

    // Without a third picture the first shows without the keyboard focus, the second with it. With
    // one they are the normal, hover and pressed looks of a button. A negative pos counts from the
    // right or bottom edge; the absolute value of its y is the margin above and below the picture.
    void SetImage(QString first, QString second, QString third, QPoint pos);

    // The square in which the picture is drawn.
    QRect getRect() const;

signals:
    // The picture has been clicked.
    void OnClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool isMouseInSquare() const;
    QString currentPicture() const;

    QString firstPicture;
    QString secondPicture;
    QString thirdPicture;
    QPoint position;
};
