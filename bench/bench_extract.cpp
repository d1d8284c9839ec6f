// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "baretool.h"
#include "bench.h"
#include "benchimage.h"
#include "benchpage.h"
#include "sevenzipcommand.h"
#include "statistics.h"

#include <QDir>

#include <unistd.h>

namespace
{

constexpr int runs = 5;
constexpr int files = 40;
constexpr int megabytes = 15;

// What the run before has written is gone and on the disk, so that no run pays for another's.
QString emptyFolder(const QString& folder)
{
    const QString output = folder + "/output";
    QDir(output).removeRecursively();
    QDir().mkpath(output);
    ::sync();
    return output;
}

void requireComplete(const QString& output)
{
    const QFileInfoList found = QDir(output).entryInfoList(QDir::Files);
    qint64 bytes = 0;
    for (const QFileInfo& file : found)
        bytes += file.size();
    if (found.size() != files || bytes != qint64(files) * megabytes * 1024 * 1024)
        giveUp("The extraction is not complete: " + output);
}

} // namespace

void benchExtract(const QString& folder)
{
    printTitle("Extraction, 40 files of 15 MB");
    const QString image = makeImageOfFiles(folder, files, megabytes);
    QStringList names;
    for (int i = 0; i < files; ++i)
        names.append(QString("%1.bin").arg(i, 2, 10, QChar('0')));
    BenchPage window;
    window.show();
    window.load(image);
    Samples bare;
    Samples page;
    Samples archiver;
    Samples processor;
    for (int run = 0; run < runs; ++run) {
        QString output = emptyFolder(folder);
        bare.add(milliseconds(
            [&] { runBare(sevenZipProgram(), sevenZipExtractArguments(image, output, names)); }));
        requireComplete(output);
        output = emptyFolder(folder);
        const double before = processorMilliseconds();
        page.add(window.extractAll(output));
        archiver.add(window.archiverTime());
        processor.add(processorMilliseconds() - before);
        requireComplete(output);
    }
    emptyFolder(folder);
    printSamples("7z x, its output into a pipe", bare, "ms");
    printSamples("Extract, until the success message", page, "ms", &bare);
    printSamples("  of it: until the archiver's end is known", archiver, "ms", &bare);
    printSamples("  processor time of the program", processor, "ms");
}
