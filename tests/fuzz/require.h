// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdio>
#include <cstdlib>

// What the fuzzers have in common.

// Stops the fuzzer, which keeps the input, unless the condition holds.
inline void require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

// The input without a copy.
inline QByteArray inputBytes(const unsigned char* data, std::size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size));
}
