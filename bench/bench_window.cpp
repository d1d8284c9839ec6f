// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "baretool.h"
#include "bench.h"
#include "benchimage.h"
#include "benchpage.h"
#include "languages.h"
#include "mainwindow.h"
#include "processcounts.h"
#include "startup.h"
#include "statistics.h"
#include "util.h"

#include <QApplication>
#include <QTimer>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>

namespace
{

constexpr int runs = 9;
constexpr int fills = 9;

// Ends the process when the window has been painted for the first time.
class FirstPaint : public QObject
{
protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        // The picture reaches the screen after the event.
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, qApp, SLOT(quit()));
        return false;
    }
};

Samples startsOf(const QString& mode)
{
    Samples times;
    for (int run = 0; run < runs; ++run)
        times.add(milliseconds([&] { runBare(QCoreApplication::applicationFilePath(), {mode}); }));
    return times;
}

// Fills the table over and over with the same folder.
Samples tableFills(const QString& image)
{
    BenchPage window;
    window.show();
    window.load(image);
    window.enterFirstFolder();
    Samples times;
    for (int fill = 0; fill < fills; ++fill) {
        times.add(milliseconds([&] {
            window.RefreshTable();
            QCoreApplication::processEvents();
        }));
    }
    if (window.rows() != 10000)
        giveUp("The table has not been filled.");
    return times;
}

} // namespace

int firstPaint(int argc, char* argv[], bool withMainWindow)
{
    prepareProcess();
    QApplication application(argc, argv);
    FirstPaint filter;
    if (!withMainWindow) {
        QWidget window;
        window.installEventFilter(&filter);
        window.show();
        return QApplication::exec();
    }
    setApplicationLook();
    QTranslator translator;
    loadTranslationOf(QLocale(), translator);
    QCoreApplication::installTranslator(&translator);
    MainWindow window(nullptr);
    window.installEventFilter(&filter);
    window.show();
    return QApplication::exec();
}

int memoryOfImage(int argc, char* argv[])
{
    prepareProcess();
    const QApplication application(argc, argv);
    setApplicationLook();
    BenchPage window;
    window.show();
    QCoreApplication::processEvents();
    const qint64 before = residentKilobytes();
    window.load(QCoreApplication::arguments().last());
    std::printf("%lld %lld\n", before, residentKilobytes());
    return EXIT_SUCCESS;
}

void benchWindow(const QString& folder)
{
    printTitle("Window");
    const Samples bare = startsOf("--first-paint-of-an-empty-window");
    printSamples("Process start to end, empty window painted", bare, "ms");
    const Samples start = startsOf("--first-paint");
    printSamples("Process start to end, main window painted", start, "ms", &bare);
    printSamples("Table of 10,000 rows filled and painted",
                 tableFills(makeImageOfNames(folder, 1, 10000)), "ms");

    // Its last line; whatever the toolkit has to say comes before it.
    const QList<QByteArray> memory = runBare(QCoreApplication::applicationFilePath(),
                                             {"--memory", makeImageOfNames(folder, 500, 100)})
                                         .simplified()
                                         .split(' ');
    Samples before;
    before.add(memory.value(memory.size() - 2).toDouble() / 1024);
    Samples after;
    after.add(memory.last().toDouble() / 1024);
    printSamples("Resident memory, Extract page empty", before, "MB");
    printSamples("Resident memory, 50,000 entries loaded", after, "MB");
}
