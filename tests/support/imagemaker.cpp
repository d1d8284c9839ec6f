// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagemaker.h"

#include "testfiles.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDirIterator>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRandomGenerator>

namespace
{

QByteArray outputOf(const QString& tool, const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C.UTF-8");
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationDirPath() + tool, arguments);
    if (!process.waitForFinished(120000) || process.exitCode() != 0)
        qFatal("%s: %s", qPrintable(tool), process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

} // namespace

void makeImage(const QString& folder, const QString& imagePath, const QStringList& options)
{
    outputOf("/cdrtools/mkisofs",
             QStringList({"-quiet", "-R"}) + options + QStringList({"-o", imagePath, folder}));
}

QByteArray extractedFile(const QString& imagePath, const QString& entryPath)
{
    return outputOf("/7z/7z", {"e", "-so", imagePath, entryPath});
}

void writeRandomFile(const QString& path, qint64 bytes, quint32 seed)
{
    QRandomGenerator generator(seed);
    QByteArray content(int(bytes), Qt::Uninitialized);
    generator.fillRange(reinterpret_cast<quint32*>(content.data()), content.size() / 4);
    writeFile(path, content);
}

QStringList technicalListing(const QString& imagePath)
{
    const QByteArray output = outputOf("/7z/7z", {"l", "-slt", imagePath});
    const QByteArray entries = output.mid(output.indexOf("\n----------\n"));
    QStringList paths;
    for (const QByteArray& line : entries.split('\n')) {
        if (line.startsWith("Path = "))
            paths.append(QString::fromUtf8(line.mid(7)));
    }
    paths.sort();
    return paths;
}

QMap<QString, QByteArray> hashesBelow(const QString& folder)
{
    QMap<QString, QByteArray> hashes;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const bool isFile = entries.fileInfo().isFile();
        hashes.insert(QDir(folder).relativeFilePath(path),
                      isFile ? QCryptographicHash::hash(readFile(path), QCryptographicHash::Sha256)
                             : QByteArray());
    }
    return hashes;
}

void extractImage(const QString& imagePath, const QString& folder)
{
    outputOf("/7z/7z", {"x", "-y", "-bd", "-o" + folder, imagePath});
}
