// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "processcounts.h"
#include "scriptedcalls.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "toolenvironment.h"
#include "toolrun.h"
#include "util.h"

#include <QPointer>
#include <QTemporaryDir>

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
    void deleteLaterFromASlotWhileTheToolRuns();
    void fiftyRunsLeaveNothingBehind();
    void toolWithAHeldPipeDoesNotHang();
    void scriptTextIsNotRunAsACommand();
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
    ScriptedCalls(toolPath()).setScript({"sleep 400"});
    Run run;
    QVERIFY(!run.runner.running);
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.runner.running);
    QVERIFY(run.waitForEnd(10000));
    QVERIFY(!run.runner.running);
}

void TstCRunCommandThread::waitFinishedKeepsTheLoopTurning()
{
    ScriptedCalls(toolPath()).setScript({"out a\\n", "sleep 600"});
    Run run;
    LoopWatch watch;
    run.runner.start(QThread::InheritPriority);
    run.runner.waitFinished();
    QVERIFY(!run.runner.running);
    QVERIFY(watch.longestMs > 0);
    QVERIFY2(watch.longestMs < 200, qPrintable(QString::number(watch.longestMs)));
    QCoreApplication::processEvents();
    QCOMPARE(run.pieces, QStringList("a\n"));
}

void TstCRunCommandThread::runnerCanBeStartedAgain()
{
    const ScriptedCalls tool(toolPath());
    tool.setScript({"out a\\n"});
    Run run;
    QVERIFY(run.finish());
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForEnd(10000, 2));
    QCOMPARE(run.pieces, QStringList({"a\n", "a\n"}));
    QCOMPARE(tool.calls().size(), 2);
}

void TstCRunCommandThread::deleteLaterFromASlotWhileTheToolRuns()
{
    ScriptedCalls(toolPath()).setScript({"out first\\n", "sleep 500", "out later\\n"});
    QPointer<CRunCommandThread> runner = new CRunCommandThread(nullptr);
    connect(runner.data(), &CRunCommandThread::standoutputline, this,
            [&runner] { runner->deleteLater(); });
    runner->SetRunCmd(toolPath(), {"x"});
    runner->start(QThread::InheritPriority);
    QVERIFY(QTest::qWaitFor([&runner] { return runner.isNull(); }, 10000));
    QVERIFY(childProcesses().isEmpty());
}

void TstCRunCommandThread::fiftyRunsLeaveNothingBehind()
{
    ScriptedCalls(toolPath()).setScript({"out a\\n"});
    Run first;
    QVERIFY(first.finish());
    QVERIFY(QTest::qWaitFor([&first] { return first.runner.isFinished(); }, stopLimitMs));
    QTRY_COMPARE(runnerThreadCount(), 0);
    const int descriptors = descriptorCount();
    for (int i = 0; i < 50; ++i) {
        Run run;
        QVERIFY(run.finish());
    }
    QTRY_COMPARE(runnerThreadCount(), 0);
    QVERIFY(descriptorCount() <= descriptors);
}

void TstCRunCommandThread::toolWithAHeldPipeDoesNotHang()
{
    ScriptedCalls(toolPath()).setScript({"child 8000", "out done\\n"});
    Run run;
    QVERIFY(run.finish(5000));
    QCOMPARE(run.pieces, QStringList("done\n"));
    QVERIFY(QTest::qWaitFor([] { return processesOf("scriptedtool").isEmpty(); }, 20000));
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
    QVERIFY(run.waitForEnd(10000, 2));
    QCOMPARE(tool.calls().size(), 1);
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
