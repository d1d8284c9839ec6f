// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "guesttest.h"

#include <QDir>

void GuestTest::initTestCase()
{
    QVERIFY(folder.isValid());
    if (machine.isRunning())
        return;
    QElapsedTimer timer;
    timer.start();
    SUCCEED(machine.start());
    qInfo() << "Started in" << timer.elapsed() << "ms";
}

void GuestTest::init()
{
    TestCase::init();
    USE(program.isRunning() || program.start());
}

void GuestTest::cleanup()
{
    if (QTest::currentTestFailed()) {
        saveScreen(QString("system-failed-") + QTest::currentTestFunction());
        program.stop();
    }
    while (!plugged.isEmpty())
        pull();
    TestCase::cleanup();
}

QString GuestTest::plug(const QString& file, qint64 bytesPerSecond)
{
    static int sticks = 0;
    const QString serial = QString("KX%1").arg(++sticks);
    const QString node = machine.plugStick(serial, file, bytesPerSecond);
    if (!node.isEmpty())
        plugged.append(serial);
    return node;
}

void GuestTest::pull()
{
    SUCCEED(machine.unplugStick(plugged.takeLast()));
}

QString GuestTest::output(const QString& script)
{
    const VirtualMachine::Result result =
        machine.run("set -e\n" + script, VirtualMachine::User::Root);
    if (result.exitCode != 0)
        QTest::qFail(qPrintable(script + '\n' + result.output + machine.problem()), __FILE__,
                     __LINE__);
    return QString::fromUtf8(result.output).trimmed();
}

void GuestTest::saveScreen(const QString& name)
{
    QVERIFY(QDir().mkpath(KORVEX_SCREENSHOTS));
    QVERIFY(machine.screenshot()
                .copy(0, 0, 860, 580)
                .save(QString("%1/%2.png").arg(KORVEX_SCREENSHOTS, name)));
}
