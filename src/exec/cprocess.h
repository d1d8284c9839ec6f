// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMutex>
#include <QProcess>

// The child process of a runner. It leads a process group of its own, so that a tool can be ended
// together with whatever it has started.
class CProcess : public QProcess
{
    Q_OBJECT

public:
    explicit CProcess(QObject* parent = nullptr);

    // Kills the tool and everything in its group at once; one that is only just being started, as
    // soon as it runs. May be called after the tool has ended, for what it left behind. Any thread.
    void killGroup();

public slots:
    // Asks the tool politely to stop.
    void OnTerminate();

protected:
    void setupChildProcess() override;

private slots:
    void rememberGroup();

private:
    QMutex mutex; // guards what follows
    qint64 group = 0;
    bool killed = false;
};
