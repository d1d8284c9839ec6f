// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cfilecopy.h"
#include "heldcopy.h"
#include "testcase.h"
#include "testfiles.h"

#include <memory>

class QTemporaryDir;

// What the test classes of the copy queue share: a folder of their own for each test function and
// the ways to queue and to wait.
class FileCopyTest : public TestCase
{
    Q_OBJECT

public:
    FileCopyTest();
    ~FileCopyTest() override;

protected:
    // In the folder; an absolute path stays as it is.
    QString path(const QString& name) const;
    // Queues it and waits until it is in progress, with nothing else before it.
    static bool hold(CFileCopy& queue, const HeldCopy& copy);
    // Whether everything that is queued has been dealt with in time.
    static bool hasEmptied(CFileCopy& queue);
    // Time for a thread to do what it should not, or to fall asleep.
    static void giveTime();

protected slots:
    void init();
    void cleanup();

private:
    std::unique_ptr<QTemporaryDir> folder;
};
