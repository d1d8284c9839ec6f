// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagedialog.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QWindow>

namespace
{

// The window in use, or the main window while none of ours is.
QWidget* windowInUse()
{
    if (QWidget* const active = QApplication::activeWindow())
        return active;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        if (qobject_cast<QMainWindow*>(window) && window->isVisible())
            return window;
    }
    return nullptr;
}

void putOver(QWidget* dialog, const QWidget* owner)
{
    dialog->winId(); // makes the native window that can belong to another
    dialog->windowHandle()->setTransientParent(owner->windowHandle());
    QRect rectangle = dialog->rect();
    rectangle.moveCenter(owner->frameGeometry().center());
    dialog->move(rectangle.topLeft());
}

QWidget* neighbourInFocusChain(const QWidget* widget, bool next)
{
    return next ? widget->nextInFocusChain() : widget->previousInFocusChain();
}

bool takesTabFocus(const QWidget& widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) && widget.isEnabled() && widget.isVisible();
}

} // namespace

ImageDialog::ImageDialog(bool modal)
{
    setModal(modal);
}

void ImageDialog::setVisible(bool visible)
{
    if (visible && isWindow() && !isVisible()) {
        const QWidget* const owner = windowInUse();
        if (owner && owner != this)
            putOver(this, owner);
    }
    ImageWindow<QDialog>::setVisible(visible);
}

void ImageDialog::slot_minWindow()
{
    showMinimized();
}

void ImageDialog::announceVisible(bool visible)
{
    emit sigvisable(visible);
}

void ImageDialog::announceMove()
{
    emit sigmove();
}

bool ImageDialog::focusNextPrevChild(bool next)
{
    if (isWindow())
        return ImageWindow<QDialog>::focusNextPrevChild(next);
    QWidget* const start =
        isAncestorOf(QApplication::focusWidget()) ? QApplication::focusWidget() : this;
    for (QWidget* candidate = neighbourInFocusChain(start, next); candidate != start;
         candidate = neighbourInFocusChain(candidate, next)) {
        if (isAncestorOf(candidate) && takesTabFocus(*candidate)) {
            candidate->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
    return false;
}

void ImageDialog::keyPressEvent(QKeyEvent* event)
{
    if (!isWindow() && event->key() == Qt::Key_Escape)
        event->ignore();
    else
        ImageWindow<QDialog>::keyPressEvent(event);
}
