// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMutex>

// Scoped lock that may be released and taken again in between. CFileCopy guards its task list with
// it. One thread uses one guard.
class CLocker
{
public:
    // Takes the lock, waiting as long as it takes.
    explicit CLocker(QMutex& mutex);
    // Releases the lock if it is held.
    ~CLocker();
    CLocker(const CLocker&) = delete;
    CLocker& operator=(const CLocker&) = delete;

    // Releases the lock if it is held.
    void Unlock();
    // Takes the lock again after Unlock(); a guard that still holds it would wait for itself.
    void Lock();

private:
    QMutex& mutex;
    bool locked;
};
