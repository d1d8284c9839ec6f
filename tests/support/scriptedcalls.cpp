// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "scriptedcalls.h"

#include <QFile>
#include <QTest>

namespace
{

const char argumentMark[] = "argument ";

} // namespace

ScriptedCalls::ScriptedCalls(const QString& toolPath)
    : path(toolPath)
{
    QFile::remove(path + ".calls");
    QFile::remove(path + ".script");
}

void ScriptedCalls::setScript(const QStringList& lines) const
{
    QFile script(path + ".script");
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write(lines.join('\n').toUtf8() + '\n');
}

QList<QStringList> ScriptedCalls::calls() const
{
    QFile record(path + ".calls");
    if (!record.open(QIODevice::ReadOnly))
        return {};
    QList<QStringList> calls;
    QStringList arguments;
    const QList<QByteArray> entries = record.readAll().split('\0');
    for (const QByteArray& entry : entries) {
        if (entry == "end") {
            calls.append(arguments);
            arguments.clear();
        } else if (entry.startsWith(argumentMark)) {
            arguments.append(QString::fromUtf8(entry.mid(int(sizeof argumentMark) - 1)));
        }
    }
    return calls;
}
