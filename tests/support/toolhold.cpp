// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Loaded into every program that a test starts which uses ToolStopper. The first one with the
// argument that the test has written down stops before its own first instruction, so that no
// machine is too fast or too busy to catch it. Nothing but the system's own calls: real tools of
// all kinds have to bear it.

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace
{

constexpr int maximum = 65536;

// What fits of a file; how many bytes.
int contentOf(const char* path, char* content)
{
    const int file = ::open(path, O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return -1;
    int count = 0;
    for (ssize_t part; count < maximum; count += int(part)) {
        part = ::read(file, content + count, size_t(maximum - count));
        if (part <= 0)
            break;
    }
    ::close(file);
    return count;
}

bool isAmong(const char* words, int bytes, const char* word)
{
    for (const char* at = words; at < words + bytes; at += std::strlen(at) + 1) {
        if (std::strcmp(at, word) == 0)
            return true;
    }
    return false;
}

[[gnu::constructor]] void stopWhereWanted()
{
    static char wanted[maximum + 1];
    static char arguments[maximum + 1];
    const char* const folder = std::getenv("XDG_DATA_HOME");
    char request[4096];
    if (!folder || std::snprintf(request, sizeof request, "%s/hold-tool", folder) < 0 ||
        contentOf(request, wanted) <= 0)
        return;
    const int bytes = contentOf("/proc/self/cmdline", arguments);
    if (bytes <= 0 || !isAmong(arguments, bytes, wanted))
        return;
    char taken[4160];
    std::snprintf(taken, sizeof taken, "%s.%d", request, int(::getpid()));
    // Only one gets it.
    if (std::rename(request, taken) == 0)
        std::raise(SIGSTOP);
}

} // namespace
