// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "baretool.h"
#include "bench.h"
#include "benchdialogs.h"
#include "benchimage.h"
#include "cpage3.h"
#include "mkisofscommand.h"
#include "statistics.h"
#include "util.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

#include <algorithm>
#include <unistd.h>

namespace
{

constexpr int runs = 11;
constexpr int pulseMs = 1;

// The Create page, without clicks.
class BenchCreate
{
public:
    void add(const QString& path)
    {
        dialogs.setPath(path);
        page.OnAddDir();
    }
    void waitUntilStaged()
    {
        while (page.stagingQueue().HasTasks())
            QCoreApplication::processEvents();
    }
    // From the progress dialog to the message. Milliseconds.
    double create(const QString& image)
    {
        dialogs.setPath(image);
        page.OnCreate();
        return dialogs.waitForMessage();
    }

    CPage3 page{nullptr};

private:
    BenchDialogs dialogs;
};

// Notes how long the event loop was away between two pulses.
class Pulse : public QTimer
{
public:
    Pulse()
    {
        setTimerType(Qt::PreciseTimer);
        callOnTimeout([this] {
            longest = std::max(longest, double(clock.nsecsElapsed()) / 1e6);
            clock.start();
        });
        clock.start();
        start(pulseMs);
    }
    double longestMs() const { return longest; }

private:
    QElapsedTimer clock;
    double longest = 0;
};

void removeImage(const QString& image)
{
    QFile::remove(image);
    ::sync();
}

void measureAuthoring(const QString& folder)
{
    printTitle("Create, 200 files of 5 MB, all staged");
    const QString image = folder + "/new.iso";
    BenchCreate create;
    create.add(makeTree(folder, 10, 20, 5 << 20));
    create.waitUntilStaged();
    Samples bare;
    Samples page;
    Samples processor;
    for (int run = 0; run < runs; ++run) {
        removeImage(image);
        bare.add(milliseconds([&] {
            runBare(mkisofsProgram(),
                    mkisofsCreateArguments(BackupType::Joliet, image, Util::GetTempDir() + "/tmp"));
        }));
        const qint64 size = QFileInfo(image).size();
        removeImage(image);
        const double before = processorMilliseconds();
        page.add(create.create(image));
        processor.add(processorMilliseconds() - before);
        if (QFileInfo(image).size() != size)
            giveUp("The image is not complete: " + image);
    }
    removeImage(image);
    printSamples("mkisofs, its output into a pipe", bare, "ms");
    printSamples("Create ISO, until the success message", page, "ms", &bare);
    printSamples("  processor time of the program", processor, "ms");
}

void measureFreeze(const QString& folder)
{
    printTitle("Create ISO at once after adding 50,000 files in 500 folders");
    BenchCreate create;
    Samples adding;
    adding.add(milliseconds([&] { create.add(makeTree(folder, 500, 100, 100)); }));
    const Pulse pulse;
    Samples whole;
    whole.add(create.create(folder + "/new.iso"));
    Samples freeze;
    freeze.add(pulse.longestMs());
    removeImage(folder + "/new.iso");
    printSamples("Adding the folder: tree, rows and icons", adding, "ms");
    printSamples("Copy wait and authoring", whole, "ms");
    printSamples("  longest absence of the event loop", freeze, "ms");
}

} // namespace

void benchCreate(const QString& folder)
{
    measureAuthoring(folder);
    measureFreeze(folder);
}
