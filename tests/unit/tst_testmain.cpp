// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "testmain.h"

#include <QProcess>

namespace
{

const char* const leavingArgument = "--leaving";

// What the product must never do in a test without being found out.
void leave(const QByteArray& way)
{
    if (way == "exit")
        std::exit(0);
    if (way == "quick_exit")
        std::quick_exit(0);
}

} // namespace

// A test class that is run in a process of its own, where one of its functions leaves.
class LeavingTest : public TestCase
{
    Q_OBJECT

private slots:
    void leaves() { leave(qgetenv("KORVEX_WAY")); }
    void fails() { QVERIFY(qgetenv("KORVEX_WAY") != "fail"); }
};

// That a test program tells whether all of its functions have passed.
class TstTestMain : public TestCase
{
    Q_OBJECT

private slots:
    void leavingBeforeTheEndIsAFailure_data();
    void leavingBeforeTheEndIsAFailure();
    void endTellsTheNumberOfFailures_data();
    void endTellsTheNumberOfFailures();

private:
    static void run(QProcess& process, const QString& way);
    static bool saysThatItWasLeft(QProcess& process)
    {
        return process.readAllStandardError().contains(
            "The test program was left before its last function had ended.\n");
    }
};

void TstTestMain::run(QProcess& process, const QString& way)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("KORVEX_WAY", way);
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {leavingArgument});
    QVERIFY(process.waitForFinished(60'000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
}

void TstTestMain::leavingBeforeTheEndIsAFailure_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("exit") << "exit";
    QTest::newRow("quick_exit") << "quick_exit";
}

void TstTestMain::leavingBeforeTheEndIsAFailure()
{
    QFETCH(QString, way);
    QProcess process;
    run(process, way);
    QCOMPARE(process.exitCode(), EXIT_FAILURE);
    QVERIFY(saysThatItWasLeft(process));
}

void TstTestMain::endTellsTheNumberOfFailures_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<int>("failures");
    QTest::newRow("passed") << "pass" << 0;
    QTest::newRow("failed") << "fail" << 1;
}

void TstTestMain::endTellsTheNumberOfFailures()
{
    QFETCH(QString, way);
    QProcess process;
    run(process, way);
    QTEST(process.exitCode(), "failures");
    QVERIFY(!saysThatItWasLeft(process));
}

int main(int argc, char* argv[])
{
    if (argc == 2 && qstrcmp(argv[1], leavingArgument) == 0)
        return runTests<LeavingTest>(1, argv);
    return runTests<TstTestMain>(argc, argv);
}

#include "tst_testmain.moc"
