// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cruncommandthread.h"

#include "cprocess.h"
#include "deliverypacer.h"
#include "util.h"

#include <QCoreApplication>
#include <QDebug>
#include <QSettings>
#include <QTimer>

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
    if (isRunning())
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
    running = true;
    if (isBegun())
        return;
    // The worker of the last run has nothing left to do but to leave.
    wait();
    // After a run the runner is back in the thread that made it.
    if (thread() == QThread::currentThread())
        moveToThread(this);
    QThread::start(priority);
}

// Whether there is a worker that has the run in hand. A worker that still deals with the end of the
// last one goes on to the next; to wait here until it has left would be to wait for ever when it is
// the worker itself that calls, or when the worker waits for the caller.
bool CRunCommandThread::isBegun()
{
    const QMutexLocker locker(&requests);
    if (isWantedAgain || (isWorking && ending == Ending::None))
        return true;
    killRequested = false;
    isWantedAgain = isWorking;
    if (!isWorking)
        ending = Ending::None;
    isWorking = true;
    return isWantedAgain;
}

// Worker thread, at the end of a run. When there is no other, no start() reaches this worker again.
bool CRunCommandThread::isBegunAgain()
{
    const QMutexLocker locker(&requests);
    isWorking = isWantedAgain;
    if (isWantedAgain)
        ending = Ending::None;
    isWantedAgain = false;
    return isWorking;
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
    {
        const QMutexLocker locker(&requests);
        Ending none = Ending::None;
        // A run that has been asked for and not begun just does not take place.
        if (!ending.compare_exchange_strong(none, Ending::Stopped) && !isWantedAgain)
            return;
        isWantedAgain = false;
    }
    emit terminateprocess();
    started = false;
}

bool CRunCommandThread::isStopped() const
{
    return ending == Ending::Stopped;
}

void CRunCommandThread::deleteLater()
{
    if (thread() != this || isRunning()) {
        QThread::deleteLater();
        return;
    }
    // In vain when somebody else deletes the runner before.
    QTimer::singleShot(0, pacer.get(), [this] { delete this; });
}

// From any thread, so that a worker which is up to its neck in output need not listen for it.
void CRunCommandThread::OnTerminateProcess()
{
    qDebug() << "CRunCommandThread::OnTerminateProcess is called" << process.load();
    // The worker looks at this when the process is only just about to be.
    if (QThread::currentThread() != this)
        killRequested = true;
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
