// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "fatimage.h"

#include "testfiles.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>

namespace
{

constexpr int bytesPerSector = 512;

} // namespace

QByteArray runOrStop(const QString& program, const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", environment.value("PATH") + ":/usr/sbin:/sbin");
    environment.insert("LC_ALL", "C.UTF-8");
    process.setProcessEnvironment(environment);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", path + ":/usr/sbin:/sbin");
    process.start(program, arguments);
    const bool ended = process.waitForFinished(120000);
    qputenv("PATH", path);
    if (!ended || process.exitCode() != 0)
        qFatal("%s %s: %s %s", qPrintable(program), qPrintable(arguments.join(' ')),
               qPrintable(process.errorString()), process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

FatImage::FatImage(int fatBits, int sectorsPerCluster, int megabytes)
    : clusterSize(sectorsPerCluster * bytesPerSector)
{
    writeFile(path(), {});
    if (!QFile::resize(path(), megabytes * 1024LL * 1024))
        qFatal("The image cannot be made");
    runOrStop("mkfs.vfat", {"-F", QString::number(fatBits), "-s",
                            QString::number(sectorsPerCluster), "-h", "2048", path()});
}

QByteArray FatImage::content() const
{
    return readFile(path());
}

QByteArray FatImage::sector(qint64 number) const
{
    QFile image(path());
    if (!image.open(QIODevice::ReadOnly) || !image.seek(number * bytesPerSector))
        qFatal("The image cannot be read");
    return image.read(bytesPerSector);
}

void FatImage::put(const QString& name, const QByteArray& bytes) const
{
    writeFile(folder.filePath("files/" + name), bytes);
    runOrStop("mcopy", {"-o", "-i", path(), folder.filePath("files/" + name), "::" + name});
}

QByteArray FatImage::file(const QString& name) const
{
    return runOrStop("mtype", {"-i", path(), "::" + name});
}

void FatImage::remove(const QStringList& names) const
{
    QStringList arguments{"-i", path()};
    for (const QString& name : names)
        arguments << "::" + name;
    runOrStop("mdel", arguments);
}

qint64 FatImage::freeBytes() const
{
    const QString listing = runOrStop("mdir", {"-a", "-i", path(), "::"});
    const QRegularExpression line("([0-9 ]+) bytes free");
    return line.match(listing).captured(1).remove(' ').toLongLong();
}

void FatImage::scatterFreeSpace(int freeClusters) const
{
    QStringList files;
    QStringList everyOther;
    for (int number = 0; number < 2 * freeClusters; ++number) {
        const QString name = QStringLiteral("f%1").arg(number);
        files << folder.filePath(name);
        writeFile(files.last(), QByteArray(clusterSize, 'f'));
        if (number % 2 == 0)
            everyOther << "gaps/" + name;
    }
    runOrStop("mmd", {"-i", path(), "::gaps"});
    runOrStop("mcopy", QStringList{"-i", path()} + files + QStringList{"::gaps"});
    // All else is taken, so that new files have to go into the gaps.
    put("gaps/rest", QByteArray(static_cast<int>(freeBytes()), 'r'));
    remove(everyOther);
}

void FatImage::installLoader() const
{
    runOrStop("syslinux", {"--install", path()});
}

LoaderSample::LoaderSample()
{
    const FatImage image(16, 4, 20);
    image.installLoader();
    file = image.file("ldlinux.sys");
    module = image.file("ldlinux.c32");
    bootSector = image.sector(0);
}
