// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "commandtext.h"

#include "toolenvironment.h"
#include "util.h"

#include <QDebug>
#include <QProcess>

namespace
{

QByteArray untilZero(const QByteArray& bytes)
{
    return bytes.left(static_cast<int>(qstrlen(bytes.constData())));
}

} // namespace

QByteArray runCommandText(const QString& command, const std::optional<QByteArray>& input, int limit)
{
    QStringList words = QProcess::splitCommand(command);
    if (words.isEmpty())
        return {};
    const QString program = words.takeFirst();
    QProcess process;
    process.setProcessEnvironment(toolEnvironment());
    process.start(program, words, QIODevice::ReadWrite);
    if (input) {
        process.write(untilZero(*input));
        process.closeWriteChannel();
    }
    process.waitForFinished(limit);
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished(-1);
        return {};
    }
    return untilZero(process.readAllStandardOutput());
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
