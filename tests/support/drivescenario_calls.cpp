// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "drivescenario.h"
#include "standinfolder.h"
#include "testfiles.h"

#include <QHash>

// What the stand-ins have recorded.

namespace
{

// The latest call of a process; numbers of processes may come again.
DriveCall* callOf(QList<DriveCall>& calls, const QHash<QString, int>& byProcess,
                  const QString& process)
{
    const int index = byProcess.value(process, -1);
    return index < 0 ? nullptr : &calls[index];
}

void noteLater(DriveCall& call, const QString& what, const QString& value, int place)
{
    if (what == "unmatched")
        call.isUnmatched = true;
    else if (what == "ended")
        call.ended = place;
    else if (what == "password")
        ++(value == "yes" ? call.passwords : call.refusals);
}

void noteAtBeginning(DriveCall& call, const QString& what, const QString& value)
{
    if (what == "program")
        call.program = value;
    else if (what == "argument")
        call.arguments.append(value);
    else if (what == "variable")
        call.environment[value.section('=', 0, 0)] = value.section('=', 1);
}

} // namespace

QList<DriveCall> DriveScenario::calls() const
{
    QList<DriveCall> calls;
    QHash<QString, int> byProcess;
    int place = 0;
    bool isBeginning = false;
    for (const QByteArray& entry : readFile(StandInFolder::callsPath()).split('\0')) {
        const QString text = QString::fromUtf8(entry);
        const QString what = text.section(' ', 0, 0);
        const QString value = text.section(' ', 1);
        if (what == "call") {
            byProcess[value] = calls.size();
            calls.append(DriveCall());
            calls.last().begun = place++;
            isBeginning = true;
        } else if (what == "end") {
            isBeginning = false;
        } else if (isBeginning) {
            noteAtBeginning(calls.last(), what, value);
        } else if (DriveCall* const call = callOf(calls, byProcess, value.section(' ', 0, 0))) {
            noteLater(*call, what, value.section(' ', 1), place++);
        }
    }
    return calls;
}

QList<QStringList> DriveScenario::commands() const
{
    QList<QStringList> commands;
    for (const DriveCall& call : calls())
        commands.append(QStringList(call.program) + call.arguments);
    return commands;
}

QList<QStringList> DriveScenario::callsOf(const QString& program) const
{
    QList<QStringList> found;
    for (const DriveCall& call : calls()) {
        if (call.program == program)
            found.append(call.arguments);
    }
    return found;
}

QList<QStringList> DriveScenario::unmatchedCalls() const
{
    QList<QStringList> commands;
    for (const DriveCall& call : calls()) {
        if (call.isUnmatched)
            commands.append(QStringList(call.program) + call.arguments);
    }
    return commands;
}
