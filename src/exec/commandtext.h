// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// The short way to run a tool to its end, shared by the synchronous commands and the disk
// information. Both functions block the calling thread; any thread.

// What becomes of the output of a tool that is still running when its time is over. The tool itself
// is killed in any case.
enum class Overdue
{
    Drop,
    Keep
};

// Runs a command text, split at blanks with double quotes grouping, and returns its standard output
// up to the first zero byte; standard error is dropped. With input the tool reads that and then the
// end of its standard input. A tool that cannot be started gives an empty result. One that is still
// running after limit milliseconds (-1: no limit), or by then has printed far more than anybody
// would read, is overdue.
QByteArray runCommandText(const QString& command, const std::optional<QByteArray>& input = {},
                          int limit = -1, Overdue overdue = Overdue::Drop);

// Runs the command text "program" args without limit, writes program, args and output to the debug
// stream and the log, and returns the output as Latin-1. input as above, up to its first zero byte.
QString runLoggedCommand(const QString& program, const QString& args,
                         const std::optional<QByteArray>& input = {});
