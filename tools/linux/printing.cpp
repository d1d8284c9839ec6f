// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "printing.h"

#include <cstdio>

namespace
{

void writeLine(FILE* stream, const QString& line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}

} // namespace

void say(const QString& line)
{
    writeLine(stdout, line);
}

int complain(const QString& line)
{
    writeLine(stderr, line);
    return 1;
}
