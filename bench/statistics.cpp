// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "statistics.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>
#include <unistd.h>

namespace
{

// Of all processors since the machine was started.
double stolenMilliseconds()
{
    QFile file("/proc/stat");
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    // cpu user nice system idle iowait irq softirq steal …
    const QList<QByteArray> fields = file.readLine().simplified().split(' ');
    return fields.value(8).toDouble() * 1000 / double(::sysconf(_SC_CLK_TCK));
}

} // namespace

double Samples::median() const
{
    if (values.empty())
        return 0;
    std::vector<double> sorted = values;
    std::sort(sorted.begin(), sorted.end());
    const std::size_t middle = sorted.size() / 2;
    return sorted.size() % 2 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
}

double Samples::smallest() const
{
    return values.empty() ? 0 : *std::min_element(values.begin(), values.end());
}

double Samples::largest() const
{
    return values.empty() ? 0 : *std::max_element(values.begin(), values.end());
}

double milliseconds(const std::function<void()>& function)
{
    QElapsedTimer timer;
    timer.start();
    function();
    return double(timer.nsecsElapsed()) / 1e6;
}

double processorMilliseconds()
{
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    const auto milli = [](const timeval& time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    return milli(usage.ru_utime) + milli(usage.ru_stime);
}

double shareTakenByOthers(const std::function<void()>& function)
{
    const double before = stolenMilliseconds();
    const double time = milliseconds(function);
    return (stolenMilliseconds() - before) / time / QThread::idealThreadCount();
}

void printTitle(const QString& title)
{
    std::printf("\n%s\n%s\n", qPrintable(title), qPrintable(QString(title.size(), '-')));
}

void printSamples(const QString& name, const Samples& samples, const QString& unit,
                  const Samples* reference)
{
    QString ratio;
    if (reference && reference->median() > 0)
        ratio = QString("   x %1").arg(samples.median() / reference->median(), 0, 'f', 2);
    std::printf("%-50s %10.1f %-7s (%.1f .. %.1f)%s\n", qPrintable(name), samples.median(),
                qPrintable(unit), samples.smallest(), samples.largest(), qPrintable(ratio));
    std::fflush(stdout);
}

void giveUp(const QString& reason)
{
    std::fprintf(stderr, "%s\n", qPrintable(reason));
    std::exit(EXIT_FAILURE);
}
