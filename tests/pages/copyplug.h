// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

// A folder whose copy lasts until the test ends it, so that a test can say for certain what is in
// progress and what has not begun: its only file, "held", leads to a pipe, and whoever copies it
// waits for the pipe's other end.
class CopyPlug
{
public:
    // Makes the folder.
    explicit CopyPlug(const QString& folder);
    // Ends a copy that waits and leaves nothing for another one to wait for.
    ~CopyPlug();
    CopyPlug(const CopyPlug&) = delete;
    CopyPlug& operator=(const CopyPlug&) = delete;

    QString path() const;
    // Waits until the copy is in progress, which it stays until release(). False when it does not
    // come to that in time.
    bool waitUntilReached();
    // Lets the copy end with this content.
    void release(const QByteArray& content = QByteArray());

private:
    QString folderPath;
    QByteArray pipe;
    int writingEnd = -1;
};
