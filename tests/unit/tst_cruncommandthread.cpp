// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "otherlimit.h"
#include "processcounts.h"
#include "scriptedcalls.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "toolenvironment.h"
#include "toolrun.h"
#include "trigger.h"
#include "util.h"

#include <QPointer>
#include <QSemaphore>
#include <QTemporaryDir>

#include <csignal>

class TstCRunCommandThread : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void argumentsNeedNoQuoting();
    void programPathWithBlanksNeedsNoQuoting();
    void commandLineIsSplitAtBlanksUnlessQuoted();
    void missingToolFinishesWithoutPieces();
    void failingToolFinishes();
    void crashingToolFinishes();
    void emptyCommandFinishes();
    void runningLastsFromStartToEnd();
    void waitFinishedKeepsTheLoopTurning();
    void runnerCanBeStartedAgain();
    void startFromASlotOnTheEnd_data();
    void startFromASlotOnTheEnd();
    void startDuringARunDoesNothing();
    void deleteLaterFromASlotWhileTheToolRuns();
    void neverStartedRunnerIsFreedByDeleteLater();
    void fiftyRunsLeaveNothingBehind();
    void toolWithAHeldPipeDoesNotHang();
    void toolThatAsksGetsTheEndOfItsInput();
    void scriptTextIsNotRunAsACommand();
    void scriptRunnerReadsTheText_data();
    void scriptRunnerReadsTheText();
    void childRunsWithUtf8AndDecimalPoints();
    void settingIsReadFromTheIniFile();
};

void TstCRunCommandThread::initTestCase()
{
    useUtf8Codec();
}

void TstCRunCommandThread::argumentsNeedNoQuoting()
{
    const QStringList arguments{
        "a b", "\"quoted\"", "'", "", "-x", "$HOME;ls|", QString::fromUtf8("日本語 é Д"), "\\"};
    const ScriptedCalls tool(toolPath());
    Run run(arguments);
    QVERIFY(run.finish());
    QCOMPARE(tool.calls(), QList<QStringList>{arguments});
}

void TstCRunCommandThread::programPathWithBlanksNeedsNoQuoting()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("a \"tool\" é");
    QVERIFY(QFile::copy(KORVEX_SCRIPTED_TOOL, path));
    const ScriptedCalls tool(path);
    tool.setScript({"out started\\n"});
    Run run;
    run.runner.SetRunCmd(path, {"one"});
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList("started\n"));
    QCOMPARE(tool.calls(), QList<QStringList>{{"one"}});
}

void TstCRunCommandThread::commandLineIsSplitAtBlanksUnlessQuoted()
{
    const ScriptedCalls tool(toolPath());
    Run run;
    run.runner.SetRunCmd('"' + toolPath() + "\" one \"two three\"  four", {});
    QVERIFY(run.finish());
    QCOMPARE(tool.calls(), (QList<QStringList>{{"one", "two three", "four"}}));
}

void TstCRunCommandThread::missingToolFinishesWithoutPieces()
{
    const LogSwitch logSwitch;
    Run run;
    run.runner.SetRunCmd("/no/such/tool", {"l"});
    QVERIFY(run.finish());
    QVERIFY(run.pieces.isEmpty());
    QVERIFY(!run.runner.running);
    QVERIFY(LogSwitch::texts().contains("CRunCommandThread::sloterrorstart"));
}

void TstCRunCommandThread::failingToolFinishes()
{
    ScriptedCalls(toolPath()).setScript({"err failed\\n", "exit 7"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList("failed\n"));
}

void TstCRunCommandThread::crashingToolFinishes()
{
    ScriptedCalls(toolPath()).setScript({"out before\\n", "crash"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList("before\n"));
}

void TstCRunCommandThread::emptyCommandFinishes()
{
    Run run;
    run.runner.SetRunCmd("", {});
    QVERIFY(run.finish());
    QVERIFY(run.pieces.isEmpty());
}

void TstCRunCommandThread::runningLastsFromStartToEnd()
{
    const ScriptedCalls tool(toolPath());
    tool.setScript({tool.holding("end")});
    Run run;
    QVERIFY(!run.runner.running);
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.runner.running);
    QVERIFY(tool.isHeld("end"));
    QVERIFY(run.runner.running);
    tool.release("end");
    QVERIFY(run.waitForEnd());
    QVERIFY(!run.runner.running);
}

void TstCRunCommandThread::waitFinishedKeepsTheLoopTurning()
{
    const ScriptedCalls tool(toolPath());
    tool.setScript({"out a\\n", tool.holding("loop")});
    Run run;
    // The tool ends only if the loop that waits for it handles this.
    const Trigger release([&run] { return !run.pieces.isEmpty(); },
                          [&tool] { tool.release("loop"); });
    run.runner.start(QThread::InheritPriority);
    run.runner.waitFinished();
    QVERIFY(release.hasFired());
    QVERIFY(!run.runner.running);
    QCOMPARE(run.pieces, QStringList("a\n"));
}

void TstCRunCommandThread::runnerCanBeStartedAgain()
{
    const ScriptedCalls tool(toolPath());
    tool.setScript({"out a\\n"});
    Run run;
    QVERIFY(run.finish());
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForEnd(2));
    QCOMPARE(run.pieces, QStringList({"a\n", "a\n"}));
    QCOMPARE(tool.calls().size(), 2);
}

void TstCRunCommandThread::startFromASlotOnTheEnd_data()
{
    QTest::addColumn<Qt::ConnectionType>("connection");
    QTest::newRow("in this thread") << Qt::QueuedConnection;
    QTest::newRow("in this thread, which the worker waits for") << Qt::BlockingQueuedConnection;
    QTest::newRow("in the worker") << Qt::DirectConnection;
}

void TstCRunCommandThread::startFromASlotOnTheEnd()
{
    QFETCH(Qt::ConnectionType, connection);
    const ScriptedCalls tool(toolPath());
    tool.setScript({"out a\\n"});
    Run run;
    QSemaphore started;
    std::atomic<int> ends{0};
    connect(
        &run.runner, &CRunCommandThread::sigfinished, &run.receiver,
        [&] {
            if (++ends < 3)
                run.runner.start(QThread::InheritPriority);
            started.release();
        },
        connection);
    // The worker has not left when it is started again.
    connect(
        &run.runner, &CRunCommandThread::sigfinished, &run.receiver,
        [&started] { started.tryAcquire(1, limitMs); }, Qt::DirectConnection);
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForEnd(3));
    QVERIFY(QTest::qWaitFor([&ends] { return ends == 3; }, limitMs));
    QVERIFY(run.waitForWorker());
    QCOMPARE(run.pieces, QStringList({"a\n", "a\n", "a\n"}));
    QCOMPARE(tool.calls().size(), 3);
    QVERIFY(!run.runner.running);
    // The runner is back, and takes another command.
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForEnd(4));
}

void TstCRunCommandThread::startDuringARunDoesNothing()
{
    const ScriptedCalls tool(toolPath());
    tool.setScript({tool.holding("end")});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(tool.isHeld("end"));
    run.runner.start(QThread::InheritPriority);
    tool.release("end");
    QVERIFY(run.waitForWorker());
    QCOMPARE(run.finished, 1);
    QCOMPARE(tool.calls().size(), 1);
}

void TstCRunCommandThread::deleteLaterFromASlotWhileTheToolRuns()
{
    const ScriptedCalls tool(toolPath());
    tool.setScript({"out first\\n", tool.holding("rest"), "out later\\n"});
    QPointer<CRunCommandThread> runner = new CRunCommandThread(nullptr);
    connect(runner.data(), &CRunCommandThread::standoutputline, this, [&] {
        runner->deleteLater();
        tool.release("rest");
    });
    runner->SetRunCmd(toolPath(), {"x"});
    runner->start(QThread::InheritPriority);
    QVERIFY(QTest::qWaitFor([&runner] { return runner.isNull(); }, limitMs));
    QVERIFY(childProcesses().isEmpty());
}

void TstCRunCommandThread::neverStartedRunnerIsFreedByDeleteLater()
{
    const QPointer<CRunCommandThread> runner = new CRunCommandThread(nullptr);
    runner->SetRunCmd(toolPath(), {"x"});
    runner->deleteLater();
    runner->deleteLater();
    QVERIFY(QTest::qWaitFor([&runner] { return runner.isNull(); }, limitMs));
    // Somebody else is faster.
    auto other = std::make_unique<CRunCommandThread>(nullptr);
    other->SetRunCmd(toolPath(), {"x"});
    other->deleteLater();
    other.reset();
    QCoreApplication::processEvents();
}

void TstCRunCommandThread::fiftyRunsLeaveNothingBehind()
{
    ScriptedCalls(toolPath()).setScript({"out a\\n"});
    Run first;
    QVERIFY(first.finish());
    QVERIFY(first.waitForWorker());
    QTRY_VERIFY_WITH_TIMEOUT(areRunnersGone(), limitMs);
    const int descriptors = descriptorCount();
    for (int i = 0; i < 50; ++i) {
        Run run;
        QVERIFY(run.finish());
    }
    QTRY_VERIFY_WITH_TIMEOUT(areRunnersGone(), limitMs);
    QVERIFY(descriptorCount() <= descriptors);
}

void TstCRunCommandThread::toolWithAHeldPipeDoesNotHang()
{
    ScriptedCalls(toolPath()).setScript({"child 600000", "out done\\n"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList("done\n"));
    const QList<qint64> left = processesOf("scriptedtool");
    QCOMPARE(left.size(), 1);
    QCOMPARE(::kill(pid_t(left.first()), SIGKILL), 0);
}

void TstCRunCommandThread::toolThatAsksGetsTheEndOfItsInput()
{
    ScriptedCalls(toolPath()).setScript({"out Password: \\n", "input", "out none\\n"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList({"Password: \n", "none\n"}));
    run.runner.SetRunCmd('"' + toolPath() + '"', {});
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForEnd(2));
}

void TstCRunCommandThread::scriptTextIsNotRunAsACommand()
{
    // A text that would start the stand-in, were it not handed to the script runner.
    const ScriptedCalls tool(toolPath());
    Run run;
    run.runner.SetRunCmd(toolPath(), {});
    run.runner.useOsascript = true;
    QVERIFY(run.finish());
    QVERIFY(tool.calls().isEmpty());
    run.runner.useOsascript = false;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForEnd(2));
    QCOMPARE(tool.calls().size(), 1);
}

void TstCRunCommandThread::scriptRunnerReadsTheText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("short") << QString::fromUtf8("say \"é 光\"\n");
    QTest::newRow("longer than a pipe") << QString::fromUtf8("say \"é 光\"\n").repeated(20000);
}

void TstCRunCommandThread::scriptRunnerReadsTheText()
{
    QFETCH(QString, text);
    const ScriptedCalls tool(toolPath());
    tool.setScript({"input"});
    Run run;
    QCOMPARE(run.runner.scriptRunner, QString("/usr/bin/osascript"));
    run.runner.scriptRunner = toolPath();
    run.runner.SetRunCmd(text, {});
    run.runner.useOsascript = true;
    QVERIFY(run.finish());
    QVERIFY(run.pieces.join(QString()) == text);
    QCOMPARE(tool.calls(), (QList<QStringList>{{"-l", "AppleScript"}}));
}

void TstCRunCommandThread::childRunsWithUtf8AndDecimalPoints()
{
    ScriptedCalls(toolPath())
        .setScript({"environment LC_ALL", "environment LC_NUMERIC", "environment LC_CTYPE"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces.size(), 3);
    QCOMPARE(run.pieces.at(0), QString("LC_ALL!\n"));
    QCOMPARE(run.pieces.at(1), QString("LC_NUMERIC=C\n"));
    QVERIFY(run.pieces.at(2).endsWith("UTF-8\n"));
}

void TstCRunCommandThread::settingIsReadFromTheIniFile()
{
    const QString path = Util::GetCurrentExePath() + "/ISOMAKER.ini";
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[General]\nLOCALCP=GBK\n");
    file.close();
    // Its value changes nothing: output is read as before.
    ScriptedCalls(toolPath()).setScript({"out \\xe6\\x97\\xa5\\n"});
    Run run;
    QVERIFY(QFile::remove(path));
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList(QString::fromUtf8("日\n")));
}

KORVEX_TEST_MAIN(TstCRunCommandThread)
#include "tst_cruncommandthread.moc"
