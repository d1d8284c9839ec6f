// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "runners.h"

#include "cruncommandthread.h"

void runToEnd(CRunCommandThread& runner, const QString& program, const QStringList& arguments)
{
    runner.SetRunCmd(program, arguments);
    runner.start(QThread::InheritPriority);
    runner.waitFinished();
}

CRunCommandThread* createFreeRunner()
{
    CRunCommandThread* const runner = new CRunCommandThread(nullptr);
    QObject::connect(runner, SIGNAL(finished()), runner, SLOT(deleteLater()));
    return runner;
}
