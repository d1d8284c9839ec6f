// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cfilecopy.h"
#include "copywait.h"
#include "cprogressdialog.h"
#include "foldertest.h"
#include "heldfolder.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"
#include "widgetrecorder.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>

#include <algorithm>
#include <ctime>

class TstCopyWait : public FolderTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void emptyQueueIsNoWaitAtAll();
    void waitEndsWithTheLastCopy();
    void missingSourceIsNoEndlessWait();
    void emptyFileIsWaitedForAndTold();
    void valueIsMonotoneAndInKilobytes();
    void sourceThatGrowsDoesNotMoveTheBarBack();
    void windowStaysAliveDuringTheWait();
    void deletionIsWaitedFor();
    void hiddenDialogDoesNotEndTheWait();
    void stoppedBeforehandIsFalse();
    void stoppedMeanwhileIsFalseAtOnce();
    void measuringManyFilesLeavesTheWindowAlive();
    void processEventsTakesItsTime_data();
    void processEventsTakesItsTime();
    void processEventsFiresTimersAndSleepsBetween();

private:
    bool wait() { return waitForCopies(*queue, *progress, "the text", "the tag"); }
    // How often the wait has looked at the queue.
    static int looks() { return debugLines().filter("the tag ").size(); }
    QProgressBar* bar() const { return progress->findChild<QProgressBar*>(); }
    // Queues a copy that holds, and waits until it does.
    void hold(qint64 bytes);

    std::unique_ptr<CProgressDialog> progress;
    std::unique_ptr<HeldFolder> held;
    std::unique_ptr<CFileCopy> queue;
};

void TstCopyWait::init()
{
    FolderTest::init();
    queue = std::make_unique<CFileCopy>(nullptr);
    progress = std::make_unique<CProgressDialog>(nullptr);
    progress->SetText("before");
    progress->SetRange(0, 77);
    progress->show();
}

void TstCopyWait::cleanup()
{
    held.reset();
    queue.reset();
    progress.reset();
    FolderTest::cleanup();
}

void TstCopyWait::hold(qint64 bytes)
{
    held = std::make_unique<HeldFolder>(folder->filePath("held"), bytes);
    queue->AddTask(folder->filePath("held"), folder->filePath("to"), CFileCopy::Copy);
    QVERIFY(QTest::qWaitFor([this] { return held->isHolding(); }, 60'000));
}

void TstCopyWait::emptyQueueIsNoWaitAtAll()
{
    QVERIFY(wait());
    QCOMPARE(progress->findChild<QLabel*>("label")->text(), QString("before"));
    QCOMPARE(bar()->maximum(), 77);
}

void TstCopyWait::waitEndsWithTheLastCopy()
{
    hold(1000);
    writeFile(folder->filePath("b.txt"), "b");
    queue->AddTask(folder->filePath("b.txt"), folder->filePath("to/b.txt"), CFileCopy::Copy);
    const Trigger release([] { return looks() >= 2; }, [this] { held->release(); });
    QVERIFY(wait());
    QCOMPARE(entriesOf(folder->filePath("to")), QStringList({"b.txt", "held"}));
    QVERIFY(!queue->HasTasks());
    QVERIFY(progress->isVisible());
}

void TstCopyWait::missingSourceIsNoEndlessWait()
{
    queue->AddTask(folder->filePath("nowhere"), folder->filePath("to"), CFileCopy::Copy);
    QVERIFY(wait());
    QVERIFY(!queue->HasTasks());
}

void TstCopyWait::emptyFileIsWaitedForAndTold()
{
    hold(0);
    const WidgetRecorder recorder(progress.get());
    const Trigger release([] { return looks() >= 2; }, [this] { held->release(); });
    QVERIFY(wait());
    QCOMPARE(recorder.texts(), QStringList("the text"));
    QVERIFY(QFile::exists(folder->filePath("to/held/rest.bin")));
}

void TstCopyWait::valueIsMonotoneAndInKilobytes()
{
    hold(5 * 1024 * 1024 + 1023);
    const WidgetRecorder recorder(progress.get());
    int maximum = 0;
    const Trigger pass([this] { return bar()->maximum() == 5 * 1024; },
                       [this] { held->pass(1024 * 1024 + 1023); });
    const Trigger look([this] { return bar()->value() == 1024; },
                       [&] {
                           maximum = bar()->maximum();
                           held->release();
                       });
    QVERIFY(wait());
    QCOMPARE(maximum, 5 * 1024);
    QVERIFY(look.hasFired());
    QVERIFY(std::is_sorted(recorder.values().begin(), recorder.values().end()));
}

void TstCopyWait::sourceThatGrowsDoesNotMoveTheBarBack()
{
    hold(1024 * 1024);
    const Trigger pass([this] { return bar()->maximum() == 1024; },
                       [this] { held->pass(512 * 1024); });
    int looksAtGrowth = -1;
    const Trigger grow([this] { return bar()->value() == 512; },
                       [&] {
                           QVERIFY(QFile::resize(folder->filePath("held/rest.bin"), 3 << 20));
                           looksAtGrowth = looks();
                       });
    const Trigger release([&] { return looksAtGrowth >= 0 && looks() >= looksAtGrowth + 2; },
                          [this] { held->release(); });
    const WidgetRecorder recorder(progress.get());
    QVERIFY(wait());
    QVERIFY(grow.hasFired());
    QVERIFY(std::is_sorted(recorder.values().begin(), recorder.values().end()));
    QCOMPARE(QFileInfo(folder->filePath("to/held/rest.bin")).size(), qint64(3 << 20));
}

void TstCopyWait::windowStaysAliveDuringTheWait()
{
    hold(1000);
    // The copy goes on only when the window has come to its events again and again.
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, [&] {
        if (++ticks == 20)
            held->release();
    });
    timer.start(5);
    QVERIFY(wait());
    QVERIFY(ticks >= 20);
}

void TstCopyWait::deletionIsWaitedFor()
{
    hold(0);
    writeFile(folder->filePath("old/a.txt"), "a");
    queue->AddTask(folder->filePath("old"), QString(), CFileCopy::Delete);
    const Trigger release([] { return looks() >= 1; }, [this] { held->release(); });
    QVERIFY(wait());
    QVERIFY(!QFile::exists(folder->filePath("old")));
}

void TstCopyWait::hiddenDialogDoesNotEndTheWait()
{
    hold(1000);
    const Trigger cancel([] { return looks() >= 1; }, [this] { progress->OnBtnCancel(); });
    // Without the wait going on, the copy would not.
    const Trigger release([] { return looks() >= 3; }, [this] { held->release(); });
    QVERIFY(wait());
    QVERIFY(cancel.hasFired() && release.hasFired());
    QVERIFY(!progress->isVisible());
    QVERIFY(!queue->HasTasks());
}

void TstCopyWait::stoppedBeforehandIsFalse()
{
    queue->stop();
    QVERIFY(!wait());
}

void TstCopyWait::stoppedMeanwhileIsFalseAtOnce()
{
    hold(1000);
    const Trigger stop([] { return looks() >= 1; }, [this] { queue->stop(); });
    QVERIFY(!wait());
    QVERIFY(stop.hasFired());
    QVERIFY(held->isHolding());
}

void TstCopyWait::measuringManyFilesLeavesTheWindowAlive()
{
    hold(0);
    for (int i = 0; i < 2000; ++i)
        writeFile(folder->filePath(QString("many/%1").arg(i)), "x");
    // Measured again with every one of them: longer than the window may be away.
    constexpr int times = 20;
    for (int i = 0; i < times; ++i)
        queue->AddTask(folder->filePath("many"), folder->filePath("to"), CFileCopy::Move + 1);
    QCOMPARE(queue->GetLeftTaskBytes(), qint64(times * 2000));
    // Events that come before the dialog shows what was measured.
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, [&] { ticks += bar()->maximum() == 77 ? 1 : 0; });
    timer.start(0);
    const Trigger release([] { return looks() >= 1; }, [this] { held->release(); });
    QVERIFY(wait());
    QVERIFY(ticks > 0);
}

void TstCopyWait::processEventsTakesItsTime_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("usual") << 100;
}

void TstCopyWait::processEventsTakesItsTime()
{
    QFETCH(int, milliseconds);
    QElapsedTimer clock;
    clock.start();
    processEventsFor(milliseconds);
    QVERIFY(clock.elapsed() >= milliseconds);
}

void TstCopyWait::processEventsFiresTimersAndSleepsBetween()
{
    progress->hide();
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
    timer.start(20);
    QElapsedTimer clock;
    clock.start();
    const std::clock_t before = std::clock();
    processEventsFor(300);
    const double busyMs = double(std::clock() - before) * 1000 / CLOCKS_PER_SEC;
    QVERIFY(ticks >= 1);
    // Processor time, which other work does not add to.
    QVERIFY2(busyMs < double(clock.elapsed()) / 2, qPrintable(QString::number(busyMs)));
}

KORVEX_TEST_MAIN(TstCopyWait)
#include "tst_copywait.moc"
