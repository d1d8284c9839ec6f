// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// The worker's side of the runner: everything here runs on the worker thread.

#include "cprocess.h"
#include "cruncommandthread.h"
#include "deliverypacer.h"
#include "toolenvironment.h"
#include "util.h"

#include <QCoreApplication>
#include <QDebug>

namespace
{

constexpr int pollMs = 300;
// How long a tool that was asked to stop may take before it is killed, and how long its end is
// then waited for.
constexpr int politeStopMs = 500;
constexpr int killedMs = 1000;

} // namespace

void CRunCommandThread::run()
{
    QThread* const home = pacer->thread();
    OnTerminateProcess();
    CProcess* const child = new CProcess(this);
    process = child;
    pacer->reset();
    connect(this, SIGNAL(terminateprocess()), child, SLOT(OnTerminate()));
    connect(child, SIGNAL(finished(int)), this, SLOT(onFinished(int)));
    child->setProcessEnvironment(toolEnvironment());
    child->setReadChannel(QProcess::StandardOutput);
    child->setProcessChannelMode(QProcess::MergedChannels);
    if (!collectOutput) {
        connect(child, SIGNAL(readyReadStandardOutput()), this, SLOT(onReadOutput()));
        connect(child, SIGNAL(errorOccurred(QProcess::ProcessError)), this,
                SLOT(sloterrorstart(QProcess::ProcessError)));
    }
    startProcess(*child);
    qDebug() << "CRunCommandThread run" << cmd << args;
    started = true;
    logCommand();
    waitForEnd(*child);

    Ending none = Ending::None;
    if (ending.compare_exchange_strong(none, Ending::Finished)) {
        if (collectOutput)
            collectLines(*child);
        running = false;
        process = nullptr;
        emit sigfinished();
    } else {
        endStopped(*child);
    }
    started = false;
    // Whoever deletes the runner does so in its home thread, never in the worker itself.
    moveToThread(home);
}

void CRunCommandThread::startProcess(CProcess& child)
{
    if (isStopped())
        return;
    if (!args.isEmpty()) {
        child.start(cmd, args, QIODevice::ReadWrite);
    } else if (useOsascript) {
        startOsascript(child);
    } else {
        QStringList words = QProcess::splitCommand(cmd);
        const QString program = words.isEmpty() ? QString() : words.takeFirst();
        child.start(program, words, QIODevice::ReadWrite);
    }
}

// The script goes through standard input, so that it appears in no list of processes.
void CRunCommandThread::startOsascript(CProcess& child)
{
    child.start("/usr/bin/osascript", {"-l", "AppleScript"}, QIODevice::ReadWrite);
    child.write(cmd.toUtf8());
    child.closeWriteChannel();
}

void CRunCommandThread::logCommand() const
{
    QString line = cmd + ' ';
    for (const QString& argument : args)
        line += argument + ' ';
    Util::WriteLog(line);
}

void CRunCommandThread::waitForEnd(CProcess& child)
{
    while (!isStopped() && child.state() != QProcess::NotRunning) {
        QCoreApplication::processEvents();
        if (killRequested.exchange(false))
            OnTerminateProcess();
        outputArrived = false;
        if (child.waitForFinished(pollMs))
            break;
        if (!outputArrived && !collectOutput && !isStopped())
            readPieces(child, Unfinished::Take);
    }
    if (!collectOutput && !isStopped())
        readPieces(child, Unfinished::Take);
}

// Off the window's thread, so that a tool which ignores the request costs the user nothing.
void CRunCommandThread::endStopped(CProcess& child)
{
    process = nullptr;
    child.closeReadChannel(QProcess::StandardOutput);
    QCoreApplication::processEvents();
    if (child.state() != QProcess::NotRunning)
        child.waitForFinished(politeStopMs);
    child.killGroup();
    if (child.state() != QProcess::NotRunning && !child.waitForFinished(killedMs)) {
        // The system holds on to it. Deleting the process object would wait for half a minute.
        qDebug() << "CRunCommandThread: the tool survived its kill" << cmd;
        child.setParent(nullptr);
    }
}

void CRunCommandThread::collectLines(CProcess& child)
{
    QString text = QString::fromLatin1(child.readAll().constData());
    text.remove('\r');
    outputLines = text.split('\n');
}
