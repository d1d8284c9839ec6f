// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Files for tests: written and read whole, scripts that stand in for a tool, and the program's log.

// Writes the file with its missing folders; stops the test run when it cannot.
void writeFile(const QString& path, const QByteArray& content);
// The whole file, empty when it cannot be read.
QByteArray readFile(const QString& path);
// Every entry of a folder, hidden ones and broken links too, sorted by name.
QStringList entriesOf(const QString& folder);
// Writes a shell script that can be started and returns its path.
QString writeScript(const QString& path, const QByteArray& body);

// Switches the log on while it lives. A test that uses it needs a folder of its own for its
// executable, or it would switch the log of others on, too.
class LogSwitch
{
public:
    LogSwitch();
    ~LogSwitch();
    LogSwitch(const LogSwitch&) = delete;
    LogSwitch& operator=(const LogSwitch&) = delete;

    // Where the switch and the log lie.
    static QString switchPath();
    static QString logPath();
    // The log's texts without their times, checked to be there, oldest first.
    static QStringList texts();
};
