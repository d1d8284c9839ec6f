// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "awaitresult.h"
#include "commandtext.h"
#include "foldertest.h"
#include "otherlimit.h"
#include "processcounts.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"
#include "util.h"

#include <algorithm>
#include <csignal>
#include <unistd.h>

Q_DECLARE_METATYPE(Overdue)

// What short commands are given and what comes back. Scripts stand in for the tools.
class TstExternalCommands : public FolderTest
{
    Q_OBJECT

private slots:
    void outputIsReturned_data();
    void outputIsReturned();
    void outputBytesEndBeforeTheFirstZero();
    void programIsQuotedAndArgumentsSplit_data();
    void programIsQuotedAndArgumentsSplit();
    void argumentsAreNotInterpretedByAShell();
    void emptyProgramRunsTheFirstArgument();
    void commandThatCannotStartIsEmpty_data();
    void commandThatCannotStartIsEmpty();
    void exitCodeAndCrashDoNotMatter();
    void floodOnBothChannelsIsReadToItsEnd();
    void toolThatReadsIsNotGivenAnEndOfInput();
    void childLeftBehindIsNotWaitedFor();
    void overdueToolIsKilledAndItsOutputDroppedOrKept_data();
    void overdueToolIsKilledAndItsOutputDroppedOrKept();
    void floodUpToTheLimitIsCutOff();

    void inputIsFed_data();
    void inputIsFed();
    void inputEndsBeforeItsFirstZero();
    void emptyInputClosesStandardInputAtOnce();
    void muchInputComesBackWhole();
    void toolThatNeverReadsItsInput();
    void toolThatEndsBeforeItsInputIsWritten();
    void toolThatClosesItsInputAndGoesOn();
    void inputForACommandThatCannotStart();

    void callIsLoggedAndWrittenToTheDebugStream();

private:
    // Path of an executable script with this body.
    QString script(const QByteArray& body);

    int scripts = 0;
};

namespace
{

const QString oddPath = QString::fromUtf8("-a  b 'c' $HOME;*? é e\u0301 光/%1 tool");

// Whether this process can still write into the pipe that another reads from.
bool holdsOtherEndOf(const QString& descriptor)
{
    char pipe[64] = {};
    if (::readlink(QFile::encodeName(descriptor), pipe, sizeof pipe - 1) <= 0)
        return false;
    const QStringList own = QDir("/proc/self/fd").entryList(QDir::AllEntries | QDir::System);
    return std::any_of(own.begin(), own.end(), [&pipe](const QString& number) {
        char target[64] = {};
        const QByteArray path = "/proc/self/fd/" + number.toLatin1();
        return ::readlink(path, target, sizeof target - 1) > 0 && qstrcmp(target, pipe) == 0;
    });
}

} // namespace

QString TstExternalCommands::script(const QByteArray& body)
{
    return writeScript(folder->filePath(QString("tool%1").arg(++scripts)), body);
}

void TstExternalCommands::outputIsReturned_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("output");

    QTest::newRow("nothing") << QByteArray("true") << "";
    QTest::newRow("as it is") << QByteArray("printf ' a\\r\\n\\tb \\n\\n'") << " a\r\n\tb \n\n";
    QTest::newRow("standard error is dropped") << QByteArray("echo e >&2; printf o") << "o";
    QTest::newRow("up to the first zero byte") << QByteArray("printf 'a\\000b'") << "a";
    QTest::newRow("zero byte first") << QByteArray("printf '\\000b'") << "";
    QTest::newRow("Latin-1, byte by byte")
        << QByteArray("printf '\\303\\251\\377'") << QString::fromLatin1("\xc3\xa9\xff");
    QTest::newRow("late") << QByteArray("printf a; sleep 0.1; printf b") << "ab";
}

void TstExternalCommands::outputIsReturned()
{
    QFETCH(QByteArray, body);
    QTEST(Util::callexternapp(script(body), {}), "output");
}

void TstExternalCommands::outputBytesEndBeforeTheFirstZero()
{
    QCOMPARE(runCommandText(script("printf 'ab\\000cd'")), QByteArray("ab"));
}

void TstExternalCommands::programIsQuotedAndArgumentsSplit_data()
{
    QTest::addColumn<QString>("args");
    QTest::addColumn<QString>("seen");

    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("one") << "a"
                         << "[a]";
    QTest::newRow("blanks split") << "  a   b\tc\n"
                                  << "[a][b][c]";
    QTest::newRow("quotes keep together") << "\"a  b\" c"
                                          << "[a  b][c]";
    QTest::newRow("quotes in the middle") << "-o\"a b\"c"
                                          << "[-oa bc]";
    QTest::newRow("three quotes are one") << "\"\"\"a\"\"\""
                                          << "[\"a\"]";
    QTest::newRow("apostrophes do not group") << "'a b'"
                                              << "['a][b']";
    QTest::newRow("backslashes stay") << "a\\ b"
                                      << "[a\\][b]";
    QTest::newRow("empty argument vanishes") << "a \"\" b"
                                             << "[a][b]";
    QTest::newRow("quote without end") << "\"a b"
                                       << "[a b]";
}

void TstExternalCommands::programIsQuotedAndArgumentsSplit()
{
    QFETCH(QString, args);
    const QString tool =
        writeScript(folder->filePath(oddPath), "for a in \"$@\"; do printf '[%s]' \"$a\"; done");
    QTEST(Util::callexternapp(tool, args), "seen");
    QTEST(Util::callexternappWriteToStdin(tool, args, "x"), "seen");
}

void TstExternalCommands::argumentsAreNotInterpretedByAShell()
{
    const QString args = "$HOME;`id`|cat>x&*?#~";
    QCOMPARE(Util::callexternapp(script("printf %s \"$*\""), args), args);
    QVERIFY(!QFile::exists("x"));
}

// The empty quotes vanish like any empty argument.
void TstExternalCommands::emptyProgramRunsTheFirstArgument()
{
    QCOMPARE(Util::callexternapp(QString(), script("printf %s \"$1\"") + " a"), QString("a"));
}

void TstExternalCommands::commandThatCannotStartIsEmpty_data()
{
    QTest::addColumn<QString>("program");

    QTest::newRow("missing path") << "/missing/tool";
    QTest::newRow("missing name") << "korvex-no-such-tool";
    QTest::newRow("folder") << "/";
    QTest::newRow("no program") << "/dev/null";
    QTest::newRow("blanks") << "   ";
    QTest::newRow("nothing") << "";
}

void TstExternalCommands::commandThatCannotStartIsEmpty()
{
    QFETCH(QString, program);
    QCOMPARE(Util::callexternapp(program, {}), QString());
}

void TstExternalCommands::exitCodeAndCrashDoNotMatter()
{
    QCOMPARE(Util::callexternapp(script("printf out; exit 3"), {}), QString("out"));
    QCOMPARE(Util::callexternapp(script("printf out; kill -9 $$"), {}), QString("out"));
}

void TstExternalCommands::floodOnBothChannelsIsReadToItsEnd()
{
    const QString tool = script("head -c 3000000 /dev/zero | tr '\\0' x | tee /dev/stderr");
    const QString output = Util::callexternapp(tool, {});
    QVERIFY(output == QString(3'000'000, 'x'));
}

void TstExternalCommands::toolThatReadsIsNotGivenAnEndOfInput()
{
    // At the end of its input it would say "end" at once.
    const QString tool = script("trap 'printf waited; exit' TERM\necho $$ >\"$0.id\"\n"
                                "read line; printf end");
    const Trigger enough(
        [&tool] {
            const QByteArray id = readFile(tool + ".id").trimmed();
            return !id.isEmpty() && holdsOtherEndOf("/proc/" + id + "/fd/0");
        },
        [&tool] { ::kill(readFile(tool + ".id").trimmed().toInt(), SIGTERM); });
    QCOMPARE(Util::callexternapp(tool, {}), QString("waited"));
}

void TstExternalCommands::childLeftBehindIsNotWaitedFor()
{
    const QString tool = script("sleep 600 & echo $!");
    const int child = Util::callexternapp(tool, {}).trimmed().toInt();
    QVERIFY(child > 1);
    QCOMPARE(::kill(child, SIGKILL), 0);
}

void TstExternalCommands::overdueToolIsKilledAndItsOutputDroppedOrKept_data()
{
    QTest::addColumn<Overdue>("overdue");
    QTest::addColumn<QByteArray>("output");
    QTest::newRow("dropped") << Overdue::Drop << QByteArray();
    QTest::newRow("kept") << Overdue::Keep << QByteArray("first\n");
}

void TstExternalCommands::overdueToolIsKilledAndItsOutputDroppedOrKept()
{
    QFETCH(Overdue, overdue);
    const QString tool = script("echo first; echo other >&2; : >\"$0.hangs\"; exec sleep 600");
    const int limit = toolLimits().answerMs;
    const Trigger over([&tool] { return QFile::exists(tool + ".hangs"); },
                       [] { toolLimits().answerMs = 0; });
    const QByteArray output = awaitResult(
        [&] { return runCommandText('"' + tool + '"', {}, Patience::Limited, overdue); });
    toolLimits().answerMs = limit;
    QTEST(output, "output");
    QVERIFY(childProcesses().isEmpty());
}

void TstExternalCommands::floodUpToTheLimitIsCutOff()
{
    const OtherLimit patience(toolLimits().answerMs, OtherLimit::forGood);
    const QByteArray output =
        runCommandText('"' + script("exec yes") + '"', {}, Patience::Limited, Overdue::Keep);
    QVERIFY(output.startsWith("y\ny\n"));
    QVERIFY2(output.size() < 100 << 20, qPrintable(QString::number(output.size())));
}

void TstExternalCommands::inputIsFed_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("received");

    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("lines as they are") << "a\r\n\tb \n\nc"
                                       << "a\r\n\tb \n\nc";
    QTest::newRow("Latin-1") << QString::fromUtf8("é") << QString::fromUtf8("é");
    QTest::newRow("beyond Latin-1 is lost") << QString::fromUtf8("a光b") << "a?b";
}

void TstExternalCommands::inputIsFed()
{
    QFETCH(QString, input);
    QTEST(Util::callexternappWriteToStdin("cat", {}, input), "received");
}

void TstExternalCommands::inputEndsBeforeItsFirstZero()
{
    const QString input = QString::fromLatin1("ab\0cd", 5);
    QCOMPARE(Util::callexternappWriteToStdin("wc", "-c", input).trimmed(), QString("2"));
}

void TstExternalCommands::emptyInputClosesStandardInputAtOnce()
{
    const QString tool = script("read line || printf end");
    QCOMPARE(Util::callexternappWriteToStdin(tool, {}, {}), QString("end"));
}

void TstExternalCommands::muchInputComesBackWhole()
{
    const QString input = QString("0123456789abcdef\n").repeated(300'000);
    QVERIFY(Util::callexternappWriteToStdin("cat", {}, input) == input);
}

void TstExternalCommands::toolThatNeverReadsItsInput()
{
    const QString tool = script("sleep 0.1; printf done");
    QCOMPARE(Util::callexternappWriteToStdin(tool, {}, QString(5'000'000, 'x')), QString("done"));
}

void TstExternalCommands::toolThatEndsBeforeItsInputIsWritten()
{
    for (int i = 0; i < 20; ++i)
        QCOMPARE(Util::callexternappWriteToStdin("true", {}, QString(1'000'000, 'x')), QString());
}

void TstExternalCommands::toolThatClosesItsInputAndGoesOn()
{
    const QString tool = script("exec <&-; sleep 0.1; printf done");
    QCOMPARE(Util::callexternappWriteToStdin(tool, {}, QString(5'000'000, 'x')), QString("done"));
}

void TstExternalCommands::inputForACommandThatCannotStart()
{
    for (const char* program : {"/missing/tool", "korvex-no-such-tool", ""})
        QCOMPARE(Util::callexternappWriteToStdin(program, {}, "input"), QString());
}

void TstExternalCommands::callIsLoggedAndWrittenToTheDebugStream()
{
    const LogSwitch on;
    const QString tool = script("printf 'out %s' \"$1\"");
    Util::callexternapp(tool, "\"a b\" c");
    Util::callexternappWriteToStdin(tool, "", "secret");
    Util::callexternapp("/missing", "x");
    QCOMPARE(LogSwitch::texts(), QStringList({tool + " \"a b\" c result:out a b",
                                              tool + "  result:out ", "/missing x result:"}));
    const QStringList lines = debugLines();
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines.first().contains(tool) && lines.first().contains("out a b"));
}

KORVEX_TEST_MAIN(TstExternalCommands)

#include "tst_externalcommands.moc"
