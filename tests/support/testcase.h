// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

// Base of every test class. A Qt warning during a test function (a connection that does not match,
// a timer of another thread, a null picture) fails that function, so that it cannot hide.
class TestCase : public QObject
{
    Q_OBJECT

protected:
    // A warning that contains this text is allowed once in the current test function.
    void allowWarning(const QString& part);
    // Everything that the debug stream has received since the test function began.
    static QStringList debugLines();

protected slots:
    // A test class with its own init() or cleanup() calls these first.
    void init();
    void cleanup();
};
