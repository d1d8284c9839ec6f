// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "testcase.h"

#include <QMutex>
#include <QTest>

namespace
{

QMutex mutex;
QStringList warnings;
QStringList allowed;
QStringList messages;
QtMessageHandler previousHandler = nullptr;

// What the platform of the tests says about itself and no change of ours could mend.
bool isPlatformNoise(const QString& message)
{
    return message.startsWith("This plugin does not support");
}

bool takeAllowed(const QString& message)
{
    for (int i = 0; i < allowed.size(); ++i) {
        if (message.contains(allowed.at(i))) {
            allowed.removeAt(i);
            return true;
        }
    }
    return false;
}

void collect(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    {
        const QMutexLocker locker(&mutex);
        messages.append(message);
        if (type == QtWarningMsg && !isPlatformNoise(message) && !takeAllowed(message))
            warnings.append(message);
    }
    if (type != QtDebugMsg && previousHandler)
        previousHandler(type, context, message);
}

} // namespace

void TestCase::allowWarning(const QString& part)
{
    const QMutexLocker locker(&mutex);
    allowed.append(part);
}

QStringList TestCase::debugLines()
{
    const QMutexLocker locker(&mutex);
    return messages;
}

void TestCase::init()
{
    {
        const QMutexLocker locker(&mutex);
        warnings.clear();
        allowed.clear();
        messages.clear();
    }
    previousHandler = qInstallMessageHandler(collect);
}

void TestCase::cleanup()
{
    qInstallMessageHandler(previousHandler);
    const QMutexLocker locker(&mutex);
    if (!warnings.isEmpty())
        QFAIL(qPrintable("Qt warnings: " + warnings.join(" | ")));
}
