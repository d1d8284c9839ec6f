// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "clocker.h"

CLocker::CLocker(QMutex& guarded)
    : mutex(guarded)
    , locked(false)
{
    Lock();
}

CLocker::~CLocker()
{
    Unlock();
}

void CLocker::Unlock()
{
    if (!locked)
        return;
    locked = false;
    mutex.unlock();
}

void CLocker::Lock()
{
    mutex.lock();
    locked = true;
}
