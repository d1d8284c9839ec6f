// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "outlivingwork.h"

#include <cerrno>
#include <cstdio>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

int waitForExitCode(pid_t worker)
{
    int status = 0;
    while (::waitpid(worker, &status, 0) < 0) {
        if (errno != EINTR)
            return 1;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}

} // namespace

int runOutliving(const std::function<int(const std::function<bool()>& isAwaited)>& work)
{
    const pid_t waiting = ::getpid();
    std::fflush(nullptr);
    const pid_t worker = ::fork();
    if (worker > 0)
        return waitForExitCode(worker);
    const int code = work([waiting, worker] { return worker < 0 || ::getppid() == waiting; });
    if (worker < 0)
        return code;
    std::fflush(nullptr);
    ::_exit(code);
}
