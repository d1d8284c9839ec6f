// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "filecopytest.h"
#include "testmain.h"
#include "util.h"

#include <ctime>
#include <limits>

// How much a queue says is left, and how long that may take.
class TstCFileCopyLeft : public FileCopyTest
{
    Q_OBJECT

private slots:
    void emptyQueueHasNothingLeft();
    void emptiedQueueHasLessThanNothingLeft();
    void everyTypeCountsWithItsSourcesSize();
    void missingSourcesCountNothing();
    void folderCountsWithItsVisibleFiles();
    void folderWithALinkToItsParentCountsOnce();
    void sizesAreThoseOfTheMoment();
    void sizesBeyond32Bits();
    void taskInProgressCountsLessWhatIsCopied();
    void nothingIsCountedOfWhatFailed();
    void taskWithoutBytesIsATaskAllTheSame();
    void measuringDoesNotChangeTheQueue();
    void estimateIsZeroWithoutARate();
    void estimateComesFromTheRateSinceTheLastCall();
    void estimateNeverFails();
};

namespace
{

// The estimate goes by the processor's clock, which stands still while nothing is done.
void letTheClockAdvance()
{
    const std::clock_t before = std::clock();
    while (std::clock() == before)
        continue;
}

} // namespace

void TstCFileCopyLeft::emptyQueueHasNothingLeft()
{
    CFileCopy queue(nullptr);
    QVERIFY(queue.GetLeftTaskBytes() <= 0);
    QVERIFY(!queue.HasTasks());
}

void TstCFileCopyLeft::emptiedQueueHasLessThanNothingLeft()
{
    writeFile(path("a"), QByteArray(5000, 'a'));
    CFileCopy queue(nullptr);
    queue.AddTask(path("a"), path("b"), CFileCopy::Copy);
    QVERIFY(hasEmptied(queue));
    QCOMPARE(queue.GetLeftTaskBytes(), qint64(-5000));
}

void TstCFileCopyLeft::everyTypeCountsWithItsSourcesSize()
{
    writeFile(path("a"), QByteArray(10, 'a'));
    writeFile(path("f/sub/b"), QByteArray(200, 'b'));
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    qint64 expected = first.size() - first.capacity();
    for (const int type : {0, 1, 2, 3, -1}) {
        queue.AddTask(path("a"), path("out/x"), type);
        queue.AddTask(path("f"), path("out/y"), type);
        expected += 210;
        QCOMPARE(queue.GetLeftTaskBytes(), expected);
    }
}

void TstCFileCopyLeft::missingSourcesCountNothing()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("missing"), path("out"), CFileCopy::Copy);
    queue.AddTask(path("held.source/below"), QString(), CFileCopy::Delete);
    queue.AddTask(QString(), QString(), 17);
    QCOMPARE(queue.GetLeftTaskBytes(), first.size() - first.capacity());
}

void TstCFileCopyLeft::folderCountsWithItsVisibleFiles()
{
    writeFile(path("f/ -a \"光\""), QByteArray(10, 'a'));
    writeFile(path("f/deep/er/b"), QByteArray(200, 'b'));
    writeFile(path("f/.hidden"), QByteArray(3000, 'c'));
    QVERIFY(QDir().mkpath(path("f/empty")));
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("f"), path("out"), CFileCopy::Copy);
    QCOMPARE(queue.GetLeftTaskBytes(), first.size() - first.capacity() + 210);
}

void TstCFileCopyLeft::folderWithALinkToItsParentCountsOnce()
{
    writeFile(path("f/sub/a"), QByteArray(10, 'a'));
    QVERIFY(QFile::link("..", path("f/sub/link")));
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("f"), path("out"), CFileCopy::Copy);
    QCOMPARE(queue.GetLeftTaskBytes(), first.size() - first.capacity() + 10);
}

void TstCFileCopyLeft::sizesAreThoseOfTheMoment()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    const qint64 before = queue.GetLeftTaskBytes();
    queue.AddTask(path("a"), path("out"), CFileCopy::Copy);
    QCOMPARE(queue.GetLeftTaskBytes(), before);
    writeFile(path("a"), QByteArray(10, 'a'));
    QCOMPARE(queue.GetLeftTaskBytes(), before + 10);
    QVERIFY(QFile::remove(path("a")));
    QCOMPARE(queue.GetLeftTaskBytes(), before);
}

void TstCFileCopyLeft::sizesBeyond32Bits()
{
    // Files of holes: their size is there, their bytes are not.
    for (const char* name : {"a", "f/b"}) {
        writeFile(path(name), {});
        QVERIFY(QFile::resize(path(name), 5'000'000'000));
    }
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("a"), QString(), CFileCopy::Delete);
    queue.AddTask(path("f"), QString(), CFileCopy::Delete);
    QCOMPARE(queue.GetLeftTaskBytes(), first.size() - first.capacity() + 10'000'000'000);
}

void TstCFileCopyLeft::taskInProgressCountsLessWhatIsCopied()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    QCOMPARE(queue.GetLeftTaskBytes(), first.size() - first.capacity());
    constexpr int more = 5 * 4096;
    QVERIFY(first.letPass(more));
    QTRY_COMPARE_WITH_TIMEOUT(queue.GetLeftTaskBytes(), first.size() - first.capacity() - more,
                              30'000);
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(queue));
    QCOMPARE(queue.GetLeftTaskBytes(), -first.size());
}

void TstCFileCopyLeft::nothingIsCountedOfWhatFailed()
{
    writeFile(path("a"), QByteArray(5000, 'a'));
    writeFile(path("file"), "1");
    CFileCopy queue(nullptr);
    queue.AddTask(path("a"), path("out"), CFileCopy::Copy);
    queue.AddTask(path("a"), path("file/below"), CFileCopy::Copy);
    QVERIFY(hasEmptied(queue));
    QCOMPARE(queue.GetLeftTaskBytes(), qint64(0));
}

// With another queue at work, what is left may even be below nought: only HasTasks() tells.
void TstCFileCopyLeft::taskWithoutBytesIsATaskAllTheSame()
{
    writeFile(path("empty"), {});
    CFileCopy other(nullptr);
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(other, first));
    queue.AddTask(path("empty"), path("out/empty"), CFileCopy::Copy);
    queue.AddTask(path("missing"), path("out"), CFileCopy::Copy);
    QVERIFY(queue.HasTasks());
    QCOMPARE(queue.GetLeftTaskBytes(), -first.capacity());
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("out")), QStringList({"empty", "missing"}));
    QCOMPARE(queue.GetLeftTaskBytes(), qint64(0));
}

void TstCFileCopyLeft::measuringDoesNotChangeTheQueue()
{
    writeFile(path("a"), QByteArray(10, 'a'));
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("a"), path("out/a"), CFileCopy::Copy);
    for (int i = 0; i < 10; ++i) {
        QVERIFY(queue.GetLeftTaskBytes() > 0);
        QVERIFY(queue.HasTasks());
    }
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("out")), QStringList("a"));
}

void TstCFileCopyLeft::estimateIsZeroWithoutARate()
{
    CFileCopy queue(nullptr);
    QCOMPARE(queue.EstimateSeconds(), quint64(0));
    letTheClockAdvance();
    QCOMPARE(queue.EstimateSeconds(), quint64(0));
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.EstimateSeconds();
    letTheClockAdvance();
    // Nothing was copied since.
    QCOMPARE(queue.EstimateSeconds(), quint64(0));
}

void TstCFileCopyLeft::estimateComesFromTheRateSinceTheLastCall()
{
    CFileCopy queue(nullptr);
    // So much that the bytes per tick are no less than one.
    constexpr int bytes = 2000 * 4096;
    HeldCopy first(path(""), 2 * bytes);
    QVERIFY(hold(queue, first));
    // Between these the two looks at the clock are taken that the rate comes from.
    const auto beforeFirst = quint64(std::clock());
    queue.EstimateSeconds();
    const auto afterFirst = quint64(std::clock());
    QVERIFY(first.letPass(bytes));
    QTRY_VERIFY_WITH_TIMEOUT(Util::copyedsize == bytes + first.capacity(), 30'000);
    letTheClockAdvance();
    const auto beforeSecond = quint64(std::clock());
    const quint64 estimate = queue.EstimateSeconds();
    const auto afterSecond = quint64(std::clock());
    const auto left = quint64(first.size() - first.capacity() - bytes);
    QCOMPARE(quint64(queue.GetLeftTaskBytes()), left);
    // A thousand times the number of ticks, going by whole bytes per tick.
    const auto estimateFor = [left](quint64 ticks) { return left * 1000 / (bytes / ticks); };
    QVERIFY2(estimate >= estimateFor(beforeSecond - afterFirst) &&
                 estimate <= estimateFor(afterSecond - beforeFirst),
             qPrintable(QString::number(estimate)));
}

void TstCFileCopyLeft::estimateNeverFails()
{
    writeFile(path("a"), QByteArray(50'000, 'a'));
    CFileCopy queue(nullptr);
    for (const qint64 copied :
         {std::numeric_limits<qint64>::max(), qint64(0), -std::numeric_limits<qint64>::max() / 2}) {
        Util::copyedsize = copied;
        queue.EstimateSeconds();
        letTheClockAdvance();
    }
    for (int i = 0; i < 200; ++i) {
        queue.AddTask(path("a"), path("b"), CFileCopy::Copy);
        queue.EstimateSeconds();
    }
    QVERIFY(hasEmptied(queue));
    letTheClockAdvance();
    queue.EstimateSeconds();
    letTheClockAdvance();
    QCOMPARE(queue.EstimateSeconds(), quint64(0));
}

KORVEX_TEST_MAIN(TstCFileCopyLeft)

#include "tst_cfilecopy_left.moc"
