// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "toolstopper.h"

#include "testfiles.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <cerrno>
#include <csignal>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

// So long that only a tool that never comes there needs it.
constexpr int limitMs = 120'000;
constexpr int lookUs = 50;

// Before there are threads, and before the program copies the environment for its tools.
[[maybe_unused]] const bool isPrepared = [] {
#ifdef __SANITIZE_ADDRESS__
    qputenv("ASAN_OPTIONS", qgetenv("ASAN_OPTIONS") + ":verify_asan_link_order=0");
#endif
    return qputenv("LD_PRELOAD", KORVEX_TOOL_HOLD);
}();

// A letter for what it does at the moment; nothing when there is no such process.
char stateOf(int process)
{
    const QByteArray status = readFile(QString("/proc/%1/stat").arg(process));
    const int end = status.lastIndexOf(')');
    return end < 0 || status.size() < end + 3 ? '\0' : status.at(end + 2);
}

bool isStopped(int process)
{
    return stateOf(process) == 'T';
}

// Waits until the traced tool stands still; false when it has ended, which its owner is told too.
bool waitUntilStill(int process, int* signal)
{
    QElapsedTimer clock;
    clock.start();
    while (!clock.hasExpired(limitMs)) {
        siginfo_t told = {};
        if (::waitid(P_PID, id_t(process), &told, WSTOPPED | WEXITED | WNOWAIT | WNOHANG) != 0)
            return false;
        if (told.si_pid == 0) {
            // It may wait for the program to read what it has written.
            QCoreApplication::processEvents();
            ::usleep(lookUs);
            continue;
        }
        if (told.si_code == CLD_EXITED || told.si_code == CLD_KILLED || told.si_code == CLD_DUMPED)
            return false;
        int status = 0;
        ::waitpid(process, &status, WUNTRACED);
        const int number = WSTOPSIG(status);
        const bool isOfTracing = number == (SIGTRAP | 0x80) || status >> 16 != 0;
        *signal = isOfTracing || number == SIGCONT || number == SIGSTOP ? 0 : number;
        return true;
    }
    return false;
}

// Whether it is between two calls of the system and not about to make one.
bool isBetweenCalls(int process)
{
    __ptrace_syscall_info info = {};
    return ::ptrace(PTRACE_GET_SYSCALL_INFO, process, sizeof info, &info) > 0 &&
           info.op == PTRACE_SYSCALL_INFO_EXIT;
}

} // namespace

ToolStopper::ToolStopper(const QByteArray& argument)
    : request(QString::fromLocal8Bit(qgetenv("XDG_DATA_HOME")) + "/hold-tool")
{
    // Of a test program that has not come to its end.
    const QFileInfo file(request);
    for (const QString& left : file.dir().entryList({file.fileName() + ".*"}, QDir::Files))
        QFile::remove(file.dir().filePath(left));
    // Complete from the moment at which it can be seen.
    writeFile(request + ".new", argument);
    if (!QFile::rename(request + ".new", request))
        qFatal("Cannot write down which tool to stop");
}

ToolStopper::~ToolStopper()
{
    QFile::remove(request);
    QFile::remove(request + '.' + QString::number(process));
}

bool ToolStopper::hasCaught()
{
    if (process == 0) {
        const QFileInfo file(request);
        const QStringList taken = file.dir().entryList({file.fileName() + ".*"}, QDir::Files);
        process = taken.isEmpty() ? 0 : taken.first().section('.', -1).toInt();
    }
    return process > 0 && isStopped(process);
}

int ToolStopper::catchWhen(const std::function<bool()>& condition)
{
    if (!QTest::qWaitFor([this] { return hasCaught(); }, limitMs))
        return QTest::qFail("No tool was started that could be stopped", __FILE__, __LINE__), 0;
    if (condition())
        return process;
    if (::ptrace(PTRACE_SEIZE, process, 0, PTRACE_O_TRACESYSGOOD) != 0)
        return QTest::qFail("The tool cannot be held", __FILE__, __LINE__), 0;
    if (!work(condition))
        return QTest::qFail("The tool did not come so far", __FILE__, __LINE__), 0;
    // The signal is there before it goes on, so it does not get on.
    ::kill(process, SIGSTOP);
    ::ptrace(PTRACE_DETACH, process, 0, 0);
    return QTest::qWaitFor([this] { return isStopped(process); }, limitMs) ? process : 0;
}

bool ToolStopper::work(const std::function<bool()>& condition) const
{
    ::kill(process, SIGCONT);
    int signal = 0;
    while (waitUntilStill(process, &signal)) {
        QCoreApplication::processEvents();
        if (isBetweenCalls(process) && condition())
            return true;
        ::ptrace(PTRACE_SYSCALL, process, 0, signal);
    }
    return false;
}

bool ToolStopper::isToEnd() const
{
    const QList<QByteArray> lines = readFile(QString("/proc/%1/status").arg(process)).split('\n');
    for (const QByteArray& line : lines) {
        const bool isPending = line.startsWith("SigPnd:") || line.startsWith("ShdPnd:");
        if (isPending && (line.mid(7).trimmed().toULongLong(nullptr, 16) >> (SIGTERM - 1) & 1))
            return true;
    }
    return !isStopped(process);
}

void ToolStopper::letGo()
{
    if (process > 0)
        ::kill(process, SIGCONT);
}
