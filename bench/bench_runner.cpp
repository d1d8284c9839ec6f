// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "baretool.h"
#include "bench.h"
#include "cruncommandthread.h"
#include "receiver.h"
#include "statistics.h"

#include <QCoreApplication>
#include <QDir>

namespace
{

constexpr int runs = 5;
constexpr int lines = 1000000;

// The stand-in tool, told to write the lines.
QString makeTool(const QString& folder)
{
    const QString tool = folder + "/tool";
    QFile::remove(tool);
    if (!QFile::link(KORVEX_SCRIPTED_TOOL, tool))
        giveUp("Cannot be made: " + tool);
    QFile script(tool + ".script");
    if (!script.open(QIODevice::WriteOnly))
        giveUp("Cannot be written: " + script.fileName());
    // As long as a line of a listing.
    script.write(QString("lines %1 %2\n").arg(lines).arg(QString(85, 'x')).toUtf8());
    return tool;
}

void runThroughRunner(const QString& tool)
{
    int received = 0;
    bool finished = false;
    Receiver onLine([&] { ++received; });
    Receiver onFinished([&] { finished = true; });
    CRunCommandThread runner;
    QObject::connect(&runner, SIGNAL(standoutputline(QString)), &onLine, SLOT(call()));
    QObject::connect(&runner, SIGNAL(sigfinished()), &onFinished, SLOT(call()));
    runner.SetRunCmd(tool, {"lines"});
    runner.start();
    while (!finished)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    runner.wait();
    if (received != lines)
        giveUp(QString("%1 of %2 lines have arrived").arg(received).arg(lines));
}

} // namespace

void benchRunner(const QString& folder)
{
    printTitle("Runner, 1,000,000 lines of 92 bytes");
    const QString tool = makeTool(folder);
    Samples bare;
    Samples runner;
    Samples rate;
    Samples processor;
    for (int run = 0; run < runs; ++run) {
        bare.add(milliseconds([&] { runBare(tool, {"lines"}); }));
        const double before = processorMilliseconds();
        const double time = milliseconds([&] { runThroughRunner(tool); });
        processor.add(processorMilliseconds() - before);
        runner.add(time);
        rate.add(lines / time);
    }
    printSamples("The tool into a pipe", bare, "ms");
    printSamples("The tool through the runner", runner, "ms", &bare);
    printSamples("  lines per millisecond", rate, "");
    printSamples("  processor time of the program", processor, "ms");
}
