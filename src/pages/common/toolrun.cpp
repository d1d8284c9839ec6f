// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "toolrun.h"

#include "cruncommandthread.h"
#include "runners.h"

ToolRun::~ToolRun()
{
    delete runner;
}

void ToolRun::start(QObject* receiver, const char* lineSlot, const char* endSlot,
                    const QString& program, const QStringList& arguments)
{
    prepare(receiver, lineSlot, endSlot, program, arguments);
    runner->start(QThread::InheritPriority);
}

void ToolRun::startListing(QObject* receiver, const char* lineSlot, const char* endSlot,
                           const QString& program, const QStringList& arguments)
{
    prepare(receiver, lineSlot, endSlot, program, arguments);
    runner->wholeLines = true;
    runner->start(QThread::InheritPriority);
}

void ToolRun::prepare(QObject* receiver, const char* lineSlot, const char* endSlot,
                      const QString& program, const QStringList& arguments)
{
    // However its run ends, a runner is used once.
    runner = createFreeRunner();
    QObject::connect(runner, SIGNAL(standoutputline(QString)), receiver, lineSlot);
    if (endSlot)
        QObject::connect(runner, SIGNAL(sigfinished()), receiver, endSlot);
    runner->SetRunCmd(program, arguments);
}

void ToolRun::stop()
{
    if (runner)
        runner->terminate();
    forget();
}

void ToolRun::stopAndWait()
{
    const QPointer<CRunCommandThread> stopped = runner;
    stop();
    if (stopped)
        stopped->wait();
}

void ToolRun::forget()
{
    runner = nullptr;
}

bool ToolRun::isRunning() const
{
    return runner;
}

bool ToolRun::isLate(const QObject* sender) const
{
    const CRunCommandThread* const source = qobject_cast<const CRunCommandThread*>(sender);
    return source && source != runner;
}
