// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "followedprogram.h"

#include "toolenvironment.h"

#include <QProcess>

namespace
{

constexpr int keptLines = 50;

// Takes the finished lines out of what has been read.
QStringList takeLines(QByteArray& read)
{
    QStringList lines;
    read.replace('\r', '\n');
    for (int end; (end = read.indexOf('\n')) >= 0; read.remove(0, end + 1)) {
        const QString line = QString::fromUtf8(read.left(end)).trimmed();
        if (!line.isEmpty())
            lines << line;
    }
    return lines;
}

QString whyFailed(const QProcess& process, const QStringList& lines)
{
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return {};
    const QString reason = failureReason(lines);
    return reason.isEmpty()
               ? QString("%1 ended with code %2").arg(process.program()).arg(process.exitCode())
               : reason;
}

} // namespace

QString followProgram(const QString& program, const QStringList& arguments,
                      const std::function<void(const QString&)>& onLine, const QByteArray& input)
{
    QProcess process;
    process.setProcessEnvironment(toolEnvironment());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForStarted(-1))
        return program + ": " + process.errorString();
    process.write(input);
    process.closeWriteChannel();
    QByteArray read;
    QStringList last;
    bool isRunning = true;
    while (isRunning) {
        isRunning = process.waitForReadyRead(-1);
        read += process.readAll();
        if (!isRunning)
            read += '\n';
        const QStringList lines = takeLines(read);
        for (const QString& line : lines)
            onLine(line);
        last += lines;
        last = last.mid(qMax(0, last.size() - keptLines));
    }
    process.waitForFinished(-1);
    return whyFailed(process, last);
}

QString failureReason(const QStringList& lines)
{
    for (const QString& line : lines) {
        for (const char* const mark : {" FAILURE : ", " FATAL : ", " SORRY : "}) {
            const int at = line.indexOf(mark);
            if (at >= 0)
                return line.mid(at).remove(0, static_cast<int>(qstrlen(mark)));
        }
    }
    return lines.isEmpty() ? QString() : lines.last();
}
