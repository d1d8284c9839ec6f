// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QBasicTimer>
#include <QByteArray>
#include <QObject>
#include <QString>

// Tells what a program shows, as a screen reader would: every visible widget with its place and
// content. Lives inside the program as a plugin and only looks. Read by GuestProgram.
class ScreenReader : public QObject
{
    Q_OBJECT

public:
    // file always holds what is shown now, as JSON, and is gone when the program has ended.
    explicit ScreenReader(const QString& file);
    ~ScreenReader() override;

protected:
    void timerEvent(QTimerEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void look();

    QBasicTimer timer;
    QString path;
    QByteArray last;
    // Something has happened since it was last looked; looking takes an emulated machine its time.
    bool isStale = true;
};
