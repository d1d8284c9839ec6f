// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "otherlimit.h"
#include "processcounts.h"
#include "scriptedcalls.h"
#include "testcase.h"
#include "testmain.h"
#include "toolrun.h"

#include <QSemaphore>

namespace
{

// A stop is noticed at once, and a tool that does not heed it is not waited for.
struct QuickStops
{
    const OtherLimit quickSteps{toolLimits().stepMs, 10};
    const OtherLimit littlePatience{toolLimits().politeStopMs, 50};
};

} // namespace

// How a run is stopped, at any moment and whatever the tool does.
class TstCRunCommandThreadStop : public TestCase
{
    Q_OBJECT

private slots:
    void terminateEndsTheRunWithoutSigfinished();
    void terminateAtAnyMoment();
    void terminateWithAToolThatIgnoresIt();
    void terminateAsksBeforeItKills();
    void terminateTakesTheToolsChildrenAlong();
    void terminateEndsAFlood_data();
    void terminateEndsAFlood();
    void terminateBeforeStartDoesNoHarm();
    void terminateAfterTheEndDoesNothing();
    void terminatedRunnerCanBeDeletedAtOnce();
    void startAfterTerminateFollowsTheOlderRun();
    void secondTerminateTakesTheStartBack();
    void killedProcessEndsTheRun();
    void killNeedsNoWorkerThatListens();
    void killEndsAFlood();
    void limitsAreTheUsualOnes();
};

void TstCRunCommandThreadStop::terminateEndsTheRunWithoutSigfinished()
{
    const OtherLimit quickSteps(toolLimits().stepMs, 10);
    ScriptedCalls(toolPath()).setScript({"out started\\n", "sleep 60000"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1));
    run.runner.terminate();
    QCOMPARE(run.terminating, 1);
    QVERIFY(run.waitForWorker());
    QVERIFY(childProcesses().isEmpty());
    QCOMPARE(run.finished, 0);
    QVERIFY(run.runner.running);
}

void TstCRunCommandThreadStop::terminateAtAnyMoment()
{
    const OtherLimit quickSteps(toolLimits().stepMs, 10);
    ScriptedCalls(toolPath()).setScript({"lines 2000 line", "sleep 20", "lines 2000 line"});
    for (int delay = 0; delay < 40; ++delay) {
        Run run;
        run.runner.start(QThread::InheritPriority);
        QTest::qWait(delay);
        run.runner.terminate();
        QVERIFY(run.waitForWorker());
        // Either the tool's end came first and is told, or the stop did and nothing is.
        QCOMPARE(run.runner.running.load(), run.finished == 0);
    }
    QVERIFY(childProcesses().isEmpty());
}

void TstCRunCommandThreadStop::terminateWithAToolThatIgnoresIt()
{
    const QuickStops quick;
    ScriptedCalls(toolPath()).setScript({"ignore-term", "out ready\\n", "sleep 60000"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1));
    run.runner.terminate();
    QVERIFY(run.waitForWorker());
    QVERIFY(childProcesses().isEmpty());
}

void TstCRunCommandThreadStop::terminateAsksBeforeItKills()
{
    const OtherLimit quickSteps(toolLimits().stepMs, 10);
    const OtherLimit patience(toolLimits().politeStopMs, OtherLimit::forGood);
    const ScriptedCalls tool(toolPath());
    tool.setScript({"heed-term", "out ready\\n", "await-term", tool.holding("tidying up"),
                    "out lost\\n", tool.holding("tidied up")});
    tool.release("tidied up");
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1));
    run.runner.terminate();
    QVERIFY(tool.isHeld("tidying up"));
    tool.release("tidying up");
    QVERIFY(tool.isHeld("tidied up"));
    QVERIFY(run.waitForWorker());
    QCOMPARE(run.pieces, QStringList("ready\n"));
    QCOMPARE(run.finished, 0);
}

void TstCRunCommandThreadStop::terminateTakesTheToolsChildrenAlong()
{
    const QuickStops quick;
    ScriptedCalls(toolPath())
        .setScript({"child 600000", "ignore-term", "out ready\\n", "sleep 600000"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1));
    QCOMPARE(processesOf("scriptedtool").size(), 2);
    run.runner.terminate();
    QVERIFY(QTest::qWaitFor([] { return processesOf("scriptedtool").isEmpty(); }, limitMs));
}

void TstCRunCommandThreadStop::terminateEndsAFlood_data()
{
    QTest::addColumn<QString>("manner");
    QTest::newRow("obedient") << "";
    QTest::newRow("deaf") << "ignore-term";
}

void TstCRunCommandThreadStop::terminateEndsAFlood()
{
    const QuickStops quick;
    QFETCH(QString, manner);
    ScriptedCalls(toolPath()).setScript({manner, "flood 100000000"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1));
    run.runner.terminate();
    QVERIFY(run.waitForWorker());
    QVERIFY(childProcesses().isEmpty());
    QCOMPARE(run.finished, 0);
}

void TstCRunCommandThreadStop::terminateBeforeStartDoesNoHarm()
{
    ScriptedCalls(toolPath()).setScript({"out a\\n"});
    Run run;
    run.runner.terminate();
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList("a\n"));
}

void TstCRunCommandThreadStop::terminateAfterTheEndDoesNothing()
{
    Run run;
    QVERIFY(run.finish());
    run.runner.terminate();
    QCOMPARE(run.terminating, 0);
    QVERIFY(!run.runner.running);
}

void TstCRunCommandThreadStop::terminatedRunnerCanBeDeletedAtOnce()
{
    const QuickStops quick;
    ScriptedCalls(toolPath()).setScript({"ignore-term", "sleep 60000"});
    for (int delay = 0; delay < 5; ++delay) {
        const auto runner = std::make_unique<CRunCommandThread>(nullptr);
        runner->SetRunCmd(toolPath(), {"x"});
        runner->start(QThread::InheritPriority);
        QTest::qWait(delay * 10);
        runner->terminate();
    }
    QVERIFY(childProcesses().isEmpty());
}

void TstCRunCommandThreadStop::killedProcessEndsTheRun()
{
    ScriptedCalls(toolPath()).setScript({"ignore-term", "out ready\\n", "sleep 60000"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1));
    run.runner.OnTerminateProcess();
    QVERIFY(run.waitForEnd());
    QVERIFY(!run.runner.running);
    QVERIFY(childProcesses().isEmpty());
}

void TstCRunCommandThreadStop::startAfterTerminateFollowsTheOlderRun()
{
    const QuickStops quick;
    const ScriptedCalls tool(toolPath());
    tool.setScript({"ignore-term", "out older\\n", "sleep 600000"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1));
    tool.setScript({"out newer\\n", tool.holding("look")});
    run.runner.terminate();
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.runner.running);
    QVERIFY(tool.isHeld("look"));
    QCOMPARE(processesOf("scriptedtool").size(), 1);
    tool.release("look");
    QVERIFY(run.waitForEnd());
    QCOMPARE(run.pieces, QStringList({"older\n", "newer\n"}));
    QVERIFY(!run.runner.running);
}

void TstCRunCommandThreadStop::secondTerminateTakesTheStartBack()
{
    const OtherLimit quickSteps(toolLimits().stepMs, 10);
    const OtherLimit patience(toolLimits().politeStopMs, OtherLimit::forGood);
    const ScriptedCalls tool(toolPath());
    tool.setScript({"heed-term", "out ready\\n", "await-term", tool.holding("end")});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1));
    run.runner.terminate();
    QVERIFY(tool.isHeld("end"));
    run.runner.start(QThread::InheritPriority);
    run.runner.terminate();
    tool.release("end");
    QVERIFY(run.waitForWorker());
    QCOMPARE(tool.calls().size(), 1);
    QCOMPARE(run.finished, 0);
}

void TstCRunCommandThreadStop::killNeedsNoWorkerThatListens()
{
    ScriptedCalls(toolPath()).setScript({"ignore-term", "out ready\\n", "sleep 600000"});
    Run run;
    QSemaphore held;
    QSemaphore go;
    connect(
        &run.runner, &CRunCommandThread::standoutputline, &run.receiver,
        [&] {
            held.release();
            go.tryAcquire(1, 2 * limitMs);
        },
        Qt::DirectConnection);
    run.runner.start(QThread::InheritPriority);
    QVERIFY(held.tryAcquire(1, limitMs));
    run.runner.OnTerminateProcess();
    QVERIFY(QTest::qWaitFor([] { return processesOf("scriptedtool").isEmpty(); }, limitMs));
    go.release();
    QVERIFY(run.waitForEnd());
}

void TstCRunCommandThreadStop::killEndsAFlood()
{
    ScriptedCalls(toolPath()).setScript({"ignore-term", "flood 100000000"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1));
    run.runner.OnTerminateProcess();
    QVERIFY(run.waitForEnd());
    QVERIFY(!run.runner.running);
    QVERIFY(childProcesses().isEmpty());
}

void TstCRunCommandThreadStop::limitsAreTheUsualOnes()
{
    QCOMPARE(toolLimits().stepMs.load(), 300);
    QCOMPARE(toolLimits().politeStopMs.load(), 500);
    QCOMPARE(toolLimits().killedMs.load(), 1000);
    QCOMPARE(toolLimits().deliveryMs.load(), 1000);
}

KORVEX_TEST_MAIN(TstCRunCommandThreadStop)
#include "tst_cruncommandthread_stop.moc"
