// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "filecopytest.h"

#include "util.h"

#include <QDir>
#include <QTest>

#include <algorithm>
#include <unistd.h>

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

bool FileCopyTest::othersAreAsleep()
{
    const auto isAsleep = [](const QString& thread) {
        // The state follows the name, which stands in brackets.
        const QByteArray facts = readFile("/proc/self/task/" + thread + "/stat");
        return facts.isEmpty() || facts.mid(facts.lastIndexOf(')')).startsWith(") S");
    };
    const auto areAsleep = [&isAsleep] {
        const QStringList threads = QDir("/proc/self/task").entryList(QDir::Dirs);
        return std::all_of(threads.begin(), threads.end(), [&isAsleep](const QString& thread) {
            return thread.startsWith('.') || thread.toInt() == ::getpid() || isAsleep(thread);
        });
    };
    return QTest::qWaitFor(areAsleep, 30'000);
}
