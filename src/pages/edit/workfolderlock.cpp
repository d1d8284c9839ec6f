// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "workfolderlock.h"

#include "util.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

WorkFolderLock::~WorkFolderLock()
{
    release();
}

bool WorkFolderLock::take()
{
    if (descriptor >= 0)
        return true;
    // Left open for the tools that are started, on purpose.
    const int opened =
        ::open(QFile::encodeName(Util::GetTempDir() + "/tmp.lock"), O_RDWR | O_CREAT, 0600);
    if (opened < 0)
        return true;
    if (::flock(opened, LOCK_EX | LOCK_NB) != 0) {
        ::close(opened);
        return false;
    }
    descriptor = opened;
    return true;
}

void WorkFolderLock::keep()
{
    if (descriptor >= 0)
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
}

void WorkFolderLock::release()
{
    if (descriptor >= 0)
        ::close(descriptor);
    descriptor = -1;
}
