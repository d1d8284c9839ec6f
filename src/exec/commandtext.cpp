// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "commandtext.h"

#include "toolenvironment.h"
#include "util.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QProcess>

namespace
{

constexpr int mostOutput = 64 << 20; // bytes

QByteArray untilZero(const QByteArray& bytes)
{
    return bytes.left(static_cast<int>(qstrlen(bytes.constData())));
}

// Leaves the process running when it is overdue.
QByteArray readUntilEnd(QProcess& process, int limit)
{
    QByteArray output;
    const QDeadlineTimer deadline(limit);
    while (process.state() != QProcess::NotRunning && !deadline.hasExpired() &&
           (limit < 0 || output.size() < mostOutput)) {
        process.waitForReadyRead(static_cast<int>(deadline.remainingTime()));
        output += process.readAllStandardOutput();
    }
    return output;
}

} // namespace

QByteArray runCommandText(const QString& command, const std::optional<QByteArray>& input, int limit,
                          Overdue overdue)
{
    QStringList words = QProcess::splitCommand(command);
    if (words.isEmpty())
        return {};
    const QString program = words.takeFirst();
    QProcess process;
    process.setProcessEnvironment(toolEnvironment());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, words, QIODevice::ReadWrite);
    if (input) {
        process.write(untilZero(*input));
        process.closeWriteChannel();
    }
    const QByteArray output = readUntilEnd(process, limit);
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished(-1);
        return overdue == Overdue::Keep ? untilZero(output) : QByteArray();
    }
    return untilZero(output);
}

QString runLoggedCommand(const QString& program, const QString& args,
                         const std::optional<QByteArray>& input)
{
    const QString command = '"' + program + "\" " + args;
    const QString output = QString::fromLatin1(runCommandText(command, input));
    qDebug() << program << args << output;
    Util::WriteLog(program + ' ' + args + " result:" + output);
    return output;
}
