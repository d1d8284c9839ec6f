// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "sampleimage.h"

#include "toolenvironment.h"
#include "tourfailure.h"
#include "util.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QRandomGenerator>

namespace
{

constexpr int megabyte = 1 << 20;
constexpr int toolMs = 60000;

const char* const documents[] = {
    "Documents/Résumé.txt",
    "Documents/Übersicht 2026.html",
    "Documents/Letters/Dear Łucja.txt",
    "Documents/Letters/Привет.txt",
    "Pictures/Sunset over Öresund.jpg",
    "Pictures/富士山.png",
    "Read me first.txt",
    "Videos/Summer/List of scenes.txt",
    "Videos/Summer/Été à la mer.srt",
    "setup.exe",
};

// Short names in the folder that is photographed: its column is narrow.
const char* const largeFiles[] = {
    "Videos/Fog.mp4", "Videos/Summer/Day 1.mp4", "Videos/Summer/Day 2.mp4",
    "Videos/Zoë.mkv", "Videos/京都.mp4",
};

void makeFile(const QString& path, int bytes, QRandomGenerator& random)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QByteArray content(bytes, '\0');
    random.generate(reinterpret_cast<quint32*>(content.data()),
                    reinterpret_cast<quint32*>(content.data() + bytes));
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(content) == bytes,
            "Cannot be written: " + path);
}

} // namespace

SampleImage makeSampleImage(const QString& home)
{
    const SampleImage sample{home + "/Documents/Holiday", home + "/Documents/Holiday 2026.iso"};
    // The same bytes in every tour.
    QRandomGenerator random(2026);
    int bytes = 4 * 1000;
    for (const char* const name : documents)
        makeFile(sample.source + '/' + name, bytes += 4 * 3217, random);
    bytes = 30 * megabyte;
    for (const char* const name : largeFiles)
        makeFile(sample.source + '/' + name, bytes += 5 * megabyte, random);

    QProcess tool;
    tool.setProcessEnvironment(toolEnvironment());
    tool.start(Util::GetCurrentExePath() + "/cdrtools/mkisofs",
               {"-quiet", "-R", "-J", "-V", "HOLIDAY_2026", "-o", sample.path, sample.source});
    require(tool.waitForFinished(toolMs) && tool.exitStatus() == QProcess::NormalExit &&
                tool.exitCode() == 0,
            "mkisofs did not make the image: " + QString::fromUtf8(tool.readAllStandardError()));
    return sample;
}

QMap<QString, QString> hashesOf(const QString& folder)
{
    QMap<QString, QString> hashes;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        QCryptographicHash hash(QCryptographicHash::Sha256);
        require(file.open(QIODevice::ReadOnly) && hash.addData(&file),
                "Cannot be read: " + file.fileName());
        hashes.insert(QDir(folder).relativeFilePath(file.fileName()),
                      QString::fromLatin1(hash.result().toHex()));
    }
    return hashes;
}
