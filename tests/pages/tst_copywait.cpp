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
    bool wait() { return waitForCopies(*queue, *progress, "the text"); }
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
    QVERIFY(QTest::qWaitFor([this] { return held->isHolding(); }));
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
    QTimer::singleShot(250, [this] { held->release(); });
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
    QTimer::singleShot(250, [this] { held->release(); });
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
    const Trigger grow([this] { return bar()->value() == 512; },
                       [this] {
                           QVERIFY(QFile::resize(folder->filePath("held/rest.bin"), 3 << 20));
                           QTimer::singleShot(350, [this] { held->release(); });
                       });
    const WidgetRecorder recorder(progress.get());
    QVERIFY(wait());
    QVERIFY(grow.hasFired());
    QVERIFY(std::is_sorted(recorder.values().begin(), recorder.values().end()));
    QCOMPARE(QFileInfo(folder->filePath("to/held/rest.bin")).size(), qint64(3 << 20));
}

void TstCopyWait::windowStaysAliveDuringTheWait()
{
    hold(1000);
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
    timer.start(5);
    QTimer::singleShot(1000, [this] { held->release(); });
    QVERIFY(wait());
    // Far more often than the ten looks at the queue.
    QVERIFY2(ticks > 30, qPrintable(QString::number(ticks)));
}

void TstCopyWait::deletionIsWaitedFor()
{
    hold(0);
    writeFile(folder->filePath("old/a.txt"), "a");
    queue->AddTask(folder->filePath("old"), QString(), CFileCopy::Delete);
    QTimer::singleShot(150, [this] { held->release(); });
    QVERIFY(wait());
    QVERIFY(!QFile::exists(folder->filePath("old")));
}

void TstCopyWait::hiddenDialogDoesNotEndTheWait()
{
    hold(1000);
    bool isOver = false;
    QTimer::singleShot(100, [this] { progress->OnBtnCancel(); });
    QTimer::singleShot(400, [&] {
        QVERIFY(!isOver);
        held->release();
    });
    QVERIFY(wait());
    isOver = true;
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
    QTimer::singleShot(150, [this] { queue->stop(); });
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!wait());
    QVERIFY(clock.elapsed() < 2000);
    QVERIFY(held->isHolding());
}

void TstCopyWait::measuringManyFilesLeavesTheWindowAlive()
{
    hold(0);
    for (int i = 0; i < 2000; ++i)
        writeFile(folder->filePath(QString("many/%1").arg(i)), "x");
    // Measured again with every one of them: longer than a look at the queue may take.
    for (int i = 0; i < 60; ++i)
        queue->AddTask(folder->filePath("many"), folder->filePath("to"), CFileCopy::Move + 1);
    QElapsedTimer clock;
    clock.start();
    const qint64 left = queue->GetLeftTaskBytes();
    const qint64 measuring = clock.elapsed();
    QCOMPARE(left, qint64(60 * 2000));
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
    timer.start(1);
    QTimer::singleShot(int(qMin<qint64>(measuring, 3000)), [this] { held->release(); });
    QVERIFY(wait());
    QVERIFY2(ticks > measuring / 20, qPrintable(QString("%1 in %2 ms").arg(ticks).arg(measuring)));
}

void TstCopyWait::processEventsTakesItsTime_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("usual") << 100;
    QTest::newRow("long") << 350;
}

void TstCopyWait::processEventsTakesItsTime()
{
    QFETCH(int, milliseconds);
    QElapsedTimer clock;
    clock.start();
    processEventsFor(milliseconds);
    QVERIFY(clock.elapsed() >= milliseconds);
    QVERIFY(clock.elapsed() < milliseconds + 1000);
}

void TstCopyWait::processEventsFiresTimersAndSleepsBetween()
{
    progress->hide();
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
    timer.start(20);
    const std::clock_t before = std::clock();
    processEventsFor(500);
    const double busySeconds = double(std::clock() - before) / CLOCKS_PER_SEC;
    QVERIFY(ticks >= 5);
    QVERIFY2(busySeconds < 0.25, qPrintable(QString::number(busySeconds)));
}

KORVEX_TEST_MAIN(TstCopyWait)
#include "tst_copywait.moc"
