// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "util.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QFile>

namespace {

bool isLogOn()
{
    return QFile::exists(Util::GetCurrentExePath() + "/config.dat");
}

} // namespace

void Util::WriteLog(QString text)
{
    WriteLogLines({text});
}

void Util::WriteLogLines(const QStringList& texts)
{
    if (texts.isEmpty() || !isLogOn())
        return;
    QFile log(GetTempDir() + "/log.txt");
    // Unbuffered, so that everything leaves in one append: lines of several threads never mix.
    if (!log.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered))
        return;
    const QString time = QT2String(QDateTime::currentDateTime());
    QString lines;
    for (const QString& text : texts)
        lines += time + ' ' + text + '\n';
    log.write(lines.toUtf8());
}

bool Util::WriteMulLinesToFile(QStringList lines, QString path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        qDebug() << "Open failed." << path;
        return false;
    }
    for (const QString& line : qAsConst(lines))
        file.write(line.toUtf8() + '\n');
    return true;
}
