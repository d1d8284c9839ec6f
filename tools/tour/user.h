// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <functional>

class QAbstractItemView;
class QWidget;

// The user who sits in front of the program: looks at its windows, clicks and types. Lives beside
// the user-interface thread, so that a dialog that waits for its answer does not keep the user
// waiting. Everything that the user does is followed by a moment in which the program reacts.
// Failures throw TourFailure.
class User
{
public:
    // Runs a function on the user-interface thread and returns what it returns.
    template<class Function>
    auto see(const Function& function) const -> decltype(function())
    {
        decltype(function()) result{};
        runInWindow([&] { result = function(); });
        return result;
    }

    // Moves the pointer to where it changes the look of nothing.
    void movePointerAway() const;
    // Clicks the visible, enabled widget with this object name in the window, page or dialog of
    // this class.
    void click(const QString& owner, const QString& name) const;
    // Clicks an entry of the open menu, its text written with its "&".
    void clickInMenu(const QString& text) const;
    QStringList menuTexts() const;
    void pressEscape() const;

    // Top-level rows of the visible page's list, named by the text of their first cell.
    void doubleClickRow(const QString& text) const;
    void clickRow(const QString& text) const;
    void clickBoxOfRow(const QString& text) const;
    QStringList rows() const;
    QStringList tickedRows() const;

    // Types into the open file dialog and leaves it open.
    void typePath(const QString& path) const;
    void acceptFileDialog() const;
    // Replaces what the line edit with this name shows.
    void typeInto(const QString& owner, const QString& name, const QString& text) const;

    // Texts of the visible labels in the visible window, page or dialog of this class.
    QStringList texts(const QString& owner) const;

    // Waits until the condition, asked on the user-interface thread, holds.
    void waitFor(const QString& what, const std::function<bool()>& condition) const;
    void waitForEnabled(const QString& owner, const QString& name) const;
    void waitForWindow(const QString& owner) const;
    void waitUntilGone(const QString& owner) const;

    QImage photograph() const;

private:
    void runInWindow(const std::function<void()>& what) const;
    void act(const std::function<void()>& what) const;
    void clickAt(const std::function<QWidget*()>& widget,
                 const std::function<QPoint()>& position) const;
    void clickRowAt(const QString& text, const std::function<QPoint(const QRect&)>& position) const;
};

// For functions that see() runs: the visible widget of this class, null when there is none.
QWidget* visibleWidget(const QString& className);
// The same for a widget of this name in the visible widget of that class.
QWidget* visibleWidget(const QString& owner, const QString& name);
// The list of the visible page.
QAbstractItemView* visibleList();
// Where the row's first cell is in the list's viewport; null when there is no such row.
QRect rowRectangle(const QString& text);
