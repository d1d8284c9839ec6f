// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "secret.h"

#include <QByteArray>
#include <QString>

#include <cerrno>
#include <cstring>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace
{

bool writeWhole(int descriptor, const char* bytes, size_t count)
{
    while (count > 0) {
        const ssize_t written = ::write(descriptor, bytes, count);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes += written;
        count -= static_cast<size_t>(written);
    }
    return true;
}

} // namespace

bool Secret::keepMemoryPrivate()
{
    // The limit alone does not stop a dump that the system pipes into a program.
    const rlimit none{0, 0};
    const bool unlimited = ::setrlimit(RLIMIT_CORE, &none) != 0;
    return ::prctl(PR_SET_DUMPABLE, 0L, 0L, 0L, 0L) == 0 && !unlimited;
}

void Secret::wipe(QString& text)
{
    // Any other way to the characters would copy them first.
    auto* const characters = const_cast<QChar*>(text.constData());
    ::explicit_bzero(characters, static_cast<size_t>(text.size()) * sizeof(QChar));
    text.clear();
}

void Secret::wipe(QByteArray& text)
{
    ::explicit_bzero(const_cast<char*>(text.constData()), static_cast<size_t>(text.size()));
    text.clear();
}

bool Secret::writeLine(int descriptor, const QByteArray& text)
{
    return writeWhole(descriptor, text.constData(), static_cast<size_t>(text.size())) &&
           writeWhole(descriptor, "\n", 1);
}
