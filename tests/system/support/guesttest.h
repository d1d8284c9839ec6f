// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "guest.h"
#include "testcase.h"

#include <QTemporaryDir>
#include <QTest>

// Calls of the machine, of the program in it, and of steps that check for themselves: each ends the
// test function when it fails.
#define SUCCEED(condition) QVERIFY2(condition, qPrintable(machine.problem()))
#define USE(condition) QVERIFY2(condition, qPrintable(program.problem()))
#define STEP(call)                                                                                 \
    do {                                                                                           \
        call;                                                                                      \
        if (QTest::currentTestFailed())                                                            \
            return;                                                                                \
    } while (false)

// Base of the tests that use the program in a virtual machine. One machine serves all of
// them, and the program goes on from one to the next as long as they succeed: each leaves it at
// the home page. What a function has plugged in is pulled out behind it, and of one that fails a
// picture of the screen remains.
class GuestTest : public TestCase
{
    Q_OBJECT

protected slots:
    void initTestCase();
    void init();
    void cleanup();

protected:
    // Plugs a stick with that content in and returns its node; see VirtualMachine.
    QString plug(const QString& file, qint64 bytesPerSecond = 0);
    // Takes out the stick that was plugged in last.
    void pull();
    // What a script that root runs prints, without blanks around it; fails with the script.
    QString output(const QString& script);
    void saveScreen(const QString& name);

    QTemporaryDir folder;
    VirtualMachine& machine = Guest::sharedMachine();
    GuestProgram& program = Guest::sharedProgram();

private:
    QStringList plugged;
};
