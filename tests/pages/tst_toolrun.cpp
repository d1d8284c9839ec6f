// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "processcounts.h"
#include "scriptedcalls.h"
#include "testcase.h"
#include "testmain.h"
#include "toolrun.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QThread>

class TstToolRun : public TestCase
{
    Q_OBJECT

public slots:
    void line(QString text)
    {
        lines.append(text.trimmed());
        speaker = sender();
        lateLines += run->isLate(sender()) ? 1 : 0;
    }
    void end()
    {
        ++ends;
        if (run->isLate(sender()))
            ++lateEnds;
        else
            run->forget();
    }

private slots:
    void init();
    void cleanup();
    void linesAndTheEndAreDelivered();
    void endSlotMayBeLeftOut();
    void missingProgramEndsToo();
    void stopEndsTheToolWithoutAnEnd();
    void stopReturnsAtOnce();
    void stopWithoutARunIsHarmless();
    void linesAfterStopAreLate();
    void directCallIsNotLate();
    void nextRunDoesNotHearTheLastOne();
    void runnersFreeThemselves();
    void destructorEndsTheToolAndWaits();

private:
    void start(const QStringList& script);
    bool isEverythingGone() const
    {
        return QTest::qWaitFor(
            [] {
                return childProcesses().isEmpty() && processesOf("scriptedtool").isEmpty() &&
                       runnerThreadCount() == 0;
            },
            5000);
    }

    const QString program = QCoreApplication::applicationDirPath() + "/cdrtools/mkisofs";
    std::unique_ptr<ScriptedCalls> tool;
    std::unique_ptr<ToolRun> run;
    QStringList lines;
    QPointer<QObject> speaker; // the runner of the last line
    int ends = 0;
    int lateLines = 0;
    int lateEnds = 0;
};

void TstToolRun::init()
{
    TestCase::init();
    tool = std::make_unique<ScriptedCalls>(program);
    run = std::make_unique<ToolRun>();
    lines.clear();
    ends = lateLines = lateEnds = 0;
}

void TstToolRun::cleanup()
{
    run.reset();
    TestCase::cleanup();
}

void TstToolRun::start(const QStringList& script)
{
    const int calls = tool->calls().size();
    tool->setScript(script);
    run->start(this, SLOT(line(QString)), SLOT(end()), program, {"-x", "two words", ""});
    QVERIFY(QTest::qWaitFor([&] { return tool->calls().size() > calls; }));
}

void TstToolRun::linesAndTheEndAreDelivered()
{
    QVERIFY(!run->isRunning());
    start({"out one\\n", "err two\\n", "sleep 300"});
    QVERIFY(run->isRunning());
    QVERIFY(QTest::qWaitFor([this] { return ends == 1; }));
    QCOMPARE(lines, QStringList({"one", "two"}));
    QCOMPARE(tool->calls(), QList<QStringList>({{"-x", "two words", ""}}));
    QCOMPARE(lateLines + lateEnds, 0);
    QVERIFY(!run->isRunning());
}

void TstToolRun::endSlotMayBeLeftOut()
{
    run->start(this, SLOT(line(QString)), nullptr, program, {"-x"});
    QVERIFY(isEverythingGone());
    QTest::qWait(100);
    QCOMPARE(ends, 0);
    QVERIFY(!run->isRunning());
}

void TstToolRun::missingProgramEndsToo()
{
    run->start(this, SLOT(line(QString)), SLOT(end()), program + " nowhere", {"-x"});
    QVERIFY(QTest::qWaitFor([this] { return ends == 1; }));
    QVERIFY(lines.isEmpty());
}

void TstToolRun::stopEndsTheToolWithoutAnEnd()
{
    start({"sleep 60000"});
    run->stop();
    QVERIFY(!run->isRunning());
    QVERIFY(isEverythingGone());
    QTest::qWait(200);
    QCOMPARE(ends, 0);
}

void TstToolRun::stopReturnsAtOnce()
{
    start({"ignore-term", "out ready\\n", "sleep 60000"});
    QVERIFY(QTest::qWaitFor([this] { return !lines.isEmpty(); }));
    QElapsedTimer clock;
    clock.start();
    run->stop();
    QVERIFY(clock.elapsed() < 300); // the tool has half a second to obey
    QVERIFY(!processesOf("scriptedtool").isEmpty());
    QVERIFY(isEverythingGone());
}

void TstToolRun::stopWithoutARunIsHarmless()
{
    run->stop();
    run->stop();
    QVERIFY(!run->isRunning());
}

void TstToolRun::linesAfterStopAreLate()
{
    start({"out one\\n", "sleep 60000"});
    QThread::msleep(700); // the line waits to be delivered
    run->stop();
    QTest::qWait(200);
    QCOMPARE(lines, QStringList("one"));
    QCOMPARE(lateLines, 1);
}

void TstToolRun::directCallIsNotLate()
{
    QVERIFY(!run->isLate(nullptr));
    QVERIFY(!run->isLate(this));
    start({"sleep 60000"});
    QVERIFY(!run->isLate(nullptr));
}

void TstToolRun::nextRunDoesNotHearTheLastOne()
{
    start({"out first\\n"});
    QThread::msleep(700); // its end waits to be delivered
    run->stop();
    tool->setScript({"out second\\n"});
    run->start(this, SLOT(line(QString)), SLOT(end()), program, {"-y"});
    QVERIFY(QTest::qWaitFor([this] { return lines.contains("second"); }));
    QVERIFY(QTest::qWaitFor([this] { return ends > lateEnds; }));
    QCOMPARE(ends - lateEnds, 1);
    QCOMPARE(lines.size() - lateLines, 1);
}

void TstToolRun::runnersFreeThemselves()
{
    for (int i = 0; i < 20; ++i) {
        start({i % 2 ? "sleep 60000" : "sleep 1"});
        run->stop();
    }
    QVERIFY(isEverythingGone());
    QVERIFY(!run->isRunning());
}

void TstToolRun::destructorEndsTheToolAndWaits()
{
    start({"ignore-term", "child 60000", "out ready\\n", "sleep 60000"});
    QVERIFY(QTest::qWaitFor([this] { return !lines.isEmpty(); }));
    QVERIFY(speaker);
    run.reset();
    QVERIFY(childProcesses().isEmpty());
    QVERIFY(!speaker);
    QVERIFY(isEverythingGone());
    QCOMPARE(ends, 0);
}

KORVEX_TEST_MAIN(TstToolRun)
#include "tst_toolrun.moc"
