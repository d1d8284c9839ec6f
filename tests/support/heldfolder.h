// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTimer>

// A folder whose copying takes as long as a test wants: its first entry is read from a pipe that
// the test holds, its other one is an ordinary file. Goes on by itself when this object goes, or
// after a while, so that a failed test does not hang.
class HeldFolder
{
public:
    // Makes the folder with an ordinary file of so many bytes.
    HeldFolder(const QString& folder, qint64 bytes);
    ~HeldFolder();
    HeldFolder(const HeldFolder&) = delete;
    HeldFolder& operator=(const HeldFolder&) = delete;

    // Whether the copying has come so far.
    bool isHolding() const;
    // Lets so many more bytes through while it holds.
    void pass(int bytes) const;
    // Lets the copying go on to its end.
    void release();

private:
    QString pipe;
    int descriptor = -1;
    QTimer limit;
};
