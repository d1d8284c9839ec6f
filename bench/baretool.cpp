// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "baretool.h"

#include "statistics.h"
#include "toolenvironment.h"

#include <QFile>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace
{

constexpr int bufferSize = 1 << 20;

// Pointers into a list of byte arrays, as the system wants them.
std::vector<char*> pointersTo(QList<QByteArray>& texts)
{
    std::vector<char*> pointers;
    for (QByteArray& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

QList<QByteArray> encoded(const QStringList& texts)
{
    QList<QByteArray> bytes;
    for (const QString& text : texts)
        bytes.append(QFile::encodeName(text));
    return bytes;
}

pid_t startTool(const QString& program, const QStringList& arguments, const int ends[2])
{
    QList<QByteArray> argumentBytes = encoded(QStringList{program} + arguments);
    QList<QByteArray> environmentBytes = encoded(toolEnvironment().toStringList());
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
    ::posix_spawn_file_actions_addclose(&actions, ends[0]);
    ::posix_spawn_file_actions_addclose(&actions, ends[1]);
    pid_t process = 0;
    const int error =
        ::posix_spawn(&process, argumentBytes.first().constData(), &actions, nullptr,
                      pointersTo(argumentBytes).data(), pointersTo(environmentBytes).data());
    ::posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
        giveUp("Cannot be started: " + program);
    return process;
}

} // namespace

QByteArray runBare(const QString& program, const QStringList& arguments)
{
    int ends[2];
    if (::pipe(ends) != 0)
        giveUp("No pipe can be made.");
    const pid_t process = startTool(program, arguments, ends);
    ::close(ends[1]);
    static std::vector<char> buffer(bufferSize);
    QByteArray output;
    for (ssize_t count; (count = ::read(ends[0], buffer.data(), buffer.size())) > 0;)
        output.append(buffer.data(), int(count));
    ::close(ends[0]);
    int status = 0;
    ::waitpid(process, &status, 0);
    if (status != 0)
        giveUp("The tool failed: " + program + ' ' + arguments.join(' '));
    return output;
}
