// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "discburncommand.h"
#include "imagemount.h"
#include "standins.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QProcess>
#include <QProcessEnvironment>

#include <csignal>
#include <sys/stat.h>

// The tools as the program finds them: by name, in a folder in front of PATH.
class TstPlatformTool : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void everyNameIsItsTool_data();
    void everyNameIsItsTool();
    void mountWithoutArgumentsTellsTheTable();
    void mountWithArgumentsIsTheSystems();
    void toolsOfOursRunTheSystems();
    void commandTextOfThePagesIsUnderstood();
    void othersCannotWriteWhatIsMade();
    void endedCopyLeavesNothing_data();
    void endedCopyLeavesNothing();
    void copyThatNobodyHearsLeavesNothing();

private:
    // A tool like the one that is shipped, with an authoring tool beside it that does not end by
    // itself in the time of a test; the tool's path.
    static QString toolOfLongCopies(const QTemporaryDir& folder);
    // Of a disc in the folder to an image that exists there.
    static QStringList longCopy(const QTemporaryDir& folder);
    static void theOldImageAloneIsLeft(const QTemporaryDir& folder);
    // Runs a tool by its name; both channels are in output, the exit code is returned.
    int run(const QString& name, const QStringList& arguments);

    QString output;
};

void TstPlatformTool::init()
{
    TestCase::init();
    output.clear();
}

int TstPlatformTool::run(const QString& name, const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", QString(KORVEX_PLATFORM_TOOLS) + ':' + environment.value("PATH"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QString(KORVEX_PLATFORM_TOOLS) + '/' + name, arguments);
    process.waitForFinished(-1);
    output = QString::fromUtf8(process.readAll());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

void TstPlatformTool::everyNameIsItsTool_data()
{
    QTest::addColumn<QString>("usage");
    QTest::newRow("diskutil") << "Usage: diskutil list ";
    QTest::newRow("drutil") << "Usage: drutil status";
    QTest::newRow("hdiutil") << "Usage: hdiutil mount ";
    QTest::newRow("platform-tool") << "Call this as diskutil, drutil, hdiutil or mount";
}

void TstPlatformTool::everyNameIsItsTool()
{
    QFETCH(QString, usage);
    QCOMPARE(run(QTest::currentDataTag(), {"--no-such-verb"}), 1);
    QVERIFY2(output.startsWith(usage), qPrintable(output));
}

void TstPlatformTool::mountWithoutArgumentsTellsTheTable()
{
    QCOMPARE(run("mount", {}), 0);
    const QStringList lines = output.split('\n', Qt::SkipEmptyParts);
    QVERIFY(lines.filter(QRegularExpression("^proc on /proc \\(proc[,)]")).size() >= 1);
    for (const QString& line : lines)
        QVERIFY2(QRegularExpression(" on /.* \\(.+\\)$").match(line).hasMatch(), qPrintable(line));
}

void TstPlatformTool::mountWithArgumentsIsTheSystems()
{
    QCOMPARE(run("mount", {"--version"}), 0);
    QVERIFY2(output.contains("util-linux"), qPrintable(output));
    const StandIns tools;
    tools.add("mount", "exit 32");
    QCOMPARE(run("mount", {"-o", "ro", "/dev/a b", "-x"}), 32);
    QCOMPARE(tools.calls(), QStringList("mount|-o|ro|/dev/a b|-x"));
}

void TstPlatformTool::toolsOfOursRunTheSystems()
{
    const StandIns tools;
    tools.add("lsblk", "cat '" KORVEX_TEST_DATA "/lsblk/usb-stick.json'");
    QCOMPARE(run("diskutil", {"list"}), 0);
    QVERIFY(output.startsWith("/dev/sdb (external, physical):\n   #: "));
    QCOMPARE(run("diskutil", {"info", "/dev/sdbs1"}), 0);
    QVERIFY(output.contains("   Mount Point:               /media/user/MY STICK\n"));
    QCOMPARE(run("diskutil", {"info", "/dev/sdbs2"}), 1);
    QCOMPARE(output, QString("Could not find disk: /dev/sdbs2\n"));
    QCOMPARE(run("drutil", {"status"}), 0);
}

void TstPlatformTool::commandTextOfThePagesIsUnderstood()
{
    for (const QString& command :
         {unmountImageCommand("/no/such/folder"), forceUnmountImageCommand("/no/such/folder")}) {
        QStringList words = QProcess::splitCommand(command);
        QCOMPARE(run(words.takeFirst(), words), 1);
        QCOMPARE(output, QString("hdiutil: unmount failed - No such file or directory\n"));
    }
    QStringList words = QProcess::splitCommand(mountImageCommand("/no such/a b.iso"));
    QCOMPARE(run(words.takeFirst(), words), 1);
    QCOMPARE(output, QString("hdiutil: mount failed - No such file or directory\n"));
}

void TstPlatformTool::othersCannotWriteWhatIsMade()
{
    const StandIns tools;
    tools.add("mkisofs", "while [ \"$1\" != -o ]; do shift; done; echo x >\"$2\"");
    writeFile(tools.filePath("disc/x"), "x");
    const mode_t mask = ::umask(0);
    const QString image = tools.filePath("x.iso");
    const int code = run(discImageProgram(), imageOfDiscArguments(image, tools.filePath("disc")));
    ::umask(mask);
    QCOMPARE(code, 0);
    QVERIFY(output.endsWith("DRStatusPercentCompleteKey: 1\n"));
    QVERIFY(!QFileInfo(image).permission(QFile::WriteOther));
    QVERIFY(!QFileInfo(image).permission(QFile::WriteGroup));
}

QString TstPlatformTool::toolOfLongCopies(const QTemporaryDir& folder)
{
    // Rising progress, so that whoever follows it always has something to tell; it ends where
    // nobody reads that.
    writeScript(folder.filePath("cdrtools/mkisofs"),
                "while [ \"$1\" != -o ]; do shift; done\n"
                "echo x >\"$2\"\n"
                "i=1000\n"
                "while [ $i -lt 9999 ] && printf ' %d.%d%% done, estimate finish x\\n' "
                "$((i / 100)) $((i % 100)); do i=$((i + 1)); sleep 0.02; done 2>&1\n");
    const QString tool = folder.filePath("platform-tools/hdiutil");
    if (!QDir().mkpath(folder.filePath("platform-tools")) ||
        !QFile::copy(QString(KORVEX_PLATFORM_TOOLS) + "/hdiutil", tool))
        qFatal("cannot copy the tool");
    return tool;
}

QStringList TstPlatformTool::longCopy(const QTemporaryDir& folder)
{
    writeFile(folder.filePath("out/x.iso"), "old");
    writeFile(folder.filePath("disc/file"), "x");
    return imageOfDiscArguments(folder.filePath("out/x.iso"), folder.filePath("disc"));
}

void TstPlatformTool::theOldImageAloneIsLeft(const QTemporaryDir& folder)
{
    QCOMPARE(entriesOf(folder.filePath("out")), QStringList("x.iso"));
    QCOMPARE(readFile(folder.filePath("out/x.iso")), QByteArray("old"));
}

void TstPlatformTool::endedCopyLeavesNothing_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("stopped") << SIGTERM;
    QTest::newRow("interrupted") << SIGINT;
    QTest::newRow("terminal closed") << SIGHUP;
}

void TstPlatformTool::endedCopyLeavesNothing()
{
    QFETCH(int, signal);
    const QTemporaryDir folder;
    // Whoever runs the tests in the background may ignore it, which the tool would inherit.
    std::signal(signal, SIG_DFL);
    QProcess process;
    process.start(toolOfLongCopies(folder), longCopy(folder));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(folder.filePath("out/x.iso.unfinished")), 30'000);
    QCOMPARE(::kill(pid_t(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished(-1));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(process.exitCode(), signal);
    theOldImageAloneIsLeft(folder);
}

void TstPlatformTool::copyThatNobodyHearsLeavesNothing()
{
    const QTemporaryDir folder;
    const QString script = "set -o pipefail; '" + toolOfLongCopies(folder) + "' \"$@\" | head -1";
    QProcess shell;
    shell.start("bash", QStringList{"-c", script, "bash"} + longCopy(folder));
    QVERIFY(shell.waitForFinished(-1));
    QCOMPARE(shell.readAllStandardOutput(), QByteArray("Creating hybrid image...\n"));
    QCOMPARE(shell.exitCode(), 128 + SIGPIPE);
    theOldImageAloneIsLeft(folder);
}

KORVEX_TEST_MAIN(TstPlatformTool)

#include "tst_platformtool.moc"
