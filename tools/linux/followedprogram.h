// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

// Runs a program with exactly these arguments (no shell reads them) to its end and hands over every
// line of both its channels as it comes; a carriage return ends a line, too. input is what it reads
// on standard input. Returns why it failed, empty on success. For work that takes its time; what
// only has an answer is asked with runProgram().
QString followProgram(const QString& program, const QStringList& arguments,
                      const std::function<void(const QString&)>& onLine,
                      const QByteArray& input = {});

// The line among a failed tool's last ones that tells the reason.
QString failureReason(const QStringList& lines);
