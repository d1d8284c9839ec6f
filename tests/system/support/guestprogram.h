// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "virtualmachine.h"

#include <QJsonObject>
#include <QStringList>

#include <functional>

// The program on the screen of a virtual machine, used by mouse and keyboard as the user "tester"
// does. What it shows is told by the plugin in screenreader/. Widgets are called by their object
// names, with those of the widgets around them before it where the name alone is not unique:
// "CBurnDialog/burn". Used by the system tests of pages.
class GuestProgram
{
public:
    explicit GuestProgram(VirtualMachine& virtualMachine);

    // Starts the program and waits for its window. False with problem() when something fails, as
    // with everything below.
    bool start();
    // Ends it, whatever it does.
    bool stop();
    // Started and not stopped.
    bool isRunning() const;

    // Waits until the widget can be used and clicks on its middle.
    bool click(const QString& widget);
    // The same in two steps: moves the mouse there, and clicks where it is.
    bool pointAt(const QString& widget);
    bool click();
    // Empties the field and types into it.
    bool enter(const QString& field, const QString& text);
    // Opens a list that drops down, and closes it without a choice.
    bool openList(const QString& list);
    bool closeList(const QString& list);
    // Chooses the entry below the present one.
    bool chooseNext(const QString& list);
    // The same for the prompt that asks for the administrator's password.
    bool enterPassword(const QString& password);
    bool cancelPassword();

    // Waits until a visible widget's text contains this.
    bool waitForText(const QString& text, int seconds = 400);
    bool waitForWidget(const QString& widget, int seconds = 400);
    bool waitForEntries(const QString& list, const QStringList& wanted, int seconds = 400);
    // What it shows now; empty when it is not to be seen.
    QStringList entries(const QString& list);
    QString text(const QString& widget);

    QString problem() const;

private:
    // Commands of xdotool, one after the other. Does not wait for them.
    bool input(const QString& commands);
    bool typeText(const QString& text);
    bool waitUntilUsable(const QString& program, const QString& widget, QJsonObject* found);
    bool waitForList(const QString& list, bool open);
    bool moveTo(const QString& program, const QString& widget, const QString& afterwards);
    bool clickOn(const QString& program, const QString& widget);
    bool focus(const QString& program, const QString& field);
    bool waitForContent(const QString& program, const QString& field,
                        const std::function<bool(const QString&)>& isRight);
    QJsonArray widgets(const QString& program) const;
    QJsonObject find(const QString& program, const QString& widget) const;
    bool fail(const QString& text);

    VirtualMachine& machine;
    bool running = false;
    QString trouble;
};
