// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "processcounts.h"
#include "scriptedcalls.h"
#include "testcase.h"
#include "testmain.h"
#include "toolrun.h"

// How a run is stopped, at any moment and whatever the tool does.
class TstCRunCommandThreadStop : public TestCase
{
    Q_OBJECT

private slots:
    void terminateEndsTheRunWithoutSigfinished();
    void terminateAtAnyMoment();
    void terminateWithAToolThatIgnoresIt();
    void terminateTakesTheToolsChildrenAlong();
    void terminateBeforeStartDoesNoHarm();
    void terminateAfterTheEndDoesNothing();
    void terminatedRunnerCanBeDeletedAtOnce();
    void killedProcessEndsTheRun();
};

void TstCRunCommandThreadStop::terminateEndsTheRunWithoutSigfinished()
{
    ScriptedCalls(toolPath()).setScript({"out started\\n", "sleep 60000"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1, 5000));
    run.runner.terminate();
    QCOMPARE(run.terminating, 1);
    QVERIFY(QTest::qWaitFor([&run] { return run.runner.isFinished(); }, stopLimitMs));
    QVERIFY(childProcesses().isEmpty());
    QTest::qWait(50);
    QCOMPARE(run.finished, 0);
    QVERIFY(run.runner.running);
}

void TstCRunCommandThreadStop::terminateAtAnyMoment()
{
    ScriptedCalls(toolPath()).setScript({"lines 2000 line", "sleep 20", "lines 2000 line"});
    for (int delay = 0; delay < 40; ++delay) {
        Run run;
        run.runner.start(QThread::InheritPriority);
        QTest::qWait(delay);
        run.runner.terminate();
        QVERIFY(QTest::qWaitFor([&run] { return run.runner.isFinished(); }, stopLimitMs));
        QCoreApplication::processEvents();
        // Either the tool's end came first and is told, or the stop did and nothing is.
        QCOMPARE(run.runner.running.load(), run.finished == 0);
    }
    QVERIFY(childProcesses().isEmpty());
}

void TstCRunCommandThreadStop::terminateWithAToolThatIgnoresIt()
{
    ScriptedCalls(toolPath()).setScript({"ignore-term", "out ready\\n", "sleep 60000"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1, 5000));
    run.runner.terminate();
    QVERIFY(QTest::qWaitFor([&run] { return run.runner.isFinished(); }, stopLimitMs));
    QVERIFY(childProcesses().isEmpty());
}

void TstCRunCommandThreadStop::terminateTakesTheToolsChildrenAlong()
{
    ScriptedCalls(toolPath())
        .setScript({"child 60000", "ignore-term", "out ready\\n", "sleep 60000"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1, 5000));
    QCOMPARE(processesOf("scriptedtool").size(), 2);
    run.runner.terminate();
    QVERIFY(QTest::qWaitFor([] { return processesOf("scriptedtool").isEmpty(); }, stopLimitMs));
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
    QVERIFY(run.waitForPieces(1, 5000));
    run.runner.OnTerminateProcess();
    QVERIFY(run.waitForEnd(stopLimitMs));
    QVERIFY(!run.runner.running);
    QVERIFY(childProcesses().isEmpty());
}

KORVEX_TEST_MAIN(TstCRunCommandThreadStop)
#include "tst_cruncommandthread_stop.moc"
