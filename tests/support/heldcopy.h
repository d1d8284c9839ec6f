// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

// A copy that stays in progress for as long as a test needs it to: its destination is a pipe that
// takes no more than its buffer holds until the test reads from it. Queue it with source() and
// destination(), then wait for it to begin. Make it after the queue, so that a failing test lets go
// of it before the queue is waited for.
class HeldCopy
{
public:
    // Lays the files into a folder of the test. The content is longer than the pipe's buffer.
    explicit HeldCopy(const QString& folder, int bytes = 1'000'000);
    // Lets the copy end.
    ~HeldCopy();
    HeldCopy(const HeldCopy&) = delete;
    HeldCopy& operator=(const HeldCopy&) = delete;

    QString source() const;
    QString destination() const;
    qint64 size() const { return content.size(); }
    // How much gets copied before the copy is held.
    qint64 capacity() const;

    // Whether the copy is in progress or comes to be so in time.
    bool hasBegun(int timeoutMs = 30'000) const;
    // Lets so many more bytes pass, waiting for them; false when they do not come.
    bool letPass(int bytes);
    // Lets the copy end; whether the whole content has passed, unchanged.
    bool finish();

private:
    QByteArray content;
    QString name;
    int pipe;
    int passed = 0;
    bool intact = true;
};
