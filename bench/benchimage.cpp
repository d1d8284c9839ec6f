// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "benchimage.h"

#include "baretool.h"
#include "statistics.h"
#include "util.h"

#include <QDir>
#include <QRandomGenerator>

namespace
{

constexpr int megabyte = 1 << 20;
constexpr int shortestName = 5;
constexpr int longestName = 120;

const char* const words[] = {"summer", "Überfahrt", "été", "光盘映像", "notes of a long day",
                             "Łódź",   "backup",    "v2",  "東京の秋", "final"};

// Begins with its number, so that names that are cut to the same length stay apart.
QString nameOf(int number, QRandomGenerator& random)
{
    QString name = QString("%1").arg(number, shortestName, 10, QChar('0'));
    const int length = random.bounded(shortestName, longestName + 1);
    while (name.size() < length)
        name += QString(" ") + words[random.bounded(int(std::size(words)))];
    return name.left(length).trimmed();
}

void makeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        giveUp("Cannot be written: " + path);
}

QByteArray randomBytes(int bytes)
{
    QRandomGenerator random(1);
    QByteArray content(bytes, '\0');
    auto* const begin = reinterpret_cast<quint32*>(content.data());
    random.generate(begin, begin + bytes / int(sizeof(quint32)));
    return content;
}

QString makeImage(const QString& source, const QString& image)
{
    runBare(Util::GetCurrentExePath() + "/cdrtools/mkisofs",
            {"-quiet", "-R", "-J", "-V", "BENCH", "-o", image, source});
    QDir(source).removeRecursively();
    return image;
}

} // namespace

QString makeImageOfNames(const QString& folder, int folders, int filesInEach)
{
    const QString image = QString("%1/names-%2x%3.iso").arg(folder).arg(folders).arg(filesInEach);
    if (QFile::exists(image))
        return image;
    QRandomGenerator random(1);
    const QString source = image + ".d";
    for (int i = 0; i < folders; ++i) {
        const QString inner = source + '/' + nameOf(i, random);
        QDir().mkpath(inner);
        for (int j = 0; j < filesInEach; ++j)
            makeFile(inner + '/' + nameOf(j, random), "x");
    }
    return makeImage(source, image);
}

QString makeTree(const QString& folder, int folders, int filesInEach, int bytes)
{
    const QString tree = QString("%1/tree-%2x%3").arg(folder).arg(folders).arg(filesInEach);
    if (QFile::exists(tree))
        return tree;
    const QByteArray content = randomBytes(bytes);
    for (int i = 0; i < folders; ++i) {
        const QString inner = QString("%1/folder %2").arg(tree).arg(i, 3, 10, QChar('0'));
        QDir().mkpath(inner);
        for (int j = 0; j < filesInEach; ++j)
            makeFile(QString("%1/file number %2.txt").arg(inner).arg(j, 3, 10, QChar('0')),
                     content);
    }
    return tree;
}

QString makeImageOfFiles(const QString& folder, int files, int megabytes)
{
    const QString image = QString("%1/files-%2x%3.iso").arg(folder).arg(files).arg(megabytes);
    if (QFile::exists(image))
        return image;
    QRandomGenerator random(1);
    const QString source = image + ".d";
    QDir().mkpath(source);
    QByteArray content(megabytes * megabyte, '\0');
    for (int i = 0; i < files; ++i) {
        auto* const begin = reinterpret_cast<quint32*>(content.data());
        random.generate(begin, begin + content.size() / int(sizeof(quint32)));
        makeFile(QString("%1/%2.bin").arg(source).arg(i, 2, 10, QChar('0')), content);
    }
    return makeImage(source, image);
}
