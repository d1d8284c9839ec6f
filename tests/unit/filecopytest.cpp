// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "filecopytest.h"

#include "util.h"

#include <QTest>

void FileCopyTest::init()
{
    FolderTest::init();
    Util::copyedsize = 0;
}

bool FileCopyTest::hold(CFileCopy& queue, const HeldCopy& copy)
{
    queue.AddTask(copy.source(), copy.destination(), CFileCopy::Copy);
    const auto isFull = [&copy] { return Util::copyedsize == copy.capacity(); };
    return copy.hasBegun() && QTest::qWaitFor(isFull, 30'000);
}

bool FileCopyTest::hasEmptied(CFileCopy& queue)
{
    return QTest::qWaitFor([&queue] { return !queue.HasTasks(); }, 30'000);
}

void FileCopyTest::giveTime()
{
    QThread::msleep(50);
}
