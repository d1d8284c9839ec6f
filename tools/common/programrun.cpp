// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "programrun.h"

#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

namespace
{

// A killed process that the kernel does not let go of must not hold us as well.
constexpr int killLimitMs = 5000;

QString firstLine(const QByteArray& text)
{
    const QStringList lines = QString::fromUtf8(text).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (!line.trimmed().isEmpty())
            return line.trimmed();
    }
    return {};
}

QString failureOf(const QProcess& process, bool inTime, int limitMs)
{
    if (!inTime)
        return QStringLiteral("was ended, it took longer than %1 seconds").arg(limitMs / 1000.0);
    if (process.exitStatus() != QProcess::NormalExit)
        return QStringLiteral("crashed");
    if (process.exitCode() != 0)
        return QStringLiteral("failed with exit code %1").arg(process.exitCode());
    return {};
}

} // namespace

ProgramResult runProgram(const QString& program, const QStringList& arguments, int limitMs)
{
    const QString name = QFileInfo(program).fileName();
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.remove(QStringLiteral("LANGUAGE"));
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    ProgramResult result;
    if (!process.waitForStarted(-1)) {
        result.error =
            QStringLiteral("%1 could not be started: %2").arg(name, process.errorString());
        return result;
    }
    const bool inTime = process.waitForFinished(limitMs);
    if (!inTime) {
        process.kill();
        process.waitForFinished(killLimitMs);
    }
    result.output = process.readAllStandardOutput();
    result.errorOutput = process.readAllStandardError();
    if (inTime && process.exitStatus() == QProcess::NormalExit)
        result.exitCode = process.exitCode();
    const QString failure = failureOf(process, inTime, limitMs);
    if (failure.isEmpty())
        return result;
    result.error = QStringLiteral("%1 %2").arg(name, failure);
    const QString said = firstLine(result.errorOutput);
    if (!said.isEmpty())
        result.error += QStringLiteral(": ") + said;
    return result;
}
