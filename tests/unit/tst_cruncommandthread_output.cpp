// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "processcounts.h"
#include "scriptedcalls.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "toolenvironment.h"
#include "toolrun.h"

#include <QTemporaryDir>

// How the runner reads what a tool prints.
class TstCRunCommandThreadOutput : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void carriageReturnsSetPiecesApart();
    void blanksAndLineEndsOnlyGiveNoSignalAndNoLogLine();
    void everyPieceAndTheCommandAreLogged();
    void bothChannelsArriveInOneStream();
    void linesCutByTheirPipeArriveWhole_data();
    void linesCutByTheirPipeArriveWhole();
    void unfinishedPieceIsTakenAfterOneStepOfSilence();
    void unfinishedLastLineArrives();
    void progressDrawnInPlaceArrivesWhileTheToolRuns();
    void lineIsCutAtTheBufferSize();
    void zeroByteEndsItsRead();
    void invalidUtf8IsReplaced();
    void collectModeKeepsEmptyParts();
    void collectModeEndsAtAZeroByteAndReadsLatin1();
    void collectModeEmitsNoPieces();
    void hundredThousandLinesInOrder();
    void floodIsTakenWithoutGrowingOrFreezing();
};

void TstCRunCommandThreadOutput::initTestCase()
{
    useUtf8Codec();
}

void TstCRunCommandThreadOutput::carriageReturnsSetPiecesApart()
{
    ScriptedCalls(toolPath()).setScript({"out 10%\\r20%\\r30%\\n"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList({"10%", "20%", "30%\n"}));
}

void TstCRunCommandThreadOutput::blanksAndLineEndsOnlyGiveNoSignalAndNoLogLine()
{
    ScriptedCalls(toolPath()).setScript({"out   \\n\\r\\n \\r \\n"});
    const LogSwitch logSwitch;
    Run run;
    QVERIFY(run.finish());
    QVERIFY(run.pieces.isEmpty());
    QCOMPARE(LogSwitch::texts(), QStringList(toolPath() + " argument "));
}

void TstCRunCommandThreadOutput::everyPieceAndTheCommandAreLogged()
{
    ScriptedCalls(toolPath()).setScript({"out one\\ntwo\\n"});
    const LogSwitch logSwitch;
    Run run({"a", "b c"});
    QVERIFY(run.finish());
    // A piece keeps its line end, so each is followed by an empty line.
    QCOMPARE(LogSwitch::texts(), QStringList({toolPath() + " a b c ", "one",
                                              "without time: ", "two", "without time: "}));
}

void TstCRunCommandThreadOutput::bothChannelsArriveInOneStream()
{
    ScriptedCalls(toolPath())
        .setScript({"out one\\n", "err two\\n", "out three\\n", "err four\\n"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList({"one\n", "two\n", "three\n", "four\n"}));
}

void TstCRunCommandThreadOutput::linesCutByTheirPipeArriveWhole_data()
{
    QTest::addColumn<int>("block");
    for (const int block : {1, 2, 3, 7, 64, 100, 4096})
        QTest::addRow("blocks of %d bytes", block) << block;
}

void TstCRunCommandThreadOutput::linesCutByTheirPipeArriveWhole()
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

void TstCRunCommandThreadOutput::unfinishedPieceIsTakenAfterOneStepOfSilence()
{
    ScriptedCalls(toolPath()).setScript({"out Password: ", "sleep 6000", "out given\\n"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1, 5000));
    QCOMPARE(run.pieces, QStringList("Password: "));
    QVERIFY(run.waitForEnd(10000));
    QCOMPARE(run.pieces, QStringList({"Password: ", "given\n"}));
}

void TstCRunCommandThreadOutput::unfinishedLastLineArrives()
{
    ScriptedCalls(toolPath()).setScript({"out one\\nlast"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList({"one\n", "last"}));
}

void TstCRunCommandThreadOutput::progressDrawnInPlaceArrivesWhileTheToolRuns()
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

void TstCRunCommandThreadOutput::lineIsCutAtTheBufferSize()
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

void TstCRunCommandThreadOutput::zeroByteEndsItsRead()
{
    ScriptedCalls(toolPath()).setScript({"out ab\\x00cd\\nnext\\n\\x00lost\\n"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList({"ab", "next\n"}));
}

void TstCRunCommandThreadOutput::invalidUtf8IsReplaced()
{
    ScriptedCalls(toolPath()).setScript({"out a\\xff\\xfe\\xc3b\\n\\xe6\\x97\\n"});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces.size(), 2);
    QVERIFY(run.pieces.first().startsWith("a\ufffd"));
    QVERIFY(run.pieces.first().endsWith("b\n"));
}

void TstCRunCommandThreadOutput::collectModeKeepsEmptyParts()
{
    ScriptedCalls(toolPath()).setScript({"out a\\r\\nb\\n"});
    Run run;
    run.runner.collectOutput = true;
    QVERIFY(run.finish());
    QCOMPARE(run.runner.outputLines, QStringList({"a", "b", ""}));
}

void TstCRunCommandThreadOutput::collectModeEndsAtAZeroByteAndReadsLatin1()
{
    ScriptedCalls(toolPath()).setScript({"out \\xe9\\n\\x00b\\n"});
    Run run;
    run.runner.collectOutput = true;
    QVERIFY(run.finish());
    QCOMPARE(run.runner.outputLines, QStringList({QString(QChar(0xe9)), ""}));
}

void TstCRunCommandThreadOutput::collectModeEmitsNoPieces()
{
    ScriptedCalls(toolPath()).setScript({"out a\\n", "sleep 700", "out b\\n"});
    Run run;
    run.runner.collectOutput = true;
    QVERIFY(run.finish());
    QVERIFY(run.pieces.isEmpty());
    QCOMPARE(run.runner.outputLines, QStringList({"a", "b", ""}));
}

void TstCRunCommandThreadOutput::hundredThousandLinesInOrder()
{
    constexpr int count = 100000;
    ScriptedCalls(toolPath()).setScript({QString("lines %1 line").arg(count)});
    Run run;
    QVERIFY(run.finish(60000));
    QCOMPARE(run.pieces.size(), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(run.pieces.at(i), QString("line %1\n").arg(i + 1));
}

void TstCRunCommandThreadOutput::floodIsTakenWithoutGrowingOrFreezing()
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

KORVEX_TEST_MAIN(TstCRunCommandThreadOutput)
#include "tst_cruncommandthread_output.moc"
