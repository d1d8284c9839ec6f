// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// The short way to run a tool to its end, shared by the synchronous commands and the disk
// information. Both functions block the calling thread; any thread.

// How long a tool is waited for.
enum class Patience
{
    Endless,
    // As long as a short question may take (ToolLimits::answerMs), and as long as the output is not
    // far more than anybody would read. After that the tool is overdue.
    Limited
};

// What becomes of the output of a tool that is overdue. The tool itself is killed in any case.
enum class Overdue
{
    Drop,
    Keep
};

// Runs a command text, split at blanks with double quotes grouping, and returns its standard output
// up to the first zero byte; standard error is dropped. With input the tool reads that and then the
// end of its standard input. A tool that cannot be started gives an empty result.
QByteArray runCommandText(const QString& command, const std::optional<QByteArray>& input = {},
                          Patience patience = Patience::Endless, Overdue overdue = Overdue::Drop);

// Runs the command text "program" args without limit, writes program, args and output to the debug
// stream and the log, and returns the output as Latin-1. input as above, up to its first zero byte.
QString runLoggedCommand(const QString& program, const QString& args,
                         const std::optional<QByteArray>& input = {});
