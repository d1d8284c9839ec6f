// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

void writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Cannot write %s", qPrintable(path));
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList entriesOf(const QString& folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

QString writeScript(const QString& path, const QByteArray& body)
{
    writeFile(path, "#!/bin/sh\n" + body + '\n');
    QFile::setPermissions(path,
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadUser);
    return path;
}

LogSwitch::LogSwitch()
{
    QFile::remove(logPath());
    writeFile(switchPath(), {});
}

LogSwitch::~LogSwitch()
{
    QFile::remove(switchPath());
}

QString LogSwitch::switchPath()
{
    return QCoreApplication::applicationDirPath() + "/config.dat";
}

QString LogSwitch::logPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/log.txt";
}

QStringList LogSwitch::texts()
{
    static const QRegularExpression line("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d (.*)$");
    QStringList lines = QString::fromUtf8(readFile(logPath())).split('\n');
    if (!lines.takeLast().isEmpty())
        qFatal("The log does not end in a line end");
    for (QString& text : lines) {
        const QRegularExpressionMatch match = line.match(text);
        text = match.hasMatch() ? match.captured(1) : "without time: " + text;
    }
    return lines;
}
