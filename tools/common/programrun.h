// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// How a program that our disk tools ran has ended.
struct ProgramResult
{
    // Empty on success (exit code 0), otherwise one line for the user: the program, how it failed
    // and the first line of its standard error.
    QString error;
    // What it wrote, complete even when it failed.
    QByteArray output;
    QByteArray errorOutput;
    // -1 when it did not start, crashed or was ended at its time limit.
    int exitCode = -1;
};

// Runs a program with exactly these arguments (no shell reads them) and waits for its end. A name
// without a slash is looked up on PATH. Its standard input is empty; it speaks English and UTF-8.
// After limitMs milliseconds it is killed, which is a failure; -1 waits for ever. Any thread.
ProgramResult runProgram(const QString& program, const QStringList& arguments, int limitMs);
