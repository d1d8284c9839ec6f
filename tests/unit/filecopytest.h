// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cfilecopy.h"
#include "foldertest.h"
#include "heldcopy.h"
#include "testfiles.h"

// What the test classes of the copy queue share: the ways to queue and to wait.
class FileCopyTest : public FolderTest
{
    Q_OBJECT

protected:
    // Queues it and waits until it is in progress, with nothing else before it.
    static bool hold(CFileCopy& queue, const HeldCopy& copy);
    // Whether everything that is queued has been dealt with in time.
    static bool hasEmptied(CFileCopy& queue);
    // Whether every other thread of this process has come to wait for something, or does so in
    // time. A worker that has been given something to do is awake from that moment on.
    static bool othersAreAsleep();

protected slots:
    void init();
};
