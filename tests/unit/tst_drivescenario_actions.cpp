// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "drivescenario.h"
#include "processcounts.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "toolgates.h"
#include "toolresult.h"

#include <QFileInfo>
#include <QThread>

#include <memory>

// What the stand-ins for the drive tools can be told to do.
class TstDriveScenarioActions : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void textsReachTheirChannelsToTheByte();
    void floodOnBothChannelsIsWhole();
    void hangingToolCanBeKilledAndLeavesNoEnd();
    void heldCallGoesOnWhenReleased();
    void heldCallEndsWithItsScenario();
    void heldCallEndsWithWhoeverStartedIt();
    void gatesGoWhileToolsComeToThem();
    void crashIsACrash();
    void foldersAndFilesAreMadeAndCopied();
    void realToolGetsTheArguments();
    void oneArgumentOfTheRealToolIsReplaced();
    void realToolThatIsMissingIsToldApart();

private:
    std::unique_ptr<DriveScenario> scenario;
};

void TstDriveScenarioActions::init()
{
    TestCase::init();
    scenario = std::make_unique<DriveScenario>();
}

void TstDriveScenarioActions::cleanup()
{
    scenario.reset();
    TestCase::cleanup();
}

void TstDriveScenarioActions::textsReachTheirChannelsToTheByte()
{
    const QString text = QString::fromUtf8(" a\\n\t\r\n  \u2026\n\non sync\n");
    scenario->on("hdiutil", {},
                 {DriveScenario::printing(text), DriveScenario::complaining("no\n")});
    const ToolResult result = runTool("hdiutil");
    QCOMPARE(result.text, text.toUtf8());
    QCOMPARE(result.errors, QByteArray("no\n"));
    QCOMPARE(result.status, 0);
}

void TstDriveScenarioActions::floodOnBothChannelsIsWhole()
{
    scenario->on("hdiutil", {}, {"flood 2"});
    const ToolResult result = runTool("hdiutil");
    QVERIFY(result.text.size() >= 2 << 20);
    QCOMPARE(result.errors.size(), result.text.size());
}

void TstDriveScenarioActions::hangingToolCanBeKilledAndLeavesNoEnd()
{
    scenario->on("hdiutil", {},
                 {"ignore-term", scenario->holding("gate"), "out after", "sleep 60000"});
    QProcess process;
    process.start("hdiutil", QStringList());
    QVERIFY(scenario->isHeld("gate"));
    process.terminate();
    scenario->release("gate");
    QVERIFY(process.waitForReadyRead());
    QCOMPARE(process.readAllStandardOutput(), QByteArray("after"));
    process.kill();
    QVERIFY(process.waitForFinished());
    QCOMPARE(scenario->commands(), (QList<QStringList>{{"hdiutil"}}));
    QCOMPARE(scenario->calls().value(0).ended, -1);
}

void TstDriveScenarioActions::heldCallGoesOnWhenReleased()
{
    const QTemporaryDir folder;
    const QString given = folder.filePath("given");
    const QString taken = folder.filePath("taken");
    scenario->on("hdiutil", {},
                 {"out before ", scenario->holding("a gate"), DriveScenario::copying(given, taken),
                  "out after", "exit 0"});
    QProcess process;
    process.start("hdiutil", QStringList());
    QVERIFY(scenario->isHeld("a gate"));
    // It could not do what follows before this.
    writeFile(given, "x");
    scenario->release("a gate");
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardOutput(), QByteArray("before after"));
    QCOMPARE(readFile(taken), QByteArray("x"));
}

void TstDriveScenarioActions::heldCallEndsWithItsScenario()
{
    scenario->on("hdiutil", {}, {"out ready", scenario->holding("gate")});
    QProcess process;
    process.start("hdiutil", QStringList());
    QVERIFY(process.waitForReadyRead());
    scenario.reset();
    QVERIFY(process.waitForFinished());
}

// As the tool of a test that has crashed has to.
void TstDriveScenarioActions::heldCallEndsWithWhoeverStartedIt()
{
    scenario->on("hdiutil", {}, {scenario->holding("gate")});
    QProcess shell;
    shell.start("/bin/sh", {"-c", "hdiutil & wait"});
    QVERIFY(scenario->isHeld("gate"));
    QCOMPARE(processesOf("scripteddrive").size(), 1);
    shell.kill();
    QVERIFY(shell.waitForFinished());
    QTRY_VERIFY_WITH_TIMEOUT(processesOf("scripteddrive").isEmpty(), 60000);
}

// Tools that come to a gate while the folder is being emptied would wait in one that stays.
void TstDriveScenarioActions::gatesGoWhileToolsComeToThem()
{
    auto gates = std::make_unique<ToolGates>();
    const QString path = gates->hold("gate").section(' ', 1);
    const QString folder = QFileInfo(path).path();
    for (int i = 0; i < 2000; ++i)
        writeFile(QString("%1-%2.reached").arg(path).arg(i), {});
    const QString first = path + "-0.reached";
    const std::unique_ptr<QThread> tools(QThread::create([&] {
        while (QFile::exists(first))
            QThread::yieldCurrentThread();
        for (int i = 0; i < 2000; ++i)
            QFile(QString("%1+%2.reached").arg(path).arg(i)).open(QIODevice::WriteOnly);
    }));
    tools->start();
    gates.reset();
    const bool isGone = !QFileInfo::exists(folder);
    tools->wait();
    QVERIFY(isGone);
}

void TstDriveScenarioActions::crashIsACrash()
{
    scenario->on("hdiutil", {}, {"out text", "crash"});
    QProcess process;
    process.start("hdiutil", QStringList());
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(process.readAllStandardOutput(), QByteArray("text"));
}

void TstDriveScenarioActions::foldersAndFilesAreMadeAndCopied()
{
    const QTemporaryDir folder;
    const QString source = folder.filePath("the source");
    const QString target = folder.filePath("new/stick \\ 1");
    writeFile(source + "/sub/file", "new");
    writeFile(folder.filePath("one"), "old");
    scenario->on("mkbootable", {},
                 {DriveScenario::makingFolder(target), DriveScenario::copying(source, target),
                  DriveScenario::copying(source + "/sub/file", folder.filePath("one"))});
    const QString tool = folder.filePath("mkbootable");
    QVERIFY(QFile::link(KORVEX_SCRIPTED_DRIVE, tool));
    QCOMPARE(runTool(tool).status, 0);
    QCOMPARE(readFile(target + "/sub/file"), QByteArray("new"));
    QCOMPARE(readFile(folder.filePath("one")), QByteArray("new"));
}

void TstDriveScenarioActions::realToolGetsTheArguments()
{
    const QTemporaryDir folder;
    const QString real = writeScript(folder.filePath("the real one"), "printf '<%s>' \"$@\"\n");
    scenario->on("hdiutil", {"..."}, {DriveScenario::becoming(real)});
    QCOMPARE(runTool("hdiutil", {"a b", "", "-c"}).text, QByteArray("<a b><><-c>"));
    QCOMPARE(scenario->callsOf("hdiutil"), (QList<QStringList>{{"a b", "", "-c"}}));
}

void TstDriveScenarioActions::oneArgumentOfTheRealToolIsReplaced()
{
    const QTemporaryDir folder;
    const QString real = writeScript(folder.filePath("real"), "printf '<%s>' \"$@\"\nexit 5\n");
    scenario->on("hdiutil", {"..."}, {DriveScenario::becoming(real, " 3800", "1")});
    const ToolResult result = runTool("hdiutil", {"split", "3800", " 3800"});
    QCOMPARE(result.text, QByteArray("<split><3800><1>"));
    QCOMPARE(result.status, 5);
    QCOMPARE(scenario->callsOf("hdiutil"), (QList<QStringList>{{"split", "3800", " 3800"}}));
}

void TstDriveScenarioActions::realToolThatIsMissingIsToldApart()
{
    scenario->on("sync", {}, {DriveScenario::becoming("/no/such/tool")});
    QCOMPARE(runTool("sync").status, 64);
    QCOMPARE(scenario->unmatchedCalls().size(), 1);
}

KORVEX_TEST_MAIN(TstDriveScenarioActions)
#include "tst_drivescenario_actions.moc"
