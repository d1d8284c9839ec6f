// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "filecopytest.h"
#include "testmain.h"
#include "util.h"

// Taking tasks out of the queue again. That the removal of the task in progress costs the next one
// is deliberate and pinned here.
class TstCFileCopyRemoval : public FileCopyTest
{
    Q_OBJECT

private slots:
    void init();

    void queuedTaskIsNotCarriedOut();
    void ofTwoTasksWithOneSourceOnlyTheFirstIsRemoved();
    void sourceHasToMatchExactly_data();
    void sourceHasToMatchExactly();
    void tasksOfEveryTypeCanBeRemoved();
    void removalFromAnEmptyQueueDoesNothing();
    void clearDropsEveryTask();
    void clearOfAnEmptyQueueDoesNothing();
    void taskInProgressIsFinishedThoughRemoved();
    void removalOfTheTaskInProgressDropsTheNextOne();
    void removalOfTheTaskInProgressDropsOneThatCameLater();
    void removalOfTheTaskInProgressFindsItBeforeItsNamesake();
    void clearDuringATaskDropsTheFirstThatComesAfterwards();
    void replacementDropsWhatIsQueuedAndIsCarriedOut();
    void replacementWakesAWorkerThatSleeps();
    void queueWorksOnAfterAClearThatEmptiedIt();
};

void TstCFileCopyRemoval::init()
{
    FileCopyTest::init();
    for (const char* name : {"a", "b", "c"})
        writeFile(path(name), name);
}

void TstCFileCopyRemoval::queuedTaskIsNotCarriedOut()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("a"), path("out/a"), CFileCopy::Copy);
    queue.AddTask(path("b"), path("out/b"), CFileCopy::Copy);
    queue.AddTask(path("c"), path("out/c"), CFileCopy::Copy);
    queue.RemoveTask(path("b"));
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("out")), QStringList({"a", "c"}));
}

void TstCFileCopyRemoval::ofTwoTasksWithOneSourceOnlyTheFirstIsRemoved()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("a"), path("out/1"), CFileCopy::Copy);
    queue.AddTask(path("a"), path("out/2"), CFileCopy::Copy);
    queue.AddTask(path("a"), path("out/3"), CFileCopy::Copy);
    queue.RemoveTask(path("a"));
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("out")), QStringList({"2", "3"}));
}

void TstCFileCopyRemoval::sourceHasToMatchExactly_data()
{
    QTest::addColumn<QString>("argument");
    QTest::newRow("other case") << "%1/A";
    QTest::newRow("slash behind") << "%1/a/";
    QTest::newRow("doubled slash") << "%1//a";
    QTest::newRow("roundabout") << "%1/./a";
    QTest::newRow("only the beginning") << "%1/";
    QTest::newRow("blank behind") << "%1/a ";
    QTest::newRow("the destination") << "%1/out/a";
    QTest::newRow("name alone") << "a";
    QTest::newRow("nothing") << "";
}

void TstCFileCopyRemoval::sourceHasToMatchExactly()
{
    QFETCH(QString, argument);
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("a"), path("out/a"), CFileCopy::Copy);
    queue.RemoveTask(argument.replace("%1", path("")));
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("out")), QStringList("a"));
}

void TstCFileCopyRemoval::tasksOfEveryTypeCanBeRemoved()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("a"), QString(), CFileCopy::Delete);
    queue.AddTask(path("b"), path("moved"), CFileCopy::Move);
    queue.AddTask(path("c"), QString(), 17);
    for (const char* name : {"a", "b", "c"})
        queue.RemoveTask(path(name));
    // Only the one in progress is left.
    QCOMPARE(queue.GetLeftTaskBytes(), first.size() - first.capacity());
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(queue));
    QVERIFY(QFile::exists(path("a")));
    QVERIFY(QFile::exists(path("b")));
}

void TstCFileCopyRemoval::removalFromAnEmptyQueueDoesNothing()
{
    CFileCopy queue(nullptr);
    queue.RemoveTask(path("a"));
    queue.RemoveTask(QString());
    QVERIFY(!queue.HasTasks());
    queue.AddTask(path("a"), path("out/a"), CFileCopy::Copy);
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("out")), QStringList("a"));
}

void TstCFileCopyRemoval::clearDropsEveryTask()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("a"), path("out/a"), CFileCopy::Copy);
    queue.AddTask(path("b"), QString(), CFileCopy::Delete);
    queue.ClearAllTasks();
    QVERIFY(!queue.HasTasks());
    QCOMPARE(queue.GetLeftTaskBytes(), -first.capacity());
    QVERIFY(first.finish());
    queue.stop();
    QVERIFY(queue.wait(30'000));
    QVERIFY(QFile::exists(path("b")));
    QVERIFY(!QFile::exists(path("out")));
}

void TstCFileCopyRemoval::clearOfAnEmptyQueueDoesNothing()
{
    CFileCopy queue(nullptr);
    queue.ClearAllTasks();
    QVERIFY(!queue.HasTasks());
    queue.AddTask(path("a"), path("out/a"), CFileCopy::Copy);
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("out")), QStringList("a"));
}

void TstCFileCopyRemoval::taskInProgressIsFinishedThoughRemoved()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.RemoveTask(first.source());
    QVERIFY(!queue.HasTasks());
    QVERIFY(first.finish());
    QTRY_COMPARE_WITH_TIMEOUT(Util::copyedsize.load(), first.size(), 30'000);
}

void TstCFileCopyRemoval::removalOfTheTaskInProgressDropsTheNextOne()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("a"), path("out/a"), CFileCopy::Copy);
    queue.AddTask(path("b"), path("out/b"), CFileCopy::Copy);
    queue.AddTask(path("c"), path("out/c"), CFileCopy::Copy);
    queue.RemoveTask(first.source());
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("out")), QStringList({"b", "c"}));
}

void TstCFileCopyRemoval::removalOfTheTaskInProgressDropsOneThatCameLater()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.RemoveTask(first.source());
    queue.AddTask(path("a"), path("out/a"), CFileCopy::Copy);
    queue.AddTask(path("b"), path("out/b"), CFileCopy::Copy);
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("out")), QStringList("b"));
}

void TstCFileCopyRemoval::removalOfTheTaskInProgressFindsItBeforeItsNamesake()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("a"), path("out/a"), CFileCopy::Copy);
    queue.AddTask(first.source(), path("out/held"), CFileCopy::Copy);
    queue.RemoveTask(first.source());
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("out")), QStringList("held"));
}

void TstCFileCopyRemoval::clearDuringATaskDropsTheFirstThatComesAfterwards()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("a"), path("out/a"), CFileCopy::Copy);
    queue.ClearAllTasks();
    queue.AddTask(path("b"), path("out/b"), CFileCopy::Copy);
    queue.AddTask(path("c"), path("out/c"), CFileCopy::Copy);
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("out")), QStringList("c"));
}

void TstCFileCopyRemoval::replacementDropsWhatIsQueuedAndIsCarriedOut()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("a"), path("out/a"), CFileCopy::Copy);
    // Though it takes the place of the task in progress, whose end drops the head of the queue.
    queue.ReplaceTasks(path("b"), path("out/b"), CFileCopy::Copy);
    queue.AddTask(path("c"), path("out/c"), CFileCopy::Copy);
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("out")), QStringList({"b", "c"}));
}

void TstCFileCopyRemoval::replacementWakesAWorkerThatSleeps()
{
    CFileCopy queue(nullptr);
    QVERIFY(othersAreAsleep());
    queue.ReplaceTasks(path("a"), path("out/a"), CFileCopy::Copy);
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("out")), QStringList("a"));
}

void TstCFileCopyRemoval::queueWorksOnAfterAClearThatEmptiedIt()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.ClearAllTasks();
    QVERIFY(first.finish());
    // A task that comes before the worker is back is dropped; one that comes later is not.
    const auto isCopied = [this, &queue] {
        queue.AddTask(path("a"), path("out/a"), CFileCopy::Copy);
        return hasEmptied(queue) && QFile::exists(path("out/a"));
    };
    QVERIFY(isCopied() || isCopied());
}

KORVEX_TEST_MAIN(TstCFileCopyRemoval)

#include "tst_cfilecopy_removal.moc"
