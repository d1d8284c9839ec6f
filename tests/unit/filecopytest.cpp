// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "filecopytest.h"

#include "util.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

FileCopyTest::FileCopyTest() = default;
FileCopyTest::~FileCopyTest() = default;

void FileCopyTest::init()
{
    TestCase::init();
    folder = std::make_unique<QTemporaryDir>();
    Util::copyedsize = 0;
}

void FileCopyTest::cleanup()
{
    folder.reset();
    TestCase::cleanup();
}

QString FileCopyTest::path(const QString& name) const
{
    return QDir(folder->path()).filePath(name);
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
