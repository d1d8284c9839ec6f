// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "outputcapture.h"

#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>

QByteArray standardOutputOf(const std::function<void()>& action)
{
    QTemporaryFile file;
    std::fflush(stdout);
    const int standardOutput = dup(STDOUT_FILENO);
    if (standardOutput < 0 || !file.open() || dup2(file.handle(), STDOUT_FILENO) < 0)
        qFatal("Cannot capture the standard output");
    action();
    std::fflush(stdout);
    dup2(standardOutput, STDOUT_FILENO);
    close(standardOutput);
    file.seek(0);
    return file.readAll();
}
