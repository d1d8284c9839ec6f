// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "album.h"

#include "tourfailure.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace
{

const char* const resultsFile = "results.txt";
// The strongest compression of a format without losses.
constexpr int smallest = 0;

} // namespace

Album::Album(const QString& newFolder)
    : folder(QDir(newFolder).absolutePath())
{
    require(QDir().mkpath(folder), "The folder cannot be made: " + folder);
    for (const QString& old : QDir(folder).entryList({"[0-9][0-9]-*.png", resultsFile}))
        require(QFile::remove(pathOf(old)), "An earlier tour's file stays: " + pathOf(old));
}

void Album::add(const QString& name, const QImage& picture, const QString& done,
                const QStringList& outcome)
{
    const QString file = QString("%1-%2.png").arg(steps + 1, 2, 10, QChar('0')).arg(name);
    require(picture.save(pathOf(file), "PNG", smallest), "Cannot be written: " + pathOf(file));
    pictures.append(file);
    write(done, outcome + QStringList{"picture: " + file});
}

void Album::note(const QString& done, const QStringList& outcome)
{
    write(done, outcome);
}

void Album::write(const QString& heading, const QStringList& lines)
{
    ++steps;
    QFile results(pathOf(resultsFile));
    require(results.open(QIODevice::WriteOnly | QIODevice::Append),
            "Cannot be written: " + results.fileName());
    QString text = QString("%1  %2\n").arg(steps, 2, 10, QChar('0')).arg(heading);
    for (const QString& line : lines)
        text += "    " + line + '\n';
    const QByteArray bytes = text.toUtf8();
    require(results.write(bytes) == bytes.size(), "Cannot be written: " + results.fileName());
}

void Album::copyPicture(const QString& name, const QString& destination) const
{
    const QStringList found = pictures.filter(QRegularExpression("^\\d\\d-" + name + "\\.png$"));
    require(found.size() == 1, "No step has a picture called " + name);
    QFile::remove(destination);
    require(QFile::copy(pathOf(found.first()), destination), "Cannot be written: " + destination);
}

QString Album::pathOf(const QString& file) const
{
    return folder + '/' + file;
}
