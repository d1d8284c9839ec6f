// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>

// What one call of a tool gave; the tests of the stand-ins compare it.
struct ToolResult
{
    // -1 when the tool could not be started, hung or crashed.
    int status = -1;
    QByteArray text;
    QByteArray errors;
};

inline ToolResult runTool(const QString& program, const QStringList& arguments = {})
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}
