// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// The worker's side of the runner: everything here runs on the worker thread.

#include "cprocess.h"
#include "cruncommandthread.h"
#include "deliverypacer.h"
#include "toolenvironment.h"
#include "toollimits.h"
#include "util.h"

#include <QCoreApplication>
#include <QDebug>
#include <QElapsedTimer>

void CRunCommandThread::run()
{
    QThread* const home = pacer->thread();
    do {
        runTool();
    } while (isBegunAgain());
    // Whoever deletes the runner does so in its home thread, never in the worker itself.
    moveToThread(home);
}

void CRunCommandThread::runTool()
{
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
}

void CRunCommandThread::startProcess(CProcess& child)
{
    if (isStopped())
        return;
    if (!args.isEmpty()) {
        child.start(cmd, args, QIODevice::ReadWrite);
    } else if (useOsascript) {
        child.start(scriptRunner, {"-l", "AppleScript"}, QIODevice::ReadWrite);
        // The script goes through standard input, so that it appears in no list of processes.
        child.write(cmd.toUtf8());
    } else {
        QStringList words = QProcess::splitCommand(cmd);
        const QString program = words.isEmpty() ? QString() : words.takeFirst();
        child.start(program, words, QIODevice::ReadWrite);
    }
    // Nobody is there to answer a tool that asks.
    child.closeWriteChannel();
}

void CRunCommandThread::logCommand() const
{
    QString line = cmd + ' ';
    for (const QString& argument : args)
        line += argument + ' ';
    Util::WriteLog(line);
}

// One piece of news of the tool at a time: to wait for its end alone would mean to look at nothing
// else for as long as it floods.
void CRunCommandThread::waitForEnd(CProcess& child)
{
    while (!isStopped() && child.state() != QProcess::NotRunning) {
        QCoreApplication::processEvents();
        if (killRequested.exchange(false))
            child.killGroup();
        outputArrived = false;
        child.waitForReadyRead(toolLimits().stepMs);
        const bool hasPaused = !outputArrived && child.state() != QProcess::NotRunning;
        if (hasPaused && !collectOutput && !wholeLines && !isStopped())
            readPieces(child, Unfinished::Take);
    }
    if (!collectOutput && !isStopped())
        readPieces(child, Unfinished::TakeAll);
}

// Off the window's thread, so that a tool which ignores the request costs the user nothing.
void CRunCommandThread::endStopped(CProcess& child)
{
    process = nullptr;
    QCoreApplication::processEvents();
    QElapsedTimer asked;
    asked.start();
    while (child.state() != QProcess::NotRunning && asked.elapsed() < toolLimits().politeStopMs) {
        child.waitForReadyRead(qMin(toolLimits().stepMs.load(), toolLimits().politeStopMs.load()));
        child.readAll(); // must not pile up
    }
    child.killGroup();
    if (child.state() != QProcess::NotRunning && !child.waitForFinished(toolLimits().killedMs)) {
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
