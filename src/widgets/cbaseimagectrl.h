// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "captionlook.h"

#include <QString>
#include <QWidget>

// A button drawn from pictures, one per state, with up to two texts painted on it. Every window of
// the program uses it, mostly as CImageButton. The mouse works it by position and live buttons;
// Tab, Space and Return work it from the keyboard.
class CBaseImageCtrl : public QWidget
{
    Q_OBJECT

public:
    explicit CBaseImageCtrl(QWidget* parent = nullptr);

    // Separate pictures. An empty disabled picture means the normal one; any other picture that is
    // missing leaves its state without one. style numbers a text layout (see captionlook.cpp). A
    // caption becomes the accessible name; whoever gives none sets one with setAccessibleName().
    void SetBackGround(QString normal, QString hover, QString pressed, QString disabled,
                       QString caption, QString description, int style);
    // One picture with the states' frames side by side: normal, hover, pressed, disabled.
    void SetBackGround(QString strip, int frames, QString caption, int style);

    // Where a picture smaller than the control sits: 0 left, 1 top, 2 right, 3 bottom, each
    // centred the other way; any other number centres both ways, as at first.
    void SetAlign(int align);
    // Whether SetBackGround() gives the control its normal picture's size. On at first.
    void SetAutoSizeByImage(bool on);
    // Takes the size of the normal picture (of one frame of a strip) if there is one.
    void Resize();

    // The mouse has entered the control and is inside it.
    bool isMouseIn() const;

    // Where the caption is painted; larger than the control when the caption does not fit.
    QRect captionRect() const;
    QRect descriptionRect() const;

public slots:
    // What a click does, without the mouse. Nothing while the control is disabled.
    void click();

signals:
    void clicked();
    // For receivers that expect a state, as push buttons report it; always false.
    void clicked(bool checked);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    CaptionLook::State state() const;
    void adopt();
    void drawPicture(QPainter& painter, CaptionLook::State state) const;
    void drawTexts(QPainter& painter, CaptionLook::State state) const;
    void drawFocusMark(QPainter& painter) const;
    QPoint place(const QSizeF& picture) const;
    QRect textRect(const QString& text, const CaptionLook& look) const;

    QString normalPicture;
    QString hoverPicture;
    QString pressedPicture;
    QString disabledPicture;
    QString caption;
    QString description;
    int style = 0;
    int frameCount = 0;
    bool hover = false;
    int alignment = -1;
    bool autoSize = true;
    bool pressedHere = false;
    bool keyboardFocus = false;
};
