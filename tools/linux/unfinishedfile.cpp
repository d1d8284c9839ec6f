// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "unfinishedfile.h"

#include <QFile>
#include <QFileInfo>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace
{

// What the signals' handler removes.
std::atomic<const char*> written{nullptr};

void removeAndEnd(int signal)
{
    if (const char* const path = written)
        ::unlink(path);
    // Its handler is the system's again, which ends the program when this returns.
    ::raise(signal);
}

// Where the signals that end the program have one handler, gives them the other. What is ignored
// stays so.
void exchangeHandlers(void (*from)(int), void (*to)(int))
{
    // A reader that is gone is told by a signal too.
    for (const int signal : {SIGHUP, SIGINT, SIGPIPE, SIGTERM}) {
        struct sigaction action = {};
        ::sigaction(signal, nullptr, &action);
        if (action.sa_handler != from)
            continue;
        action.sa_handler = to;
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        ::sigaction(signal, &action, nullptr);
    }
}

QString freePath(const QString& finishedPath)
{
    const QString first = finishedPath + ".unfinished";
    QString path = first;
    for (int number = 2; QFileInfo::exists(path) || QFileInfo(path).isSymLink(); ++number)
        path = first + QString::number(number);
    return path;
}

} // namespace

UnfinishedFile::UnfinishedFile(const QString& finishedPath)
    : finished(QFile::encodeName(finishedPath))
    , unfinished(QFile::encodeName(freePath(finishedPath)))
{
    written = unfinished.constData();
    exchangeHandlers(SIG_DFL, removeAndEnd);
}

UnfinishedFile::~UnfinishedFile()
{
    if (written)
        ::unlink(unfinished.constData());
    written = nullptr;
    exchangeHandlers(removeAndEnd, SIG_DFL);
}

QString UnfinishedFile::path() const
{
    return QFile::decodeName(unfinished);
}

QString UnfinishedFile::finish()
{
    if (std::rename(unfinished.constData(), finished.constData()) != 0)
        return std::strerror(errno);
    written = nullptr;
    return {};
}
