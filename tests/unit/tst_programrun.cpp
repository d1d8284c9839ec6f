// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "processcounts.h"
#include "programrun.h"
#include "testcase.h"
#include "testmain.h"

// Running programs that end well, badly, late or not at all.
class TstProgramRun : public TestCase
{
    Q_OBJECT

private slots:
    void argumentsArriveAsTheyAre();
    void failures_data();
    void failures();
    void programThatDoesNotExist();
    void outputOfAFailureIsKept();
    void longOutputIsComplete();
    void programOverItsTimeIsEnded();
    void inputIsEmpty();
    void speaksEnglishAndUtf8();
};

namespace
{

constexpr int limitMs = 60000;

ProgramResult shell(const QString& text, int limit = limitMs)
{
    return runProgram("sh", {"-c", text}, limit);
}

} // namespace

void TstProgramRun::argumentsArriveAsTheyAre()
{
    const QStringList arguments{
        "%s|",       "a b",  "",   "\"q\"", "'",
        "$HOME",     "`id`", "-x", ";",     QString::fromUtf8("\u00e4\u4e2d"),
        "two\nlines"};
    const ProgramResult result = runProgram("printf", arguments, limitMs);
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(QString::fromUtf8(result.output), arguments.mid(1).join('|') + '|');
}

void TstProgramRun::failures_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("success") << "echo note >&2" << QString() << 0;
    QTest::newRow("silent") << "exit 3"
                            << "sh failed with exit code 3" << 3;
    QTest::newRow("first line of many") << "printf '\\n one \\ntwo\\n' >&2; exit 1"
                                        << "sh failed with exit code 1: one" << 1;
    QTest::newRow("crash") << "kill -9 $$"
                           << "sh crashed" << -1;
}

void TstProgramRun::failures()
{
    QFETCH(QString, text);
    QFETCH(QString, error);
    QFETCH(int, exitCode);
    const ProgramResult result = shell(text);
    QCOMPARE(result.error, error);
    QCOMPARE(result.exitCode, exitCode);
}

void TstProgramRun::programThatDoesNotExist()
{
    const ProgramResult result = runProgram("/nowhere/no tool", {}, limitMs);
    QVERIFY2(result.error.startsWith("no tool could not be started: "), qPrintable(result.error));
    QCOMPARE(result.exitCode, -1);
    QVERIFY(!runProgram(QString(), {}, limitMs).error.isEmpty());
}

void TstProgramRun::outputOfAFailureIsKept()
{
    const ProgramResult result = shell("echo out; echo err >&2; exit 1");
    QCOMPARE(result.output, QByteArray("out\n"));
    QCOMPARE(result.errorOutput, QByteArray("err\n"));
}

void TstProgramRun::longOutputIsComplete()
{
    const ProgramResult result = shell("head -c 3000000 /dev/zero; head -c 3000000 /dev/zero >&2");
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output.size(), 3000000);
    QCOMPARE(result.errorOutput.size(), 3000000);
}

void TstProgramRun::programOverItsTimeIsEnded()
{
    const ProgramResult result = shell("exec sleep 600", 500);
    QCOMPARE(result.error, QString("sh was ended, it took longer than 0.5 seconds"));
    QCOMPARE(result.exitCode, -1);
    QVERIFY(childProcesses().isEmpty());
}

void TstProgramRun::inputIsEmpty()
{
    const ProgramResult result = runProgram("cat", {}, limitMs);
    QCOMPARE(result.error, QString());
    QCOMPARE(result.output, QByteArray());
}

void TstProgramRun::speaksEnglishAndUtf8()
{
    const QByteArray before = qgetenv("LC_ALL");
    qputenv("LC_ALL", "de_DE.UTF-8");
    qputenv("LANGUAGE", "de");
    const ProgramResult result = shell("echo $LC_ALL,$LANGUAGE");
    qunsetenv("LANGUAGE");
    qputenv("LC_ALL", before);
    QCOMPARE(result.output, QByteArray("C.UTF-8,\n"));
}

KORVEX_TEST_MAIN(TstProgramRun)
#include "tst_programrun.moc"
