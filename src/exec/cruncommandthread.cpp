// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cruncommandthread.h"

#include "cprocess.h"
#include "deliverypacer.h"
#include "util.h"

#include <QCoreApplication>
#include <QDebug>
#include <QSettings>

namespace
{

constexpr unsigned long guiPollMs = 10;
// A worker leaves within two seconds of a stop; one that needs longer hangs in the system.
constexpr unsigned long stuckWorkerMs = 10000;

QString readLocalCodePage()
{
    const QSettings settings(Util::GetCurrentExePath() + "/ISOMAKER.ini", QSettings::IniFormat);
    return settings.value("LOCALCP", QString()).toString();
}

} // namespace

CRunCommandThread::CRunCommandThread(QObject* parent)
    : QThread(parent)
    , localCodePage(readLocalCodePage())
    , pacer(std::make_unique<DeliveryPacer>())
{
}

CRunCommandThread::~CRunCommandThread()
{
    if (isRunning() && ending == Ending::None)
        terminate();
    if (!wait(stuckWorkerMs)) {
        QThread::terminate();
        wait();
    }
}

void CRunCommandThread::SetRunCmd(QString newCmd, QStringList newArgs)
{
    cmd = newCmd;
    args = newArgs;
    moveToThread(this);
}

void CRunCommandThread::SetNeedRealOutput(bool need)
{
    needRealOutput = need;
}

void CRunCommandThread::start(QThread::Priority priority)
{
    // A stopped run may still be on its way out.
    if (ending == Ending::Stopped)
        wait();
    // After a run the runner is back in the thread that made it.
    if (thread() == QThread::currentThread())
        moveToThread(this);
    ending = Ending::None;
    killRequested = false;
    running = true;
    QThread::start(priority);
}

void CRunCommandThread::waitFinished()
{
    while (running) {
        QCoreApplication::processEvents();
        QThread::msleep(guiPollMs);
    }
    // What the tool printed last may still be on its way.
    QCoreApplication::processEvents();
}

void CRunCommandThread::terminate()
{
    qDebug() << "CRunCommandThread::terminate is called" << cmd;
    Ending none = Ending::None;
    if (!ending.compare_exchange_strong(none, Ending::Stopped))
        return;
    emit terminateprocess();
    started = false;
}

bool CRunCommandThread::isStopped() const
{
    return ending == Ending::Stopped;
}

void CRunCommandThread::OnTerminateProcess()
{
    qDebug() << "CRunCommandThread::OnTerminateProcess is called" << process.load();
    // The process belongs to the worker, which looks at this request at its next step.
    if (isRunning() && QThread::currentThread() != this) {
        killRequested = true;
        return;
    }
    if (CProcess* const current = process.exchange(nullptr))
        current->killGroup();
}

void CRunCommandThread::sloterrorstart(QProcess::ProcessError error)
{
    qDebug() << "CRunCommandThread::sloterrorstart" << error << cmd;
    Util::WriteLog("CRunCommandThread::sloterrorstart");
}

void CRunCommandThread::onFinished(int)
{
    process = nullptr;
}
