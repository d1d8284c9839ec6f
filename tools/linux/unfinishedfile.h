// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

// Where a file is written until it is complete: beside it, under a name that is free. What has been
// written is removed with this object unless it has become the file, and also where a signal ends
// the program, as when the window is closed in the middle. One at a time.
class UnfinishedFile
{
public:
    // The file's absolute path.
    explicit UnfinishedFile(const QString& finishedPath);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    QString path() const;
    // Replaces the file by what has been written. Empty on success, else the system's reason.
    QString finish();

private:
    const QByteArray finished;
    const QByteArray unfinished;
};
