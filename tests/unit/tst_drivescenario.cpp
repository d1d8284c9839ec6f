// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "drivescenario.h"
#include "testcase.h"
#include "testmain.h"
#include "toolresult.h"

#include <QProcess>

#include <memory>

// The stand-ins for the drive tools: how they are found and called, and what they record.
class TstDriveScenario : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void argumentsAreRecordedAsTheyAre();
    void environmentOfNoteIsRecorded();
    void orderIsSeenOverAllTools();
    void callsAtTheSameTimeDoNotMix();
    void endIsRecordedUnlessTheCallCrashed();
    void callWithoutRuleFailsAndIsToldApart();
    void misspeltActionIsToldApart();
    void firstRuleThatFitsCounts_data();
    void firstRuleThatFitsCounts();
    void latestOfEqualRulesCounts();
    void rulesGoBeforeTheDrives();
    void missingToolIsNotFoundThoughTheSystemHasIt();
    void systemToolsAreOutOfReach();
    void lentToolIsFound();
    void linkElsewhereFollowsTheSameScenario();
    void nextScenarioKnowsNothingOfTheLast();
    void environmentStaysTheSameOverScenarios();

private:
    std::unique_ptr<DriveScenario> scenario;
};

void TstDriveScenario::init()
{
    TestCase::init();
    scenario = std::make_unique<DriveScenario>();
}

void TstDriveScenario::cleanup()
{
    scenario.reset();
    TestCase::cleanup();
}

void TstDriveScenario::argumentsAreRecordedAsTheyAre()
{
    const QStringList arguments = {"",
                                   " ",
                                   "a  b",
                                   "\"MS-DOS FAT16\"",
                                   "it's",
                                   "two\nlines\r",
                                   "\\n",
                                   "*",
                                   "...",
                                   "end",
                                   "call 1",
                                   "-x",
                                   QString::fromUtf8("\u5149\u76d8 \u00e9")};
    scenario->on("hdiutil", arguments, {"exit 3"});
    QCOMPARE(runTool("hdiutil", arguments).status, 3);
    QCOMPARE(scenario->commands(), {QStringList("hdiutil") + arguments});
    QVERIFY(scenario->unmatchedCalls().isEmpty());
}

void TstDriveScenario::environmentOfNoteIsRecorded()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("SUDO_ASKPASS", "/a=b c");
    environment.insert("LC_CTYPE", "");
    environment.remove("LC_NUMERIC");
    process.setProcessEnvironment(environment);
    process.start("sync", QStringList());
    QVERIFY(process.waitForFinished());
    const QMap<QString, QString> expected = {{"SUDO_ASKPASS", "/a=b c"}, {"LC_CTYPE", ""}};
    QCOMPARE(scenario->calls().value(0).environment, expected);
}

void TstDriveScenario::orderIsSeenOverAllTools()
{
    runTool("sync");
    runTool("mount");
    runTool("diskutil", {"list"});
    runTool("sync");
    const QList<QStringList> expected = {{"sync"}, {"mount"}, {"diskutil", "list"}, {"sync"}};
    QCOMPARE(scenario->commands(), expected);
    QCOMPARE(scenario->callsOf("sync"), (QList<QStringList>{{}, {}}));
    const QList<DriveCall> calls = scenario->calls();
    for (int i = 0; i + 1 < calls.size(); ++i)
        QVERIFY(calls[i].ended >= 0 && calls[i].ended < calls[i + 1].begun);
}

void TstDriveScenario::callsAtTheSameTimeDoNotMix()
{
    const QString longText(20000, 'x');
    scenario->on("hdiutil", {"*", "*"}, {});
    std::vector<std::unique_ptr<QProcess>> processes;
    for (int i = 0; i < 8; ++i) {
        processes.push_back(std::make_unique<QProcess>());
        processes.back()->start("hdiutil", {QString::number(i), longText});
    }
    for (const auto& process : processes)
        QVERIFY(process->waitForFinished());
    QList<QStringList> expected;
    for (int i = 0; i < 8; ++i)
        expected.append({"hdiutil", QString::number(i), longText});
    QList<QStringList> commands = scenario->commands();
    std::sort(commands.begin(), commands.end());
    QCOMPARE(commands, expected);
    for (const DriveCall& call : scenario->calls())
        QVERIFY(call.ended > call.begun);
}

void TstDriveScenario::endIsRecordedUnlessTheCallCrashed()
{
    scenario->on("hdiutil", {"burn"}, {"crash"});
    scenario->on("hdiutil", {"mount"}, {"exit 7", "crash"});
    runTool("hdiutil", {"burn"});
    runTool("hdiutil", {"mount"});
    QCOMPARE(scenario->calls().value(0).ended, -1);
    QCOMPARE(scenario->calls().value(1).ended, 2);
}

void TstDriveScenario::callWithoutRuleFailsAndIsToldApart()
{
    runTool("sync");
    const ToolResult result = runTool("diskutil", {"eraseDisk", "/dev/disk0"});
    QCOMPARE(result.status, 64);
    QCOMPARE(result.text, QByteArray());
    QCOMPARE(result.errors, QByteArray("diskutil: no rule fits this call\n"));
    QCOMPARE(scenario->unmatchedCalls(),
             (QList<QStringList>{{"diskutil", "eraseDisk", "/dev/disk0"}}));
}

void TstDriveScenario::misspeltActionIsToldApart()
{
    scenario->on("sync", {}, {"snooze 5"});
    QCOMPARE(runTool("sync").status, 64);
    QCOMPARE(scenario->unmatchedCalls(), (QList<QStringList>{{"sync"}}));
}

void TstDriveScenario::firstRuleThatFitsCounts_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("no argument") << QStringList{} << QByteArray("none");
    QTest::newRow("empty argument") << QStringList{""} << QByteArray("empty");
    QTest::newRow("one of any") << QStringList{"a b"} << QByteArray("one");
    QTest::newRow("last of any") << QStringList{"a", "z"} << QByteArray("a and one");
    QTest::newRow("none left for the rest") << QStringList{"b", "c"} << QByteArray("rest");
    QTest::newRow("many for the rest") << QStringList{"b", "c", "", "d"} << QByteArray("rest");
    QTest::newRow("too few for the rest") << QStringList{"d", "e"} << QByteArray();
    QTest::newRow("none fits") << QStringList{"c", "d"} << QByteArray();
}

void TstDriveScenario::firstRuleThatFitsCounts()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, text);
    scenario->on("hdiutil", {}, {"out none"});
    scenario->on("hdiutil", {""}, {"out empty"});
    scenario->on("hdiutil", {"*"}, {"out one"});
    scenario->on("hdiutil", {"a", "*"}, {"out a and one"});
    scenario->on("hdiutil", {"b", "c", "..."}, {"out rest"});
    scenario->on("hdiutil", {"b", "c"}, {"out too late"});
    scenario->on("hdiutil", {"d", "e", "*", "..."}, {"out too many"});
    QCOMPARE(runTool("hdiutil", arguments).text, text);
    QCOMPARE(scenario->unmatchedCalls().isEmpty(), !text.isEmpty());
}

void TstDriveScenario::latestOfEqualRulesCounts()
{
    scenario->on("sync", {}, {"out first"});
    scenario->on("sync", {}, {"out second"});
    QCOMPARE(runTool("sync").text, QByteArray("second"));
}

void TstDriveScenario::rulesGoBeforeTheDrives()
{
    scenario->on("diskutil", {"info", "/dev/disk2"}, {"out mine"});
    scenario->addUsbDisk("/dev/disk2");
    QCOMPARE(runTool("diskutil", {"info", "/dev/disk2"}).text, QByteArray("mine"));
}

void TstDriveScenario::missingToolIsNotFoundThoughTheSystemHasIt()
{
    scenario->missing("sync");
    QProcess process;
    process.start("sync", QStringList());
    QVERIFY(!process.waitForStarted());
    QCOMPARE(process.error(), QProcess::FailedToStart);
    const ToolResult shell = runTool("/bin/sh", {"-c", "sync"});
    QCOMPARE(shell.status, 127);
    QVERIFY(scenario->calls().isEmpty());
}

void TstDriveScenario::systemToolsAreOutOfReach()
{
    QCOMPARE(runTool("/bin/sh", {"-c", "ls"}).status, 127);
    QCOMPARE(runTool("/bin/sh", {"-c", "sudo rm"}).status, 64);
    QCOMPARE(scenario->unmatchedCalls(), (QList<QStringList>{{"sudo", "rm"}}));
}

void TstDriveScenario::lentToolIsFound()
{
    scenario->lend("cat");
    QCOMPARE(runTool("/bin/sh", {"-c", "cat /dev/null"}).status, 0);
}

void TstDriveScenario::linkElsewhereFollowsTheSameScenario()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath("7z"));
    const QString tool = folder.filePath("7z/7z");
    QVERIFY(QFile::link(KORVEX_SCRIPTED_DRIVE, tool));
    scenario->on("7z", {"x", "..."}, {"out  42% 3\\r"});
    runTool("sync");
    QCOMPARE(runTool(tool, {"x", "a.iso"}).text, QByteArray(" 42% 3\r"));
    QCOMPARE(scenario->commands(), (QList<QStringList>{{"sync"}, {"7z", "x", "a.iso"}}));
}

void TstDriveScenario::nextScenarioKnowsNothingOfTheLast()
{
    scenario->on("hdiutil", {}, {});
    scenario->addUsbDisk("/dev/disk2");
    scenario->missing("mount");
    runTool("hdiutil");
    scenario.reset();
    QCOMPARE(runTool("hdiutil").status, 64);
    scenario = std::make_unique<DriveScenario>();
    QVERIFY(scenario->calls().isEmpty());
    QCOMPARE(runTool("hdiutil").status, 64);
    QCOMPARE(runTool("mount").status, 0);
    QVERIFY(!runTool("diskutil", {"list"}).text.contains("disk2"));
}

// The program takes the environment for its tools once.
void TstDriveScenario::environmentStaysTheSameOverScenarios()
{
    const QByteArray path = qgetenv("PATH");
    const QByteArray variable = qgetenv("KORVEX_SCENARIO");
    scenario->missing("sync");
    scenario.reset();
    QCOMPARE(qgetenv("PATH"), path);
    scenario = std::make_unique<DriveScenario>();
    QCOMPARE(qgetenv("PATH"), path);
    QCOMPARE(qgetenv("KORVEX_SCENARIO"), variable);
}

KORVEX_TEST_MAIN(TstDriveScenario)
#include "tst_drivescenario.moc"
