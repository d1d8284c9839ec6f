// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cpage2.h"
#include "cruncommandthread.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "processcounts.h"
#include "scriptedcalls.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usermouse.h"

#include <QProcess>
#include <QTableWidget>

#include <csignal>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr int limitMs = 60'000;
const char* const closeArgument = "--close-while-extracting";
const char* const leaveArgument = "--close-while-workers-write-the-log";

QString toolPath()
{
    return QCoreApplication::applicationDirPath() + "/7z/7z";
}

// Whether the font engine is loaded, which the first window is drawn with.
bool hasDrawnItsWindow(const QProcess& program)
{
    QFile maps(QString("/proc/%1/maps").arg(program.processId()));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("/fonts/");
}

void loadAndExtract(CPage2& page, const QString& gate)
{
    ModalDriver driver;
    driver.typePath(KORVEX_TEST_DATA "/7z/list-plain-26.02.txt");
    page.OnLoadISO();
    QTableWidget* const table = page.findChild<QTableWidget*>("list");
    if (!QTest::qWaitFor([table] { return table->rowCount() > 0; }, limitMs))
        qFatal("not loaded");
    ScriptedCalls(toolPath())
        .setScript(
            {"out 10% 1 - big.bin\\n", "lines 1000 line", "hold " + gate, "hold " + gate + "-2"});
    table->item(0, 0)->setCheckState(Qt::Checked);
    driver.typePath(QDir::tempPath());
    page.OnExtract();
}

// The program with an extraction under way, whose close button is then clicked.
int closeWhileExtracting(int argc, char* argv[])
{
    prepareProcess();
    const QApplication application(argc, argv);
    ScriptedCalls(toolPath()).setScript({"file 4096 " KORVEX_TEST_DATA "/7z/list-plain-26.02.txt"});
    MainWindow window(nullptr);
    window.show();
    window.onExtract();
    const QString gate = QString::fromLocal8Bit(argv[2]);
    loadAndExtract(*window.findChild<CPage2*>(), gate);
    if (!QTest::qWaitFor([&gate] { return QFileInfo::exists(gate + ".reached"); }, limitMs))
        qFatal("the tool does not run");
    window.onClose();
    return 1; // never reached
}

QByteArray logPath;

qint64 logSize()
{
    struct stat log = {};
    return ::stat(logPath.constData(), &log) == 0 ? qint64(log.st_size) : 0;
}

// The last step of an ordinary exit. It is held until the workers have written more, with all that
// an exit takes from under them gone.
void holdTheEnd()
{
    const qint64 size = logSize();
    for (int waited = 0; logSize() < size + 100'000; ++waited) {
        if (waited == 60'000)
            ::_exit(2);
        ::usleep(1000);
    }
}

// The program with workers that write the log as fast as they can, whose close button is then
// clicked.
int closeWhileWorkersWriteTheLog(int argc, char* argv[])
{
    std::atexit(holdTheEnd);
    prepareProcess();
    const QApplication application(argc, argv);
    const LogSwitch on;
    logPath = QFile::encodeName(LogSwitch::logPath());
    ScriptedCalls(toolPath()).setScript({"flood 100000000"});
    MainWindow window(nullptr);
    window.show();
    CRunCommandThread runners[3];
    for (CRunCommandThread& runner : runners) {
        runner.SetRunCmd(toolPath(), {"x"});
        runner.start();
    }
    const qint64 before = logSize();
    if (!QTest::qWaitFor([before] { return logSize() > before + 1'000'000; }, 60'000))
        return 3;
    window.onClose();
    return 1; // never reached
}

} // namespace

// The program as a process of its own.
class TstProgram : public TestCase
{
    Q_OBJECT

private slots:
    void startsAndStays_data();
    void startsAndStays();
    void closeButtonEndsTheProcessWhileAToolRuns();
    void closeButtonTakesNothingFromUnderTheWorkers();
};

void TstProgram::startsAndStays_data()
{
    QTest::addColumn<QStringList>("variables");
    QTest::newRow("usual") << QStringList();
    QTest::newRow("plain locale") << QStringList{"LC_ALL=C"};
    QTest::newRow("unknown locale") << QStringList{"LC_ALL=xx_XX"};
    QTest::newRow("swedish") << QStringList{"LC_ALL=sv_SE.UTF-8"};
    QTest::newRow("high density") << QStringList{"QT_SCALE_FACTOR=2"};
    QTest::newRow("no home") << QStringList{"HOME=/nonexistent"};
}

void TstProgram::startsAndStays()
{
    QFETCH(QStringList, variables);
    QProcess program;
    program.setProcessEnvironment(QProcessEnvironment::systemEnvironment());
    QProcessEnvironment environment = program.processEnvironment();
    environment.insert("XDG_RUNTIME_DIR", QDir::tempPath());
    for (const QString& variable : qAsConst(variables))
        environment.insert(variable.section('=', 0, 0), variable.section('=', 1));
    program.setProcessEnvironment(environment);
    program.start(KORVEX_PROGRAM, QStringList());
    QVERIFY(program.waitForStarted());
    // It draws its window and still runs then, or it would not end of this.
    QTRY_VERIFY_WITH_TIMEOUT(hasDrawnItsWindow(program), limitMs);
    program.terminate();
    QVERIFY(program.waitForFinished(limitMs));
    QCOMPARE(program.exitStatus(), QProcess::CrashExit);
    QCOMPARE(program.exitCode(), SIGTERM);
    const QString errors = QString::fromUtf8(program.readAllStandardError());
    for (const char* const sign : {"connect", "Could not", "null", "QPixmap", "QThread", "Parse"})
        QVERIFY2(!errors.contains(sign), qPrintable(errors));
}

void TstProgram::closeButtonEndsTheProcessWhileAToolRuns()
{
    for (int run = 0; run < 3; ++run) {
        const QTemporaryDir gates;
        const QString gate = gates.filePath("gate");
        QProcess program;
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QCoreApplication::applicationFilePath(), {closeArgument, gate});
        QVERIFY2(program.waitForFinished(limitMs), program.readAll());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        // The tool goes on without the program.
        writeFile(gate, {});
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(gate + "-2.reached"), limitMs);
        writeFile(gate + "-2", {});
        QTRY_VERIFY_WITH_TIMEOUT(processesOf("scriptedtool").isEmpty(), limitMs);
    }
}

void TstProgram::closeButtonTakesNothingFromUnderTheWorkers()
{
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QCoreApplication::applicationFilePath(), {leaveArgument});
    const bool hasEnded = program.waitForFinished(120'000);
    const QByteArray output = program.readAll();
    const QList<qint64> tools = processesOf("scriptedtool");
    for (const qint64 tool : tools)
        ::kill(pid_t(tool), SIGKILL);
    QFile::remove(LogSwitch::switchPath());
    QVERIFY2(hasEnded, output);
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
}

int main(int argc, char* argv[])
{
    if (argc == 2 && qstrcmp(argv[1], leaveArgument) == 0)
        return closeWhileWorkersWriteTheLog(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], closeArgument) == 0)
        return closeWhileExtracting(argc, argv);
    return runTests<TstProgram>(argc, argv);
}

#include "tst_program.moc"
