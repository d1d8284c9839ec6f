// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "followedprogram.h"
#include "standins.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// Running a tool to its end line by line.
class TstFollowedProgram : public TestCase
{
    Q_OBJECT

private slots:
    void everyLineOfBothChannelsComes();
    void lineComesBeforeTheEnd();
    void argumentsPassNoShell();
    void inputIsGivenAndEnds();
    void failureNamesItsReason_data();
    void failureNamesItsReason();
    void crashIsAFailure();
    void missingToolIsAFailure();
};

namespace
{

const auto ignore = [](const QString&) {};

} // namespace

void TstFollowedProgram::everyLineOfBothChannelsComes()
{
    const StandIns tools;
    tools.add("tool", R"(printf 'one\rtwo\r\n\n  \n'; printf 'thr\303\251e\nfour' >&2)");
    QStringList lines;
    QCOMPARE(followProgram("tool", {}, [&lines](const QString& line) { lines << line; }),
             QString());
    QCOMPARE(lines, QStringList({"one", "two", QString::fromUtf8("thr\u00e9e"), "four"}));
}

void TstFollowedProgram::lineComesBeforeTheEnd()
{
    const StandIns tools;
    const QString sign = tools.filePath("sign");
    // It ends only when the line has been taken.
    tools.add("tool", "echo go; i=0; while [ ! -e '" + sign.toUtf8() +
                          "' ] && [ $i -lt 3000 ]; do i=$((i+1)); sleep 0.01; done; "
                          "[ -e '" +
                          sign.toUtf8() + "' ]");
    QCOMPARE(followProgram("tool", {}, [&sign](const QString&) { writeFile(sign, ""); }),
             QString());
}

void TstFollowedProgram::argumentsPassNoShell()
{
    const StandIns tools;
    tools.add("tool");
    followProgram("tool", {"a b", "$HOME", "`id`", "\"q\"", "'", "", "-x"}, ignore);
    QCOMPARE(tools.calls(), QStringList("tool|a b|$HOME|`id`|\"q\"|'||-x"));
}

void TstFollowedProgram::inputIsGivenAndEnds()
{
    const StandIns tools;
    tools.add("tool", "cat");
    QStringList lines;
    followProgram("tool", {}, [&lines](const QString& line) { lines << line; }, "x\ny\n");
    QCOMPARE(lines, QStringList({"x", "y"}));
}

void TstFollowedProgram::failureNamesItsReason_data()
{
    QTest::addColumn<QByteArray>("said");
    QTest::addColumn<QString>("reason");
    QTest::newRow("nothing") << QByteArray() << "tool ended with code 5";
    QTest::newRow("last line") << QByteArray("started\nmkisofs: No space left on device\n")
                               << "mkisofs: No space left on device";
    QTest::newRow("first failure of the burning tool")
        << QByteArray("libburn : FAILURE : Cannot access '/dev/sr9'\n"
                      "xorriso : FAILURE : Cannot acquire drive\n"
                      "xorriso : NOTE : Giving up\n")
        << "Cannot access '/dev/sr9'";
    QTest::newRow("fatal") << QByteArray("xorriso : FATAL : Lost the drive\nxorriso : NOTE : x\n")
                           << "Lost the drive";
}

void TstFollowedProgram::failureNamesItsReason()
{
    QFETCH(QByteArray, said);
    const StandIns tools;
    writeFile(tools.filePath("said"), said);
    tools.add("tool", "cat '" + tools.filePath("said").toUtf8() + "'; exit 5");
    QTEST(followProgram("tool", {}, ignore), "reason");
}

void TstFollowedProgram::crashIsAFailure()
{
    const StandIns tools;
    tools.add("tool", "echo half; kill -9 $$");
    QCOMPARE(followProgram("tool", {}, ignore), QString("half"));
}

void TstFollowedProgram::missingToolIsAFailure()
{
    QVERIFY(followProgram("/nowhere/tool", {}, ignore).startsWith("/nowhere/tool: "));
}

KORVEX_TEST_MAIN(TstFollowedProgram)

#include "tst_followedprogram.moc"
