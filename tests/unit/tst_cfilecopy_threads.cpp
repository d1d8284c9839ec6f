// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "filecopytest.h"
#include "testmain.h"
#include "util.h"

#include <atomic>
#include <thread>

// Queues under fire from several threads, and several queues beside each other.
class TstCFileCopyThreads : public FileCopyTest
{
    Q_OBJECT

private slots:
    void noWakeUpIsLostWithOneTaskAtATime();
    void noWakeUpIsLostWithTasksFromTwoThreads();
    void wakeUpThatFindsNothingIsSleptOver();
    void stopDuringAddingFromAnotherThreadEndsTheWorker();
    void everyFunctionMayBeCalledFromAnyThread();
    void tasksCanBeAddedAndMeasuredDuringACopy();
    void twoQueuesNeverWorkAtTheSameTime();
    void copiesOfSeveralQueuesDoNotMix();
    void endOfAQueueDoesNotHoldUpAnother();
};

namespace
{

// A type that does nothing: only the list and the waiting are at work.
constexpr int idle = 17;
constexpr unsigned long limitMs = 30'000;

// Closer than an event loop could watch.
bool emptiesAtOnce(CFileCopy& queue)
{
    QElapsedTimer clock;
    clock.start();
    while (queue.HasTasks()) {
        if (clock.elapsed() > qint64(limitMs))
            return false;
        std::this_thread::yield();
    }
    return true;
}

} // namespace

void TstCFileCopyThreads::noWakeUpIsLostWithOneTaskAtATime()
{
    CFileCopy queue(nullptr);
    for (int i = 0; i < 1500; ++i) {
        queue.AddTask("/a", QString(), idle);
        QVERIFY2(emptiesAtOnce(queue), qPrintable(QString::number(i)));
    }
}

void TstCFileCopyThreads::noWakeUpIsLostWithTasksFromTwoThreads()
{
    CFileCopy queue(nullptr);
    std::atomic<bool> ended{false};
    std::thread other([&] {
        while (!ended) {
            queue.AddTask("/b", QString(), idle);
            std::this_thread::yield();
        }
    });
    for (int i = 0; i < 2000; ++i)
        queue.AddTask("/a", QString(), idle);
    ended = true;
    other.join();
    QVERIFY(emptiesAtOnce(queue));
}

void TstCFileCopyThreads::wakeUpThatFindsNothingIsSleptOver()
{
    writeFile(path("a"), "1");
    CFileCopy queue(nullptr);
    for (int i = 0; i < 2000; ++i) {
        queue.AddTask("/a", QString(), idle);
        queue.ClearAllTasks();
    }
    QVERIFY(queue.isRunning());
    QVERIFY(othersAreAsleep());
    // One that the worker had begun when it was cleared still costs the next.
    queue.AddTask("/a", QString(), idle);
    QVERIFY(emptiesAtOnce(queue));
    queue.AddTask(path("a"), path("b"), CFileCopy::Copy);
    QVERIFY(hasEmptied(queue));
    QCOMPARE(readFile(path("b")), QByteArray("1"));
}

void TstCFileCopyThreads::stopDuringAddingFromAnotherThreadEndsTheWorker()
{
    for (int i = 0; i < 300; ++i) {
        CFileCopy queue(nullptr);
        std::thread other([&queue] {
            for (int task = 0; task < 5; ++task)
                queue.AddTask("/a", QString(), idle);
        });
        queue.stop();
        const bool done = queue.wait(limitMs);
        other.join();
        QVERIFY2(done, qPrintable(QString::number(i)));
    }
}

void TstCFileCopyThreads::everyFunctionMayBeCalledFromAnyThread()
{
    writeFile(path("a"), QByteArray(10'000, 'a'));
    CFileCopy queue(nullptr);
    const auto useAll = [&queue, this](const QString& name) {
        for (int i = 0; i < 200; ++i) {
            queue.AddTask(path("a"), path(name), CFileCopy::Copy);
            queue.AddTask(path(name), QString(), CFileCopy::Delete);
            queue.GetLeftTaskBytes();
            queue.HasTasks();
            queue.IsStopped();
            queue.EstimateSeconds();
            queue.RemoveTask(path(name));
            if (i % 50 == 0)
                queue.ClearAllTasks();
        }
    };
    std::thread first(useAll, "b");
    std::thread second(useAll, "c");
    useAll("d");
    first.join();
    second.join();
    QVERIFY(hasEmptied(queue));
    queue.stop();
    QVERIFY(queue.wait(limitMs));
    QCOMPARE(readFile(path("a")).size(), 10'000);
}

void TstCFileCopyThreads::tasksCanBeAddedAndMeasuredDuringACopy()
{
    writeFile(path("a"), QByteArray(10, 'a'));
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    // None of these waits for the copy, which does not go on before finish().
    queue.AddTask(path("a"), path("b"), CFileCopy::Copy);
    QCOMPARE(queue.GetLeftTaskBytes(), first.size() - first.capacity() + 10);
    QVERIFY(queue.HasTasks());
    queue.RemoveTask(path("a"));
    queue.EstimateSeconds();
    queue.stop();
    QVERIFY(first.finish());
}

void TstCFileCopyThreads::twoQueuesNeverWorkAtTheSameTime()
{
    writeFile(path("a"), QByteArray(10'000, 'a'));
    CFileCopy one(nullptr);
    CFileCopy two(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(one, first));
    two.AddTask(path("a"), path("b"), CFileCopy::Copy);
    two.AddTask(path("a"), QString(), CFileCopy::Delete);
    // The one waits for the pipe; the other, which has tasks, for nothing but the one.
    QVERIFY(othersAreAsleep());
    QCOMPARE(entriesOf(path("")), QStringList({"a", "held.pipe", "held.source"}));
    QCOMPARE(Util::copyedsize.load(), first.capacity());
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(two));
    QCOMPARE(readFile(path("b")), QByteArray(10'000, 'a'));
    QVERIFY(!QFile::exists(path("a")));
}

void TstCFileCopyThreads::copiesOfSeveralQueuesDoNotMix()
{
    constexpr int count = 20;
    const QStringList names{"a", "b", "c"};
    std::vector<std::unique_ptr<CFileCopy>> queues;
    for (const QString& name : names) {
        writeFile(path(name), QByteArray(100'000, name.at(0).toLatin1()));
        queues.push_back(std::make_unique<CFileCopy>(nullptr));
        for (int i = 0; i < count; ++i)
            queues.back()->AddTask(path(name), path(name + QString::number(i)), CFileCopy::Copy);
    }
    for (const auto& queue : queues)
        QVERIFY(hasEmptied(*queue));
    for (const QString& name : names)
        for (int i = 0; i < count; ++i)
            QCOMPARE(readFile(path(name + QString::number(i))), readFile(path(name)));
}

void TstCFileCopyThreads::endOfAQueueDoesNotHoldUpAnother()
{
    writeFile(path("a"), "1");
    CFileCopy one(nullptr);
    CFileCopy two(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(one, first));
    two.AddTask(path("a"), path("b"), CFileCopy::Copy);
    one.stop();
    QVERIFY(first.finish());
    QVERIFY(one.wait(limitMs));
    QVERIFY(hasEmptied(two));
    QCOMPARE(readFile(path("b")), QByteArray("1"));
}

KORVEX_TEST_MAIN(TstCFileCopyThreads)

#include "tst_cfilecopy_threads.moc"
