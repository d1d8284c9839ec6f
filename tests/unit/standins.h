// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

// The lines that the action writes to standard output and standard error, as whoever runs a tool
// gets them.
QStringList spokenLines(const std::function<void()>& action);

// Stand-ins for the system's tools in front of PATH while it lives. Each records how it was called.
class StandIns
{
public:
    StandIns();
    ~StandIns();
    StandIns(const StandIns&) = delete;
    StandIns& operator=(const StandIns&) = delete;

    // A tool of that name that does what the shell lines say and succeeds where they do not end it.
    void add(const QString& name, const QByteArray& shellLines = {}) const;
    // The calls since construction, oldest first: the name and the arguments with "|" between.
    QStringList calls() const;
    // A file for the stand-ins' use.
    QString filePath(const QString& name) const { return folder.filePath("data/" + name); }

private:
    QTemporaryDir folder;
    QByteArray previousPath;
};
