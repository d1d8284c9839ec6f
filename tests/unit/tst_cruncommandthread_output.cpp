// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "deliverypacer.h"
#include "otherlimit.h"
#include "outputpieces.h"
#include "processcounts.h"
#include "scriptedcalls.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "toolenvironment.h"
#include "toolrun.h"

#include <QTemporaryDir>
#include <QTimer>

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
    void lineOfAListIsNotTakenUnfinished_data();
    void lineOfAListIsNotTakenUnfinished();
    void unfinishedLastLineArrives_data();
    void unfinishedLastLineArrives();
    void progressDrawnInPlaceArrivesWhileTheToolRuns();
    void lineIsCutAtTheBufferSize();
    void longLineIsCutBetweenCharacters_data();
    void longLineIsCutBetweenCharacters();
    void characterIsNotCutWhereTheToolPauses();
    void charactersAreWhole_data();
    void charactersAreWhole();
    void zeroByteEndsItsRead();
    void invalidUtf8IsReplaced();
    void collectModeKeepsEmptyParts();
    void collectModeEndsAtAZeroByteAndReadsLatin1();
    void collectModeEmitsNoPieces();
    void hundredThousandLinesInOrder();
    void floodLeavesTheWindowItsTurnsAndTakesNoMemory();
    void receiverThatDoesNotListenIsWaitedForOnce();
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
    QVERIFY(run.finish());
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
    const ScriptedCalls tool(toolPath());
    tool.setScript({"out Password: ", tool.holding("answer"), "out given\\n"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(run.waitForPieces(1));
    QCOMPARE(run.pieces, QStringList("Password: "));
    tool.release("answer");
    QVERIFY(run.waitForEnd());
    QCOMPARE(run.pieces, QStringList({"Password: ", "given\n"}));
}

void TstCRunCommandThreadOutput::lineOfAListIsNotTakenUnfinished_data()
{
    QTest::addColumn<QString>("beginning");
    QTest::newRow("plain") << "out 12 file";
    QTest::newRow("with a backspace") << "out 12 f\\bile";
}

void TstCRunCommandThreadOutput::lineOfAListIsNotTakenUnfinished()
{
    QFETCH(QString, beginning);
    const OtherLimit quick(toolLimits().stepMs, 10);
    const ScriptedCalls tool(toolPath());
    tool.setScript({"out first\\n", beginning, tool.holding("pause"), "out  name\\n"});
    Run run;
    run.runner.wholeLines = true;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(tool.isHeld("pause"));
    QVERIFY(hasPaused(&run.runner));
    tool.release("pause");
    QVERIFY(run.waitForEnd());
    QCOMPARE(run.pieces.size(), 2);
    QVERIFY(run.pieces.last().startsWith("12 f"));
    QVERIFY(run.pieces.last().endsWith("ile name\n"));
}

void TstCRunCommandThreadOutput::unfinishedLastLineArrives_data()
{
    QTest::addColumn<bool>("isList");
    QTest::newRow("any output") << false;
    QTest::newRow("a list") << true;
}

void TstCRunCommandThreadOutput::unfinishedLastLineArrives()
{
    QFETCH(bool, isList);
    ScriptedCalls(toolPath()).setScript({"out one\\nlast"});
    Run run;
    run.runner.wholeLines = isList;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces, QStringList({"one\n", "last"}));
}

void TstCRunCommandThreadOutput::progressDrawnInPlaceArrivesWhileTheToolRuns()
{
    // A pause would do, too.
    const OtherLimit never(toolLimits().stepMs, limitMs);
    const ScriptedCalls tool(toolPath());
    tool.setScript({"err \\r 10%", tool.holding("ten"), "err \\b\\b\\b\\b 20%",
                    tool.holding("twenty"), "err \\r 30%", tool.holding("thirty")});
    Run run;
    run.runner.start(QThread::InheritPriority);
    const auto hasCome = [&run](const QString& text) {
        return QTest::qWaitFor([&] { return run.pieces.join("").endsWith(text); }, limitMs);
    };
    QVERIFY(hasCome(" 10%"));
    tool.release("ten");
    QVERIFY(hasCome(" 20%"));
    tool.release("twenty");
    QVERIFY(hasCome(" 30%"));
    QCOMPARE(run.pieces.join(""), QString(" 10%\b\b\b\b 20% 30%"));
    QCOMPARE(run.finished, 0);
    tool.release("thirty");
    QVERIFY(run.waitForEnd());
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

void TstCRunCommandThreadOutput::longLineIsCutBetweenCharacters_data()
{
    QTest::addColumn<QByteArray>("line");
    for (const char* const character : {"é", "光", "😀"}) {
        for (int shift = 0; shift < int(qstrlen(character)); ++shift)
            QTest::addRow("%s behind %d", character, shift)
                << QByteArray(shift, 'x') + QByteArray(character).repeated(2500);
    }
}

void TstCRunCommandThreadOutput::longLineIsCutBetweenCharacters()
{
    QFETCH(QByteArray, line);
    const QTemporaryDir folder;
    writeFile(folder.filePath("long"), line + '\n');
    ScriptedCalls(toolPath()).setScript({"file 100000 " + folder.filePath("long")});
    Run run;
    QVERIFY(run.finish());
    QVERIFY(run.pieces.join(QString()).toUtf8() == line + '\n');
    for (int i = 0; i < run.pieces.size() - 1; ++i) {
        const int bytes = run.pieces.at(i).toUtf8().size();
        QVERIFY2(bytes > 2047 - 4 && bytes <= 2047, qPrintable(QString::number(bytes)));
    }
}

void TstCRunCommandThreadOutput::characterIsNotCutWhereTheToolPauses()
{
    const OtherLimit quick(toolLimits().stepMs, 10);
    const ScriptedCalls tool(toolPath());
    tool.setScript({"out \\r10% \\xe5\\x85", tool.holding("drawn"), "out \\x89\\n", "out a\\xe5",
                    tool.holding("plain"), "out \\x85\\x89", tool.holding("last"), "out \\xe5"});
    Run run;
    run.runner.start(QThread::InheritPriority);
    for (const char* const pause : {"drawn", "plain", "last"}) {
        QVERIFY(tool.isHeld(pause));
        QVERIFY(hasPaused(&run.runner));
        tool.release(pause);
    }
    QVERIFY(run.waitForEnd());
    // At the end of all, what is there is taken.
    QCOMPARE(run.pieces,
             QStringList({"10% ", QString::fromUtf8("光\n"), "a", QString::fromUtf8("光"),
                          QString(QChar::ReplacementCharacter)}));
}

void TstCRunCommandThreadOutput::charactersAreWhole_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("whole");
    QTest::newRow("nothing") << QByteArray() << 0;
    QTest::newRow("plain") << QByteArray("ab") << 2;
    QTest::newRow("two bytes") << QByteArray("a\xc3\xa9") << 3;
    QTest::newRow("one of two") << QByteArray("a\xc3") << 1;
    QTest::newRow("three bytes") << QByteArray("\xe5\x85\x89") << 3;
    QTest::newRow("two of three") << QByteArray("\xe5\x85") << 0;
    QTest::newRow("one of three") << QByteArray("\xe5") << 0;
    QTest::newRow("four bytes") << QByteArray("\xf0\x9f\x98\x80") << 4;
    QTest::newRow("three of four") << QByteArray("a\xf0\x9f\x98") << 1;
    QTest::newRow("one of four") << QByteArray("a\xf4") << 1;
    // No UTF-8 is never a reason to wait.
    QTest::newRow("continuations only") << QByteArray(2047, '\x80') << 2047;
    QTest::newRow("one continuation") << QByteArray("\x80") << 1;
    QTest::newRow("one too many") << QByteArray("\xc3\xa9\x80") << 3;
    QTest::newRow("no beginning") << QByteArray("a\xff") << 2;
    QTest::newRow("overlong") << QByteArray("a\xc0") << 2;
    QTest::newRow("beyond Unicode") << QByteArray("a\xf5\x80") << 3;
}

void TstCRunCommandThreadOutput::charactersAreWhole()
{
    QFETCH(QByteArray, bytes);
    QTEST(wholeCharacters(bytes), "whole");
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
    const OtherLimit quick(toolLimits().stepMs, 10);
    const ScriptedCalls tool(toolPath());
    tool.setScript({"out a\\n", tool.holding("pause"), "out b\\n"});
    Run run;
    run.runner.collectOutput = true;
    run.runner.start(QThread::InheritPriority);
    QVERIFY(tool.isHeld("pause"));
    QVERIFY(hasPaused(&run.runner));
    tool.release("pause");
    QVERIFY(run.waitForEnd());
    QVERIFY(run.pieces.isEmpty());
    QCOMPARE(run.runner.outputLines, QStringList({"a", "b", ""}));
}

void TstCRunCommandThreadOutput::hundredThousandLinesInOrder()
{
    constexpr int count = 100000;
    ScriptedCalls(toolPath()).setScript({QString("lines %1 line").arg(count)});
    Run run;
    QVERIFY(run.finish());
    QCOMPARE(run.pieces.size(), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(run.pieces.at(i), QString("line %1\n").arg(i + 1));
}

void TstCRunCommandThreadOutput::floodLeavesTheWindowItsTurnsAndTakesNoMemory()
{
    constexpr int megabytes = 8;
    const OtherLimit patience(toolLimits().deliveryMs, OtherLimit::forGood);
    ScriptedCalls(toolPath()).setScript({QString("flood %1").arg(megabytes)});
    CRunCommandThread runner(nullptr);
    bool finished = false;
    qint64 characters = 0;
    int sinceTurn = 0;
    int mostSinceTurn = 0;
    qint64 mostMemory = 0;
    connect(&runner, &CRunCommandThread::sigfinished, this, [&finished] { finished = true; });
    connect(&runner, &CRunCommandThread::standoutputline, this, [&](const QString& piece) {
        characters += piece.size();
        mostSinceTurn = qMax(mostSinceTurn, ++sinceTurn);
    });
    // A turn of everything that is no event of another thread, such as painting.
    QTimer turn;
    connect(&turn, &QTimer::timeout, this, [&] {
        sinceTurn = 0;
        mostMemory = qMax(mostMemory, residentKilobytes());
    });
    turn.start(0);
    runner.SetRunCmd(toolPath(), {"x"});
    const qint64 before = residentKilobytes();
    runner.start(QThread::InheritPriority);
    while (!finished)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCOMPARE(characters, qint64(2) * megabytes * ((1 << 20) / 44 + 1) * 44);
    QVERIFY2(mostSinceTurn < 4096, qPrintable(QString::number(mostSinceTurn)));
    QVERIFY2(mostMemory - before < 32 * 1024, qPrintable(QString::number(mostMemory - before)));
}

void TstCRunCommandThreadOutput::receiverThatDoesNotListenIsWaitedForOnce()
{
    const OtherLimit patience(toolLimits().deliveryMs, 1);
    DeliveryPacer pacer;
    pacer.reset();
    int looks = 0;
    const auto emitPieces = [&](int bursts) {
        looks = 0;
        for (int i = 0; i < bursts; ++i)
            pacer.afterEmitting(256, [&looks] { return ++looks < 0; });
        return looks;
    };
    // This thread is the receiving one, and does not handle its events.
    QVERIFY(emitPieces(20) > 0);
    QCOMPARE(emitPieces(1000), 0);
    // It does, for once.
    QVERIFY(QTest::qWaitFor([&emitPieces] { return emitPieces(20) > 0; }, limitMs));
    QCOMPARE(emitPieces(1000), 0);
}

KORVEX_TEST_MAIN(TstCRunCommandThreadOutput)
#include "tst_cruncommandthread_output.moc"
