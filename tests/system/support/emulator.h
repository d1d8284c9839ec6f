// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QLocalServer>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

class QLocalSocket;

// A running emulator and the channel that commands it. Ends with the test that owns it, however
// that ends. Used by VirtualMachine and by bootStick().
class Emulator
{
public:
    Emulator();
    // Ends the emulator at once.
    ~Emulator();
    Emulator(const Emulator&) = delete;
    Emulator& operator=(const Emulator&) = delete;

    // Starts it with these arguments beside those for the channel; false when it does not answer.
    // The machine stands still until the command "cont".
    bool start(const QStringList& arguments);
    bool isRunning();
    // A temporary folder for what belongs to this machine.
    QString folder() const;

    // Has a command of the channel carried out; what it returns goes to result. False when the
    // emulator refuses it or does not answer within some seconds.
    bool execute(const QString& command, const QJsonObject& arguments = {},
                 QJsonValue* result = nullptr);
    // The same for a command that a person would type at the emulator's prompt.
    bool executeLine(const QString& line);
    // Waits for an event of the channel whose data contain these, one that came before counts once.
    bool waitForEvent(const QString& event, const QString& key, const QString& value,
                      int milliseconds);
    bool waitForEnd(int milliseconds);

    // A path as part of an argument, where a comma would end it.
    static QString argumentPath(QString path);

    // What went wrong last, with what the emulator itself said.
    QString problem() const;

private:
    class Process : public QProcess
    {
    protected:
        void setupChildProcess() override;
    };

    bool readMessage(QJsonObject* message, int milliseconds);
    bool fail(const QString& text);

    QTemporaryDir files;
    QLocalServer server;
    std::unique_ptr<QLocalSocket> channel;
    Process process;
    QList<QJsonObject> events;
    QString trouble;
};
