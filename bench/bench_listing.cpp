// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "baretool.h"
#include "bench.h"
#include "benchimage.h"
#include "benchpage.h"
#include "cruncommandthread.h"
#include "listingreader.h"
#include "sevenzipcommand.h"
#include "statistics.h"

#include <QEventLoop>

namespace
{

constexpr int runs = 7;

// The runner alone: it reads and sends, nobody listens. The events go on, since it waits for them.
double readOnly(const QString& image)
{
    return milliseconds([&] {
        QEventLoop events;
        CRunCommandThread runner;
        QObject::connect(&runner, SIGNAL(sigfinished()), &events, SLOT(quit()));
        runner.SetRunCmd(sevenZipProgram(), sevenZipListArguments(image));
        runner.start();
        events.exec();
    });
}

// The reader and the tree alone, on lines that are there already.
double readLinesOnly(const QByteArray& listing)
{
    const QStringList lines = QString::fromUtf8(listing).split('\n');
    return milliseconds([&] {
        ListingReader reader;
        CTree tree;
        Item entry;
        for (const QString& line : lines) {
            if (reader.read(line, entry) == ListingReader::Line::Entry)
                tree.AddItem(entry);
        }
    });
}

void measure(const QString& image)
{
    Samples bare;
    Samples page;
    Samples runner;
    Samples tree;
    Samples views;
    Samples processor;
    BenchPage window;
    window.show();
    const QByteArray listing = runBare(sevenZipProgram(), sevenZipListArguments(image));
    for (int run = 0; run < runs; ++run) {
        bare.add(milliseconds([&] { runBare(sevenZipProgram(), sevenZipListArguments(image)); }));
        const double before = processorMilliseconds();
        page.add(window.load(image));
        processor.add(processorMilliseconds() - before);
        views.add(window.viewTime());
        runner.add(readOnly(image));
        tree.add(readLinesOnly(listing));
    }
    printSamples("7z l into a pipe", bare, "ms");
    printSamples("Load ISO until browsable", page, "ms", &bare);
    printSamples("  processor time of the program", processor, "ms", &bare);
    printSamples("  alone: runner, nobody listening", runner, "ms", &bare);
    printSamples("  alone: listing reader and tree", tree, "ms", &bare);
    printSamples("  of it: building the views", views, "ms", &bare);
}

} // namespace

void benchListing(const QString& folder)
{
    printTitle("Listing, 50,000 entries in 500 folders");
    measure(makeImageOfNames(folder, 500, 100));
    printTitle("Listing, 10,000 entries in one folder");
    measure(makeImageOfNames(folder, 1, 10000));
}
