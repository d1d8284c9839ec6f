// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "user.h"

#include "screenpicture.h"
#include "tourfailure.h"
#include "usermouse.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QSemaphore>
#include <QThread>

#include <cstdio>
#include <cstdlib>

namespace
{

constexpr int reactionMs = 80;
constexpr int lookMs = 20;
constexpr int patienceMs = 20000;

QMenu* openMenu()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

QAction* menuEntry(const QString& text)
{
    if (const QMenu* const menu = openMenu()) {
        for (QAction* const action : menu->actions()) {
            if (action->text() == text)
                return action;
        }
    }
    return nullptr;
}

// The first cells of the list's rows for which the condition holds, from top to bottom.
QStringList namesWhere(const std::function<bool(const QModelIndex&)>& condition)
{
    QStringList names;
    const QAbstractItemView* const view = visibleList();
    for (int row = 0; view && row < view->model()->rowCount(); ++row) {
        const QModelIndex cell = view->model()->index(row, 0);
        if (condition(cell))
            names.append(cell.data().toString());
    }
    return names;
}

} // namespace

QWidget* visibleWidget(const QString& className)
{
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal && modal->inherits(qPrintable(className)))
        return modal;
    for (QWidget* const widget : QApplication::allWidgets()) {
        if (widget->inherits(qPrintable(className)) && widget->isVisible())
            return widget;
    }
    return nullptr;
}

QWidget* visibleWidget(const QString& owner, const QString& name)
{
    const QWidget* const widget = visibleWidget(owner);
    if (!widget)
        return nullptr;
    auto* found = widget->findChild<QWidget*>(name, Qt::FindDirectChildrenOnly);
    if (!found)
        found = widget->findChild<QWidget*>(name);
    return found && found->isVisible() ? found : nullptr;
}

QAbstractItemView* visibleList()
{
    for (QWidget* const widget : QApplication::allWidgets()) {
        auto* const view = qobject_cast<QAbstractItemView*>(widget);
        if (view && view->objectName() == "list" && view->isVisible())
            return view;
    }
    return nullptr;
}

QRect rowRectangle(const QString& text)
{
    const QAbstractItemView* const view = visibleList();
    if (!view)
        return {};
    const QModelIndexList found = view->model()->match(view->model()->index(0, 0), Qt::DisplayRole,
                                                       text, 1, Qt::MatchExactly);
    return found.isEmpty() ? QRect() : view->visualRect(found.first());
}

// A program that does not come back from an event cannot be ended in good order.
void User::runInWindow(const std::function<void()>& what) const
{
    QSemaphore done;
    QMetaObject::invokeMethod(
        qApp,
        [&] {
            what();
            done.release();
        },
        Qt::QueuedConnection);
    if (!done.tryAcquire(1, patienceMs)) {
        std::fputs("The program does not react any more.\n", stderr);
        std::_Exit(EXIT_FAILURE);
    }
}

// Does not wait for the end of the action: a click may open a dialog that lasts.
void User::act(const std::function<void()>& what) const
{
    QMetaObject::invokeMethod(qApp, what, Qt::QueuedConnection);
    QThread::msleep(reactionMs);
    runInWindow([] {});
}

// The pointer is there some time before the button goes down, as with a user: the screen's own
// report of the movement must not fall between pressing and releasing.
void User::clickAt(const std::function<QWidget*()>& widget,
                   const std::function<QPoint()>& position) const
{
    act([=] {
        if (QWidget* const target = widget())
            UserMouse::move(target, position());
    });
    act([=] {
        QWidget* const target = widget();
        if (!target)
            return;
        const QPoint point = position();
        UserMouse::press(target, point);
        UserMouse::release(target, point);
    });
}

void User::movePointerAway() const
{
    act([] { UserMouse::moveAway(visibleWidget("MainWindow")); });
}

void User::click(const QString& owner, const QString& name) const
{
    const auto find = [=] { return visibleWidget(owner, name); };
    waitForEnabled(owner, name);
    clickAt(find, [=] { return find()->rect().center(); });
}

void User::clickInMenu(const QString& text) const
{
    require(see([&] { return menuEntry(text) != nullptr; }), "No menu entry says " + text);
    clickAt([] { return openMenu(); },
            [=] { return openMenu()->actionGeometry(menuEntry(text)).center(); });
}

QStringList User::menuTexts() const
{
    return see([] {
        QStringList texts;
        if (const QMenu* const menu = openMenu()) {
            for (const QAction* const action : menu->actions())
                texts.append(action->isSeparator() ? QString("--") : action->text());
        }
        return texts;
    });
}

void User::clickRowAt(const QString& text,
                      const std::function<QPoint(const QRect&)>& position) const
{
    require(!see([&] { return rowRectangle(text); }).isNull(), "No row of the list says " + text);
    clickAt([] { return visibleList()->viewport(); }, [=] { return position(rowRectangle(text)); });
}

void User::clickRow(const QString& text) const
{
    clickRowAt(text, [](const QRect& cell) { return cell.center(); });
}

void User::clickBoxOfRow(const QString& text) const
{
    constexpr int middleOfBox = 9;
    clickRowAt(text, [](const QRect& cell) {
        return QPoint(cell.left() + middleOfBox, cell.center().y());
    });
}

QStringList User::rows() const
{
    return see([] { return namesWhere([](const QModelIndex&) { return true; }); });
}

QStringList User::tickedRows() const
{
    return see([] {
        return namesWhere([](const QModelIndex& cell) {
            return cell.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        });
    });
}

QStringList User::texts(const QString& owner) const
{
    return see([&] {
        QStringList texts;
        const QWidget* const widget = visibleWidget(owner);
        if (!widget)
            return texts;
        for (const QLabel* const label : widget->findChildren<QLabel*>()) {
            if (label->isVisible() && !label->text().isEmpty())
                texts.append(label->text());
        }
        return texts;
    });
}

void User::waitFor(const QString& what, const std::function<bool()>& condition) const
{
    for (int waited = 0; !see(condition); waited += lookMs) {
        require(waited < patienceMs, "This did not come: " + what);
        QThread::msleep(lookMs);
    }
}

void User::waitForEnabled(const QString& owner, const QString& name) const
{
    waitFor(QString("a button \"%1\" in %2 that can be clicked").arg(name, owner), [=] {
        const QWidget* const widget = visibleWidget(owner, name);
        return widget && widget->isEnabled();
    });
}

void User::waitForWindow(const QString& owner) const
{
    waitFor("a window " + owner, [&] { return visibleWidget(owner) != nullptr; });
    QThread::msleep(reactionMs);
}

void User::waitUntilGone(const QString& owner) const
{
    waitFor("the end of " + owner, [&] { return visibleWidget(owner) == nullptr; });
}

QImage User::photograph() const
{
    return see([] { return screenPicture(); });
}
