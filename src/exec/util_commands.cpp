// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "callexternappt.h"
#include "callexternappwritetostdint.h"
#include "util.h"

#include <QEventLoop>

namespace
{

// Runs the worker while the caller's events go on.
void runToEnd(QThread& worker)
{
    QEventLoop loop;
    QObject::connect(&worker, SIGNAL(finished()), &loop, SLOT(quit()));
    worker.start(QThread::InheritPriority);
    loop.exec();
    // The loop leaves early when the application quits meanwhile; the worker must not be destroyed
    // while it runs.
    worker.wait();
}

} // namespace

QString Util::callexternapp(QString program, QString args)
{
    callexternappT worker(program, args);
    runToEnd(worker);
    return worker.output();
}

QString Util::callexternappWriteToStdin(QString program, QString args, QString input)
{
    callexternappWriteToStdinT worker(program, args, input);
    runToEnd(worker);
    return worker.output();
}
