// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprocess.h"

#include <QDebug>

#include <csignal>
#include <sys/types.h>
#include <unistd.h>

CProcess::CProcess(QObject* parent)
    : QProcess(parent)
{
    connect(this, SIGNAL(started()), this, SLOT(rememberGroup()));
}

void CProcess::OnTerminate()
{
    qDebug() << "CProcess::OnTerminate is called" << program();
    terminate();
}

void CProcess::killGroup()
{
    const QMutexLocker locker(&mutex);
    killed = true;
    // Group 0 would be our own.
    if (group > 0)
        ::kill(-pid_t(group), SIGKILL);
}

void CProcess::setupChildProcess()
{
    ::setpgid(0, 0);
}

void CProcess::rememberGroup()
{
    const QMutexLocker locker(&mutex);
    group = processId();
    if (killed && group > 0)
        ::kill(-pid_t(group), SIGKILL);
}
