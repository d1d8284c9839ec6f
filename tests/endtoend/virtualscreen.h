// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QStringList>

// A process that ends with the test, however that ends.
class Companion : public QProcess
{
public:
    ~Companion() override;

protected:
    void setupChildProcess() override;
};

// A screen of its own for the programs of a test, with a keyboard. It has no window manager.
class VirtualScreen
{
public:
    // Empty when all is well.
    QString start();
    void stop();

    // Where programs find it.
    QString display() const;

    // Gives the keyboard the keys of a country, for programs that start afterwards. False when that
    // fails.
    bool useKeyboard(const QString& layout) const;

    // Waits until the window with this title has the focus.
    bool hasFocus(const QString& title) const;
    // Keys, for the window that has the focus. A character that the keyboard does not have may come
    // out as another.
    void type(const QString& text) const;
    void press(const QString& key) const;

private:
    // Runs a program on the screen. False when it fails.
    bool run(QProcess& program, const QString& path, const QStringList& arguments) const;
    // Runs the tool that acts as the user; what it writes, nothing when it fails.
    QByteArray act(const QStringList& arguments) const;

    Companion server;
    QString name;
};
