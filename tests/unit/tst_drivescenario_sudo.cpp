// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "drivescenario.h"
#include "foldertest.h"
#include "testfiles.h"
#include "testmain.h"
#include "toolresult.h"
#include "util.h"

#include <memory>

// The way through a scenario's sudo to the boot tool.
class TstDriveScenarioSudo : public FolderTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void sudoRunsTheBootTool_data();
    void sudoRunsTheBootTool();
    void sudoPassesTheStatusOfTheBootToolOn();
    void sudoWithoutPasswordRunsNothing_data();
    void sudoWithoutPasswordRunsNothing();
    void sudoWithoutAskpassRunsNothing();
    void sudoOfAMissingToolFails();

private:
    QString askpassThat(const QByteArray& body);
    // Runs the boot tool as the program does; the exit status of the shell.
    int runBootTool(const QString& askpass, const QString& mountPoint);
    QString bootTool() const { return Util::GetCurrentExePath() + "/mkbootable"; }

    std::unique_ptr<DriveScenario> scenario;
};

void TstDriveScenarioSudo::init()
{
    FolderTest::init();
    scenario = std::make_unique<DriveScenario>();
}

void TstDriveScenarioSudo::cleanup()
{
    scenario.reset();
    FolderTest::cleanup();
}

QString TstDriveScenarioSudo::askpassThat(const QByteArray& body)
{
    return writeScript(folder->filePath("ask pass"), body);
}

int TstDriveScenarioSudo::runBootTool(const QString& askpass, const QString& mountPoint)
{
    const QString command = "SUDO_ASKPASS='" + askpass + "' sudo --askpass '" + bootTool() +
                            "' /dev/disk2 " + mountPoint + " > " + folder->filePath("log") +
                            " 2>&1";
    return runTool("/bin/bash", {"-c", command}).status;
}

void TstDriveScenarioSudo::sudoRunsTheBootTool_data()
{
    QTest::addColumn<QString>("mountPoint");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("plain") << "/Volumes/STICK" << QStringList{"/dev/disk2", "/Volumes/STICK"};
    QTest::newRow("shell splits at blanks")
        << "/Volumes/MY STICK" << QStringList{"/dev/disk2", "/Volumes/MY", "STICK"};
    QTest::newRow("shell drops an empty one") << "" << QStringList{"/dev/disk2"};
}

void TstDriveScenarioSudo::sudoRunsTheBootTool()
{
    QFETCH(QString, mountPoint);
    QFETCH(QStringList, arguments);
    UsbDisk disk;
    disk.mountPoint = mountPoint;
    scenario->addUsbDisk("/dev/disk2", disk);
    const QString askpass = askpassThat("printf '%s\\n' 's3cret word'\n");
    QCOMPARE(runBootTool(askpass, mountPoint), 0);
    const QList<DriveCall> calls = scenario->calls();
    QCOMPARE(scenario->callsOf("sudo"),
             (QList<QStringList>{QStringList{"--askpass", bootTool()} + arguments}));
    QCOMPARE(scenario->callsOf("mkbootable"), QList<QStringList>{arguments});
    QVERIFY(scenario->unmatchedCalls().isEmpty());
    QCOMPARE(calls[0].environment.value("SUDO_ASKPASS"), askpass);
    QCOMPARE(calls[0].passwords, 1);
    QCOMPARE(calls[0].refusals, 0);
    QVERIFY(calls[1].begun > calls[0].begun && calls[1].ended < calls[0].ended);
    const QByteArray record = readFile(qEnvironmentVariable("KORVEX_SCENARIO") + ".calls");
    QVERIFY(record.contains("mkbootable"));
    QVERIFY(!record.contains("s3cret"));
}

void TstDriveScenarioSudo::sudoPassesTheStatusOfTheBootToolOn()
{
    scenario->on("mkbootable", {"..."}, {"out done", "exit 23"});
    QCOMPARE(runBootTool(askpassThat("echo word\n"), "/mnt"), 23);
    QCOMPARE(readFile(folder->filePath("log")), QByteArray("done"));
}

void TstDriveScenarioSudo::sudoWithoutPasswordRunsNothing_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("silent") << QByteArray("exit 0\n");
    QTest::newRow("cancelled") << QByteArray("exit 1\n");
    QTest::newRow("empty line") << QByteArray("echo\n");
}

void TstDriveScenarioSudo::sudoWithoutPasswordRunsNothing()
{
    QFETCH(QByteArray, body);
    QCOMPARE(runBootTool(askpassThat(body), "/mnt"), 1);
    QVERIFY(scenario->callsOf("mkbootable").isEmpty());
    QCOMPARE(scenario->calls().value(0).passwords, 0);
    QCOMPARE(scenario->calls().value(0).refusals, 1);
    QCOMPARE(readFile(folder->filePath("log")),
             QByteArray("sudo: no password was provided\nsudo: a password is required\n"));
}

void TstDriveScenarioSudo::sudoWithoutAskpassRunsNothing()
{
    QCOMPARE(runBootTool("/no/such/file", "/mnt"), 1);
    QVERIFY(readFile(folder->filePath("log"))
                .startsWith("sudo: unable to run /no/such/file: No such file or directory\n"));
    QCOMPARE(runTool("sudo", {"--askpass", "sync"}).status, 1);
    QVERIFY(scenario->callsOf("mkbootable").isEmpty());
    QVERIFY(scenario->callsOf("sync").isEmpty());
}

void TstDriveScenarioSudo::sudoOfAMissingToolFails()
{
    scenario->on("sudo", {"..."}, {"execute"});
    QCOMPARE(runTool("sudo", {"--askpass", "/no/such/tool", "-x"}).status, 1);
    QCOMPARE(scenario->calls().size(), 1);
}

KORVEX_TEST_MAIN(TstDriveScenarioSudo)
#include "tst_drivescenario_sudo.moc"
