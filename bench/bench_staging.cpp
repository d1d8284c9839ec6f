// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "baretool.h"
#include "bench.h"
#include "benchimage.h"
#include "cfilecopy.h"
#include "statistics.h"
#include "util.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QThread>

#include <unistd.h>

namespace
{

constexpr int runs = 3;
constexpr int blockBytes = 4096; // the copy's
constexpr int settleSeconds = 6;

enum class Cache
{
    Warm,
    Cold
};

// A new folder each time: a file system may avoid what was freed a moment ago, at great cost. What
// was written before is on the disk, so that no run pays for another's.
QString newDestination(const QString& folder, Cache cache)
{
    static int number = 0;
    const QString destination = folder + "/copies/" + QString::number(++number);
    QDir().mkpath(destination);
    ::sync();
    if (cache == Cache::Cold) {
        QFile drop("/proc/sys/vm/drop_caches");
        if (!drop.open(QIODevice::WriteOnly) || drop.write("3") != 1 || !drop.flush())
            giveUp("Only root can empty the system's caches.");
    }
    return destination;
}

// The same holds for what the next table creates.
void removeCopies(const QString& folder)
{
    QDir(folder + "/copies").removeRecursively();
    ::sync();
    QThread::sleep(settleSeconds);
}

double copyThroughQueue(const QString& source, const QString& destination)
{
    CFileCopy queue(nullptr);
    return milliseconds([&] {
        queue.AddTask(source, destination, CFileCopy::Copy);
        while (queue.HasTasks())
            QThread::usleep(200);
    });
}

void compare(const QString& title, const QString& source, const QString& folder, Cache cache)
{
    printTitle(title);
    const qint64 bytes = Util::DirSize(source);
    Samples bare;
    Samples queue;
    Samples processor;
    for (int run = 0; run < runs; ++run) {
        QString destination = newDestination(folder, cache);
        bare.add(milliseconds([&] { runBare("/bin/cp", {"-r", source, destination}); }));
        destination = newDestination(folder, cache);
        const double before = processorMilliseconds();
        queue.add(copyThroughQueue(source, destination));
        processor.add(processorMilliseconds() - before);
        if (Util::DirSize(destination) != bytes)
            giveUp("The copy is not complete: " + destination);
    }
    printSamples("cp -r", bare, "ms");
    printSamples("Copy queue", queue, "ms", &bare);
    printSamples("  processor time of the program", processor, "ms", &bare);
    removeCopies(folder);
}

// The two halves of the copy on their own, on the same files and in the same blocks.
void measureHalves(const QString& source, const QString& folder)
{
    char block[blockBytes];
    const QString destination = newDestination(folder, Cache::Warm);
    Samples walking;
    QStringList paths;
    walking.add(milliseconds([&] {
        QDirIterator files(source, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            paths.append(files.next());
    }));
    Samples reading;
    reading.add(milliseconds([&] {
        for (const QString& path : paths) {
            QFile file(path);
            file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
            while (file.read(block, blockBytes) > 0)
                ;
        }
    }));
    Samples writing;
    writing.add(milliseconds([&] {
        for (int i = 0; i < paths.size(); ++i) {
            QFile file(destination + '/' + QString::number(i));
            file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
            for (qint64 left = QFileInfo(paths.at(i)).size(); left > 0; left -= blockBytes)
                file.write(block, qMin<qint64>(left, blockBytes));
        }
    }));
    printSamples("  alone: walking the folders", walking, "ms");
    printSamples("  alone: reading in blocks of 4096 bytes", reading, "ms");
    printSamples("  alone: writing in blocks of 4096 bytes", writing, "ms");
    removeCopies(folder);
}

// The tasks wait behind one that is long in coming to its end.
void measurePolls(const QString& title, const QString& plug, const QStringList& sources,
                  const QString& folder)
{
    printTitle(title);
    const QString destination = newDestination(folder, Cache::Warm);
    CFileCopy queue(nullptr);
    queue.AddTask(plug, destination, CFileCopy::Copy);
    for (const QString& source : sources)
        queue.AddTask(source, destination, CFileCopy::Copy);
    Samples polls;
    qint64 bytes = 0;
    for (int poll = 0; poll < 5; ++poll)
        polls.add(milliseconds([&] { bytes = queue.GetLeftTaskBytes(); }));
    queue.stop();
    queue.wait();
    if (bytes <= 0)
        giveUp("Nothing was left to ask for.");
    printSamples("GetLeftTaskBytes()", polls, "ms");
    removeCopies(folder);
}

QStringList filesBelow(const QString& folder)
{
    QStringList paths;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(files.next());
    return paths;
}

} // namespace

void benchStaging(const QString& folder)
{
    const QString large = makeTree(folder, 10, 20, 5 << 20);
    const QString small = makeTree(folder, 500, 100, 100);
    compare("Staging, 200 files of 5 MB, warm", large, folder, Cache::Warm);
    measureHalves(large, folder);
    compare("Staging, 50,000 files of 100 bytes, warm", small, folder, Cache::Warm);
    measureHalves(small, folder);
    if (::geteuid() == 0) {
        compare("Staging, 200 files of 5 MB, cold", large, folder, Cache::Cold);
        compare("Staging, 50,000 files of 100 bytes, cold", small, folder, Cache::Cold);
    }
    measurePolls("50,000 files waiting, one folder", large, {small}, folder);
    measurePolls("50,000 files waiting, each added by itself", large, filesBelow(small), folder);
}
