// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cruncommandthread.h"
#include "processcounts.h"
#include "scriptedcalls.h"
#include "testcase.h"
#include "testmain.h"
#include "toolenvironment.h"
#include "util.h"

#include <QPointer>

namespace
{

QString toolPath()
{
    return QCoreApplication::applicationDirPath() + "/7z/7z";
}

constexpr int stopLimitMs = 2000;

// The longest time between two turns of the event loop, which is how long a window would not
// answer.
class LoopWatch : public QObject
{
public:
    LoopWatch()
    {
        sinceTurn.start();
        startTimer(5);
    }
    qint64 longestMs = 0;

protected:
    void timerEvent(QTimerEvent*) override { longestMs = qMax(longestMs, sinceTurn.restart()); }

private:
    QElapsedTimer sinceTurn;
};

// A runner of the stand-in tool and what this thread has received from it.
struct Run
{
    explicit Run(const QStringList& arguments = {"argument"})
    {
        QObject::connect(&runner, &CRunCommandThread::standoutputline, &receiver,
                         [this](const QString& piece) { pieces.append(piece); });
        QObject::connect(&runner, &CRunCommandThread::sigfinished, &receiver,
                         [this] { ++finished; });
        QObject::connect(&runner, &CRunCommandThread::terminateprocess, &receiver,
                         [this] { ++terminating; });
        runner.SetRunCmd(toolPath(), arguments);
    }

    bool waitForEnd(int limitMs = 10000, int ends = 1)
    {
        return QTest::qWaitFor([this, ends] { return finished == ends; }, limitMs);
    }

    bool finish(int limitMs = 10000)
    {
        runner.start(QThread::InheritPriority);
        return waitForEnd(limitMs);
    }

    bool waitForPieces(int count, int limitMs = 5000)
    {
        return QTest::qWaitFor([this, count] { return pieces.size() >= count; }, limitMs);
    }

    QObject receiver;
    CRunCommandThread runner{nullptr};
    QStringList pieces;
    int finished = 0;
    int terminating = 0;
};

} // namespace

class TstCRunCommandThread : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void carriageReturnsSetPiecesApart();
    void blanksAndLineEndsOnlyGiveNoSignalAndNoLogLine();
    void everyPieceAndTheCommandAreLogged();
    void collectModeKeepsEmptyParts();
    void collectModeEndsAtAZeroByteAndReadsLatin1();
    void collectModeEmitsNoPieces();
    void argumentsNeedNoQuoting();
    void programPathWithBlanksNeedsNoQuoting();
    void commandLineIsSplitAtBlanksUnlessQuoted();
    void bothChannelsArriveInOneStream();
    void linesCutByTheirPipeArriveWhole_data();
    void linesCutByTheirPipeArriveWhole();
    void unfinishedPieceIsTakenAfterOneStepOfSilence();
    void unfinishedLastLineArrives();
    void progressDrawnInPlaceArrivesWhileTheToolRuns();
    void lineIsCutAtTheBufferSize();
    void zeroByteEndsItsRead();
    void invalidUtf8IsReplaced();
    void missingToolFinishesWithoutPieces();
    void failingToolFinishes();
    void crashingToolFinishes();
    void emptyCommandFinishes();
    void runningLastsFromStartToEnd();
    void waitFinishedKeepsTheLoopTurning();
    void runnerCanBeStartedAgain();
    void terminateEndsTheRunWithoutSigfinished();
    void terminateAtAnyMoment();
    void terminateWithAToolThatIgnoresIt();
    void terminateTakesTheToolsChildrenAlong();
    void terminateBeforeStartDoesNoHarm();
    void terminateAfterTheEndDoesNothing();
    void terminatedRunnerCanBeDeletedAtOnce();
    void deleteLaterFromASlotWhileTheToolRuns();
    void fiftyRunsLeaveNothingBehind();
    void killedProcessEndsTheRun();
    void floodIsTakenWithoutGrowingOrFreezing();
    void hundredThousandLinesInOrder();
    void toolWithAHeldPipeDoesNotHang();
    void osascriptIsStartedWhereItExists();
    void childRunsWithUtf8AndDecimalPoints();
    void settingIsReadFromTheIniFile();
};

void TstCRunCommandThread::initTestCase()
{
    useUtf8Codec();
}

void TstCRunCommandThread::init()
{
    TestCase::init();
    QFile::remove(Util::GetCurrentExePath() + "/config.dat");
    QFile::remove(Util::GetTempDir() + "/log.txt");
}

namespace
{

QStringList logLines()
{
    QFile log(Util::GetTempDir() + "/log.txt");
    if (!log.open(QIODevice::ReadOnly))
        return {};
    QStringList texts;
    const auto lines = QString::fromUtf8(log.readAll()).split('\n');
    for (const QString& line : lines)
        texts.append(line.mid(QString("yyyy-MM-dd hh:mm:ss ").size()));
    return texts;
}

void switchLogOn()
{
    QFile file(Util::GetCurrentExePath() + "/config.dat");
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

void TstCRunCommandThread::carriageReturnsSetPiecesApart()
{
    ScriptedCalls(toolPath()).setScript({"out 10%\\r20%\\r30%\\n"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList({"10%", "20%", "30%\n"}));
}

void TstCRunCommandThread::blanksAndLineEndsOnlyGiveNoSignalAndNoLogLine()
{
    ScriptedCalls(toolPath()).setScript({"out   \\n\\r\\n \\r \\n"});
    switchLogOn();
    Run run;
    QVERIFY(run.finish());
    QVERIFY(run.pieces.isEmpty());
    QCOMPARE(logLines(), QStringList({toolPath() + " argument ", ""}));
}

void TstCRunCommandThread::everyPieceAndTheCommandAreLogged()
{
    ScriptedCalls(toolPath()).setScript({"out one\\ntwo\\n"});
    switchLogOn();
    Run run({"a", "b c"});
    QVERIFY(run.finish());
    // A piece keeps its line end, so each is followed by an empty line.
    QCOMPARE(logLines(), QStringList({toolPath() + " a b c ", "one", "", "two", "", ""}));
}

void TstCRunCommandThread::collectModeKeepsEmptyParts()
{
    ScriptedCalls(toolPath()).setScript({"out a\\r\\nb\\n"});
    Run run;
    run.runner.collectOutput = true;
    QVERIFY(run.finish());
    QCOMPARE(run.runner.outputLines, QStringList({"a", "b", ""}));
}

void TstCRunCommandThread::collectModeEndsAtAZeroByteAndReadsLatin1()
{
    ScriptedCalls(toolPath()).setScript({"out \\xe9\\n\\x00b\\n"});
    Run run;
    run.runner.collectOutput = true;
    QVERIFY(run.finish());
    QCOMPARE(run.runner.outputLines, QStringList({QString(QChar(0xe9)), ""}));
}

void TstCRunCommandThread::collectModeEmitsNoPieces()
{
    ScriptedCalls(toolPath()).setScript({"out a\\n", "sleep 700", "out b\\n"});
    Run run;
    run.runner.collectOutput = true;
    QVERIFY(run.finish());
    QVERIFY(run.pieces.isEmpty());
    QCOMPARE(run.runner.outputLines, QStringList({"a", "b", ""}));
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

void TstCRunCommandThread::bothChannelsArriveInOneStream()
{
    ScriptedCalls(toolPath())
        .setScript({"out one\\n", "err two\\n", "out three\\n", "err four\\n"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList({"one\n", "two\n", "three\n", "four\n"}));
}

void TstCRunCommandThread::linesCutByTheirPipeArriveWhole_data()
{
    QTest::addColumn<int>("block");
    for (const int block : {1, 2, 3, 7, 64, 100, 4096})
        QTest::addRow("blocks of %d bytes", block) << block;
}

void TstCRunCommandThread::linesCutByTheirPipeArriveWhole()
{
    QFETCH(int, block);
    const QString path = KORVEX_TEST_DATA "/7z/list-unicode-26.02.txt";
    ScriptedCalls(toolPath()).setScript({QString("file %1 %2").arg(block).arg(path)});
    Run run;
    QVERIFY(run.finish(30000));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QStringList expected;
    for (QByteArray line; !(line = file.readLine()).isEmpty();) {
        if (!line.trimmed().isEmpty())
            expected.append(QString::fromUtf8(line));
    }
    QCOMPARE(run.pieces, expected);
}

void TstCRunCommandThread::unfinishedPieceIsTakenAfterOneStepOfSilence()
{
    ScriptedCalls(toolPath()).setScript({"out Password: ", "sleep 6000", "out given\\n"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1, 5000));
    QCOMPARE(run.pieces, QStringList("Password: "));
    QVERIFY(run.waitForEnd(10000));
    QCOMPARE(run.pieces, QStringList({"Password: ", "given\n"}));
}

void TstCRunCommandThread::unfinishedLastLineArrives()
{
    ScriptedCalls(toolPath()).setScript({"out one\\nlast"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList({"one\n", "last"}));
}

void TstCRunCommandThread::progressDrawnInPlaceArrivesWhileTheToolRuns()
{
    ScriptedCalls(toolPath())
        .setScript({"err  10%", "sleep 20", "err \\b\\b\\b\\b 20%", "sleep 20", "err \\r 30%",
                    "sleep 6000"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    const auto everythingHasCome = [&run] { return run.pieces.join("").endsWith(" 30%"); };
    QVERIFY(QTest::qWaitFor(everythingHasCome, 5000));
    QCOMPARE(run.pieces.join(""), QString(" 10%\b\b\b\b 20% 30%"));
    QCOMPARE(run.finished, 0);
}

void TstCRunCommandThread::lineIsCutAtTheBufferSize()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("long"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(10000, 'x') + "\nshort\n");
    file.close();
    ScriptedCalls(toolPath()).setScript({"file 4096 " + file.fileName()});
    Run run;
    QVERIFY(run.finish());
    QStringList expected;
    for (int i = 0; i < 4; ++i)
        expected.append(QString(2047, 'x'));
    expected << QString(10000 - 4 * 2047, 'x') + '\n' << "short\n";
    QCOMPARE(run.pieces, expected);
}

void TstCRunCommandThread::zeroByteEndsItsRead()
{
    ScriptedCalls(toolPath()).setScript({"out ab\\x00cd\\nnext\\n\\x00lost\\n"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList({"ab", "next\n"}));
}

void TstCRunCommandThread::invalidUtf8IsReplaced()
{
    ScriptedCalls(toolPath()).setScript({"out a\\xff\\xfe\\xc3b\\n\\xe6\\x97\\n"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces.size(), 2);
    QVERIFY(run.pieces.first().startsWith("a\ufffd"));
    QVERIFY(run.pieces.first().endsWith("b\n"));
}

void TstCRunCommandThread::missingToolFinishesWithoutPieces()
{
    switchLogOn();
    Run run;
    run.runner.SetRunCmd("/no/such/tool", {"l"});
    QVERIFY(run.finish());
    QVERIFY(run.pieces.isEmpty());
    QVERIFY(!run.runner.running);
    QVERIFY(logLines().contains("CRunCommandThread::sloterrorstart"));
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

void TstCRunCommandThread::terminateEndsTheRunWithoutSigfinished()
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

void TstCRunCommandThread::terminateAtAnyMoment()
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

void TstCRunCommandThread::terminateWithAToolThatIgnoresIt()
{
    ScriptedCalls(toolPath()).setScript({"ignore-term", "out ready\\n", "sleep 60000"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1, 5000));
    run.runner.terminate();
    QVERIFY(QTest::qWaitFor([&run] { return run.runner.isFinished(); }, stopLimitMs));
    QVERIFY(childProcesses().isEmpty());
}

void TstCRunCommandThread::terminateTakesTheToolsChildrenAlong()
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

void TstCRunCommandThread::terminateBeforeStartDoesNoHarm()
{
    ScriptedCalls(toolPath()).setScript({"out a\\n"});
    Run run;
    run.runner.terminate();
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList("a\n"));
}

void TstCRunCommandThread::terminateAfterTheEndDoesNothing()
{
    Run run;
    QVERIFY(run.finish());
    run.runner.terminate();
    QCOMPARE(run.terminating, 0);
    QVERIFY(!run.runner.running);
}

void TstCRunCommandThread::terminatedRunnerCanBeDeletedAtOnce()
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
    QCOMPARE(runnerThreadCount(), 0);
    const int descriptors = descriptorCount();
    for (int i = 0; i < 50; ++i) {
        Run run;
        QVERIFY(run.finish());
    }
    QCOMPARE(runnerThreadCount(), 0);
    QVERIFY(descriptorCount() <= descriptors);
}

void TstCRunCommandThread::killedProcessEndsTheRun()
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

void TstCRunCommandThread::floodIsTakenWithoutGrowingOrFreezing()
{
    constexpr int megabytes = 100;
    ScriptedCalls(toolPath()).setScript({QString("flood %1").arg(megabytes)});
    CRunCommandThread runner(nullptr);
    bool finished = false;
    qint64 characters = 0;
    connect(&runner, &CRunCommandThread::sigfinished, this, [&finished] { finished = true; });
    connect(&runner, &CRunCommandThread::standoutputline, this,
            [&characters](const QString& piece) { characters += piece.size(); });
    runner.SetRunCmd(toolPath(), {"x"});
    const qint64 before = residentKilobytes();
    LoopWatch watch;
    qint64 most = 0;
    runner.start(QThread::InheritPriority);
    while (!finished) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        most = qMax(most, residentKilobytes());
    }
    QCOMPARE(characters, qint64(2) * megabytes * ((1 << 20) / 44 + 1) * 44);
    QVERIFY2(most - before < 32 * 1024, qPrintable(QString::number(most - before)));
    QVERIFY2(watch.longestMs < 200, qPrintable(QString::number(watch.longestMs)));
}

void TstCRunCommandThread::hundredThousandLinesInOrder()
{
    constexpr int count = 100000;
    ScriptedCalls(toolPath()).setScript({QString("lines %1 line").arg(count)});
    Run run;
    QVERIFY(run.finish(60000));
    QCOMPARE(run.pieces.size(), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(run.pieces.at(i), QString("line %1\n").arg(i + 1));
}

void TstCRunCommandThread::toolWithAHeldPipeDoesNotHang()
{
    ScriptedCalls(toolPath()).setScript({"child 8000", "out done\\n"});
    Run run;
    QVERIFY(run.finish(5000));
    QCOMPARE(run.pieces, QStringList("done\n"));
    QVERIFY(QTest::qWaitFor([] { return processesOf("scriptedtool").isEmpty(); }, 20000));
}

void TstCRunCommandThread::osascriptIsStartedWhereItExists()
{
    Run run;
    run.runner.SetRunCmd("display dialog \"no quoting needed\"", {});
    run.runner.useOsascript = true;
    if (!QFile::exists("/usr/bin/osascript"))
        QVERIFY(run.finish());
    // Elsewhere the start fails like that of any missing tool; the text is not run as a command.
    QVERIFY(run.pieces.isEmpty());
    QVERIFY(!run.runner.running);
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
