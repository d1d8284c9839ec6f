// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "otherlimit.h"
#include "processcounts.h"
#include "scriptedcalls.h"
#include "testcase.h"
#include "testmain.h"
#include "toolrun.h"

#include <QPointer>
#include <QThread>

#include <future>
#include <thread>

namespace
{

// Only a test that fails needs so long.
constexpr int limitMs = 60000;

} // namespace

class TstToolRun : public TestCase
{
    Q_OBJECT

public slots:
    void line(QString text)
    {
        lines.append(text.trimmed());
        speaker = sender();
        lateLines += run->isLate(sender()) ? 1 : 0;
        if (stopAtFirstLine && lines.size() == 1)
            run->stop();
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
    void listIsReadInWholeLines_data();
    void listIsReadInWholeLines();
    void stopEndsTheToolWithoutAnEnd();
    void stopReturnsAtOnce();
    void stopWithoutARunIsHarmless();
    void linesAfterStopAreLate();
    void directCallIsNotLate();
    void nextRunDoesNotHearTheLastOne();
    void runnersFreeThemselves();
    void destructorEndsTheToolAndWaits();
    void runnerIsNotGoneBeforeItHasItsName();

private:
    void start(const QStringList& script);
    static bool hasEverythingGone()
    {
        return childProcesses().isEmpty() && processesOf("scriptedtool").isEmpty() &&
               areRunnersGone();
    }
    // What the runners have sent has been received by then.
    static bool isEverythingGone()
    {
        const bool isGone = QTest::qWaitFor(hasEverythingGone, limitMs);
        QCoreApplication::processEvents();
        return isGone;
    }
    bool hasCome(const QString& text) const
    {
        return QTest::qWaitFor([&] { return lines.contains(text); }, limitMs);
    }

    const QString program = QCoreApplication::applicationDirPath() + "/cdrtools/mkisofs";
    std::unique_ptr<ScriptedCalls> tool;
    std::unique_ptr<ToolRun> run;
    QStringList lines;
    QPointer<QObject> speaker; // the runner of the last line
    bool stopAtFirstLine = false;
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
    stopAtFirstLine = false;
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
    QVERIFY(QTest::qWaitFor([&] { return tool->calls().size() > calls; }, limitMs));
}

void TstToolRun::linesAndTheEndAreDelivered()
{
    QVERIFY(!run->isRunning());
    start({"out one\\n", "err two\\n", tool->holding("end")});
    QVERIFY(hasCome("two"));
    QVERIFY(run->isRunning());
    QCOMPARE(ends, 0);
    tool->release("end");
    QVERIFY(QTest::qWaitFor([this] { return ends == 1; }, limitMs));
    QCOMPARE(lines, QStringList({"one", "two"}));
    QCOMPARE(tool->calls(), QList<QStringList>({{"-x", "two words", ""}}));
    QCOMPARE(lateLines + lateEnds, 0);
    QVERIFY(!run->isRunning());
}

void TstToolRun::endSlotMayBeLeftOut()
{
    run->start(this, SLOT(line(QString)), nullptr, program, {"-x"});
    QVERIFY(QTest::qWaitFor([this] { return !tool->calls().isEmpty(); }, limitMs));
    QVERIFY(isEverythingGone());
    QCOMPARE(ends, 0);
    // The runner frees itself.
    QTRY_VERIFY_WITH_TIMEOUT(!run->isRunning(), limitMs);
}

void TstToolRun::missingProgramEndsToo()
{
    run->start(this, SLOT(line(QString)), SLOT(end()), program + " nowhere", {"-x"});
    QVERIFY(QTest::qWaitFor([this] { return ends == 1; }, limitMs));
    QVERIFY(lines.isEmpty());
}

void TstToolRun::listIsReadInWholeLines_data()
{
    QTest::addColumn<bool>("isList");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("list") << true << QStringList({"first", "second"});
    QTest::newRow("anything else") << false << QStringList({"first", "sec", "ond"});
}

void TstToolRun::listIsReadInWholeLines()
{
    QFETCH(bool, isList);
    const OtherLimit quick(toolLimits().stepMs, 10);
    tool->setScript({"out first\\n", "out sec", tool->holding("pause"), "out ond\\n"});
    const auto begin = isList ? &ToolRun::startListing : &ToolRun::start;
    (run.get()->*begin)(this, SLOT(line(QString)), SLOT(end()), program, {"-x"});
    QVERIFY(tool->isHeld("pause"));
    const qint64 waits = runnerThreadWaits();
    QVERIFY(QTest::qWaitFor([waits] { return runnerThreadWaits() >= waits + 10; }, limitMs));
    tool->release("pause");
    QVERIFY(QTest::qWaitFor([this] { return ends == 1; }, limitMs));
    QTEST(lines, "expected");
}

void TstToolRun::stopEndsTheToolWithoutAnEnd()
{
    start({"sleep 60000"});
    run->stop();
    QVERIFY(!run->isRunning());
    QVERIFY(isEverythingGone());
    QCOMPARE(ends, 0);
}

void TstToolRun::stopReturnsAtOnce()
{
    const OtherLimit patience(toolLimits().politeStopMs, OtherLimit::forGood);
    start({"ignore-term", "out ready\\n", "sleep 600000"});
    QVERIFY(hasCome("ready"));
    run->stop();
    // Had it waited for the tool, it would not have returned.
    QVERIFY(!processesOf("scriptedtool").isEmpty());
    toolLimits().politeStopMs = 0;
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
    // Both lines leave the tool in one piece; the second is on its way when the first is read.
    stopAtFirstLine = true;
    start({"out one\\ntwo\\n", "sleep 600000"});
    QVERIFY(isEverythingGone());
    QCOMPARE(lines, QStringList({"one", "two"}));
    QCOMPARE(lateLines, 1);
    QCOMPARE(ends, 0);
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
    tool->setScript({"out first\\n"});
    run->start(this, SLOT(line(QString)), SLOT(end()), program, {"-x"});
    // No event is handled here: its line and its end wait to be delivered.
    for (int waited = 0; tool->calls().isEmpty() || !hasEverythingGone(); ++waited) {
        QVERIFY(waited < limitMs);
        QThread::msleep(1);
    }
    QVERIFY(lines.isEmpty());
    run->stop();
    tool->setScript({"out second\\n"});
    run->start(this, SLOT(line(QString)), SLOT(end()), program, {"-y"});
    QVERIFY(QTest::qWaitFor([this] { return ends == 2; }, limitMs));
    QCOMPARE(lines, QStringList({"first", "second"}));
    QCOMPARE(lateLines, 1);
    QCOMPARE(lateEnds, 1);
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
    QVERIFY(QTest::qWaitFor([this] { return !lines.isEmpty(); }, limitMs));
    QVERIFY(speaker);
    run.reset();
    QVERIFY(childProcesses().isEmpty());
    QVERIFY(!speaker);
    QVERIFY(isEverythingGone());
    QCOMPARE(ends, 0);
}

// A wait for the end of all runners that begins in that moment would be over at once.
void TstToolRun::runnerIsNotGoneBeforeItHasItsName()
{
    std::promise<void> look;
    std::thread newborn([end = look.get_future()] { end.wait(); });
    const bool isGone = areRunnersGone();
    look.set_value();
    newborn.join();
    QVERIFY(!isGone);
    QTRY_VERIFY_WITH_TIMEOUT(areRunnersGone(), 30000);
}

KORVEX_TEST_MAIN(TstToolRun)
#include "tst_toolrun.moc"
