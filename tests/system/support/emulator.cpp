// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "emulator.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QLocalSocket>

#include <csignal>
#include <sys/prctl.h>

namespace
{

// Generous, since everything may be ten times slower on a busy machine.
constexpr int answerLimit = 180 * 1000;

} // namespace

// The kernel ends the emulator when the test dies without coming to its destructors.
void Emulator::Process::setupChildProcess()
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

Emulator::Emulator() = default;

Emulator::~Emulator()
{
    process.kill();
    process.waitForFinished(answerLimit);
}

bool Emulator::start(const QStringList& arguments)
{
    if (!files.isValid() || !server.listen(folder() + "/monitor"))
        return fail("no folder for the machine");
    const QStringList common = {
        "-S",
        "-display",
        "none",
        "-nodefaults",
        "-no-reboot",
        "-chardev",
        "socket,id=monitor,path=" + folder() + "/monitor",
        "-mon",
        "chardev=monitor,mode=control",
    };
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardOutputFile(folder() + "/emulator.log");
    process.start(KORVEX_EMULATOR, common + arguments);
    if (!process.waitForStarted() || !server.waitForNewConnection(answerLimit))
        return fail("the emulator did not start");
    channel.reset(server.nextPendingConnection());
    channel->setParent(nullptr);
    QJsonObject greeting;
    return readMessage(&greeting, answerLimit) && execute("qmp_capabilities");
}

bool Emulator::isRunning()
{
    return process.state() == QProcess::Running && !process.waitForFinished(0);
}

QString Emulator::folder() const
{
    return files.path();
}

bool Emulator::execute(const QString& command, const QJsonObject& arguments, QJsonValue* result)
{
    if (!channel)
        return fail("the emulator is not running");
    QJsonObject request = {{"execute", command}};
    if (!arguments.isEmpty())
        request.insert("arguments", arguments);
    channel->write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
    QJsonObject message;
    while (readMessage(&message, answerLimit)) {
        if (message.contains("event")) {
            events.append(message);
        } else if (message.contains("error")) {
            return fail(command + ": " +
                        message.value("error").toObject().value("desc").toString());
        } else {
            if (result)
                *result = message.value("return");
            return true;
        }
    }
    return false;
}

bool Emulator::executeLine(const QString& line)
{
    QJsonValue answer;
    if (!execute("human-monitor-command", {{"command-line", line}}, &answer))
        return false;
    // The prompt is silent when all went well.
    return answer.toString().isEmpty() || fail(line + ": " + answer.toString());
}

bool Emulator::waitForEvent(const QString& event, const QString& key, const QString& value,
                            int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (true) {
        while (!events.isEmpty()) {
            const QJsonObject message = events.takeFirst();
            if (message.value("event").toString() == event &&
                message.value("data").toObject().value(key).toVariant().toString() == value)
                return true;
        }
        QJsonObject message;
        const int left = milliseconds - static_cast<int>(timer.elapsed());
        if (left <= 0 || !readMessage(&message, left))
            return fail("no event " + event + " for " + value);
        events.append(message);
    }
}

bool Emulator::waitForEnd(int milliseconds)
{
    return process.state() == QProcess::NotRunning || process.waitForFinished(milliseconds) ||
           fail("the emulator does not end");
}

QString Emulator::argumentPath(QString path)
{
    return path.replace(',', ",,");
}

QString Emulator::problem() const
{
    QFile log(folder() + "/emulator.log");
    return trouble + (log.open(QIODevice::ReadOnly) ? "\n" + QString::fromUtf8(log.readAll()) : "");
}

bool Emulator::readMessage(QJsonObject* message, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!channel->canReadLine()) {
        const int left = milliseconds - static_cast<int>(timer.elapsed());
        if (left <= 0 || !channel->waitForReadyRead(left))
            return fail("the emulator does not answer");
    }
    *message = QJsonDocument::fromJson(channel->readLine()).object();
    return true;
}

bool Emulator::fail(const QString& text)
{
    trouble = text;
    return false;
}
