// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "commandtext.h"

#include "toolenvironment.h"
#include "toollimits.h"
#include "util.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QProcess>

namespace
{

constexpr int mostOutput = 64 << 20; // bytes

QByteArray untilZero(const QByteArray& bytes)
{
    return bytes.left(static_cast<int>(qstrlen(bytes.constData())));
}

// Leaves the process running when it is overdue.
QByteArray readUntilEnd(QProcess& process, Patience patience)
{
    const ToolLimits& limits = toolLimits();
    const bool isLimited = patience == Patience::Limited;
    QByteArray output;
    QElapsedTimer waited;
    waited.start();
    const auto isOverdue = [&] {
        return isLimited && (waited.elapsed() >= limits.answerMs || output.size() >= mostOutput);
    };
    while (process.state() != QProcess::NotRunning && !isOverdue()) {
        process.waitForReadyRead(isLimited ? limits.stepMs.load() : -1);
        output += process.readAllStandardOutput();
    }
    return output;
}

} // namespace

QByteArray runCommandText(const QString& command, const std::optional<QByteArray>& input,
                          Patience patience, Overdue overdue)
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
    QByteArray output = readUntilEnd(process, patience);
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished(-1);
        if (overdue == Overdue::Drop)
            return {};
        // What it had written when it was killed.
        output += process.readAllStandardOutput();
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
