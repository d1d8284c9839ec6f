// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "filecopytest.h"
#include "testmain.h"

#include <future>

// The end of a queue, whatever it is doing.
class TstCFileCopyStop : public FileCopyTest
{
    Q_OBJECT

private slots:
    void workerRunsFromConstructionOn();
    void stopWhileAsleepEndsTheWorkerAtOnce();
    void stopRightAfterConstructionEndsTheWorker();
    void stopBeforeTheWorkerFirstSleepsEndsIt();
    void stopJustBeforeTheWorkerSleepsAgainEndsIt();
    void stopDoesNotWait();
    void stopEndsAfterTheTaskInProgressAndDropsTheRest();
    void ofTasksAddedAfterStopOneAtMostIsCarriedOut();
    void secondStopIsHarmless();
    void stoppedQueueCarriesOutNothingMore();
    void destructionEndsASleepingWorker();
    void destructionWaitsForTheTaskInProgress();
    void destructionDropsWhatIsQueued();
    void parentTakesItsQueueAlong();
};

namespace
{

constexpr unsigned long limitMs = 30'000;

// A moment too short to sleep.
void spin(int turns)
{
    for (volatile int turn = 0; turn < turns;)
        turn = turn + 1;
}

} // namespace

void TstCFileCopyStop::workerRunsFromConstructionOn()
{
    CFileCopy queue(nullptr);
    QVERIFY(queue.isRunning());
    QVERIFY(!queue.IsStopped());
    QVERIFY(othersAreAsleep());
    QVERIFY(queue.isRunning());
}

void TstCFileCopyStop::stopWhileAsleepEndsTheWorkerAtOnce()
{
    CFileCopy queue(nullptr);
    QVERIFY(othersAreAsleep());
    queue.stop();
    QVERIFY(queue.wait(limitMs));
    QVERIFY(queue.IsStopped());
    QVERIFY(queue.isFinished());

    // The same after work.
    CFileCopy busy(nullptr);
    writeFile(path("a"), "1");
    busy.AddTask(path("a"), path("b"), CFileCopy::Copy);
    QVERIFY(hasEmptied(busy));
    QVERIFY(othersAreAsleep());
    busy.stop();
    QVERIFY(busy.wait(limitMs));
}

void TstCFileCopyStop::stopRightAfterConstructionEndsTheWorker()
{
    for (int i = 0; i < 200; ++i) {
        CFileCopy queue(nullptr);
        queue.stop();
        QVERIFY2(queue.wait(limitMs), qPrintable(QString::number(i)));
    }
}

// At many a moment between the worker's start and its sleep.
void TstCFileCopyStop::stopBeforeTheWorkerFirstSleepsEndsIt()
{
    for (int i = 0; i < 200; ++i) {
        CFileCopy queue(nullptr);
        spin(250 * i);
        queue.stop();
        QVERIFY2(queue.wait(limitMs), qPrintable(QString::number(i)));
    }
}

// A worker whose last task has just gone is about to sleep.
void TstCFileCopyStop::stopJustBeforeTheWorkerSleepsAgainEndsIt()
{
    constexpr int withoutEffect = 17;
    for (int i = 0; i < 300; ++i) {
        CFileCopy queue(nullptr);
        queue.AddTask("/a", QString(), withoutEffect);
        while (queue.HasTasks())
            continue;
        spin(i % 100);
        queue.stop();
        QVERIFY2(queue.wait(limitMs), qPrintable(QString::number(i)));
    }
}

void TstCFileCopyStop::stopDoesNotWait()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.stop();
    QVERIFY(queue.isRunning());
    QVERIFY(queue.IsStopped());
    QVERIFY(first.finish());
    QVERIFY(queue.wait(limitMs));
}

void TstCFileCopyStop::stopEndsAfterTheTaskInProgressAndDropsTheRest()
{
    writeFile(path("a"), "1");
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("a"), path("b"), CFileCopy::Copy);
    queue.AddTask(path("a"), QString(), CFileCopy::Delete);
    queue.stop();
    QVERIFY(first.finish());
    QVERIFY(queue.wait(limitMs));
    QCOMPARE(entriesOf(path("")), QStringList({"a", "held.pipe", "held.source"}));
}

// A worker that is just waking up still begins with one.
void TstCFileCopyStop::ofTasksAddedAfterStopOneAtMostIsCarriedOut()
{
    writeFile(path("a"), "1");
    for (int i = 0; i < 100; ++i) {
        const QString out = path(QString::number(i));
        CFileCopy queue(nullptr);
        if (i % 2 == 0)
            QThread::usleep(200);
        queue.stop();
        queue.AddTask(path("a"), out + "/1", CFileCopy::Copy);
        queue.AddTask(path("a"), out + "/2", CFileCopy::Copy);
        queue.AddTask(path("a"), out + "/3", CFileCopy::Copy);
        QVERIFY(queue.wait(limitMs));
        const QStringList copied = entriesOf(out);
        QVERIFY2(copied.isEmpty() || copied == QStringList("1"), qPrintable(copied.join(' ')));
    }
}

void TstCFileCopyStop::secondStopIsHarmless()
{
    CFileCopy queue(nullptr);
    queue.stop();
    queue.stop();
    QVERIFY(queue.wait(limitMs));
    queue.stop();
    QVERIFY(queue.IsStopped());
    QVERIFY(queue.wait(limitMs));
}

void TstCFileCopyStop::stoppedQueueCarriesOutNothingMore()
{
    writeFile(path("a"), "1");
    CFileCopy queue(nullptr);
    queue.stop();
    QVERIFY(queue.wait(limitMs));
    queue.AddTask(path("a"), path("b"), CFileCopy::Copy);
    QVERIFY(queue.isFinished());
    QVERIFY(queue.HasTasks());
    QCOMPARE(queue.GetLeftTaskBytes(), qint64(1));
    QVERIFY(!QFile::exists(path("b")));
    queue.RemoveTask(path("a"));
    QVERIFY(!queue.HasTasks());
}

void TstCFileCopyStop::destructionEndsASleepingWorker()
{
    for (int i = 0; i < 100; ++i) {
        auto queue = std::make_unique<CFileCopy>(nullptr);
        if (i % 20 == 0)
            QVERIFY(othersAreAsleep());
        auto gone = std::async(std::launch::async, [&queue] { queue.reset(); });
        QVERIFY(gone.wait_for(std::chrono::milliseconds(limitMs)) == std::future_status::ready);
    }
}

void TstCFileCopyStop::destructionWaitsForTheTaskInProgress()
{
    auto queue = std::make_unique<CFileCopy>(nullptr);
    std::future<void> gone;
    HeldCopy first(path(""));
    QVERIFY(hold(*queue, first));
    CFileCopy& dying = *queue;
    gone = std::async(std::launch::async, [&queue] { queue.reset(); });
    // The second look takes the queue's lock, which tells the thread sanitizer that both looks come
    // before the end of the copy.
    const auto isDying = [&dying] { return dying.IsStopped() && dying.HasTasks(); };
    QVERIFY(QTest::qWaitFor(isDying, int(limitMs)));
    // The copy goes on to its end, so the queue is there until then.
    QVERIFY(first.finish());
    QVERIFY(gone.wait_for(std::chrono::milliseconds(limitMs)) == std::future_status::ready);
}

void TstCFileCopyStop::destructionDropsWhatIsQueued()
{
    writeFile(path("a"), "1");
    auto queue = std::make_unique<CFileCopy>(nullptr);
    std::future<void> gone;
    HeldCopy first(path(""));
    QVERIFY(hold(*queue, first));
    queue->AddTask(path("a"), path("b"), CFileCopy::Copy);
    CFileCopy& dying = *queue;
    gone = std::async(std::launch::async, [&queue] { queue.reset(); });
    // Only then may the task in progress end, which the queue waits for.
    const auto isDying = [&dying] { return dying.IsStopped() && dying.HasTasks(); };
    QVERIFY(QTest::qWaitFor(isDying, int(limitMs)));
    QVERIFY(first.finish());
    gone.get();
    QVERIFY(!QFile::exists(path("b")));
}

void TstCFileCopyStop::parentTakesItsQueueAlong()
{
    QPointer<CFileCopy> queue;
    {
        QObject parent;
        queue = new CFileCopy(&parent);
        QCOMPARE(queue->parent(), &parent);
    }
    QVERIFY(queue.isNull());
}

KORVEX_TEST_MAIN(TstCFileCopyStop)

#include "tst_cfilecopy_stop.moc"
