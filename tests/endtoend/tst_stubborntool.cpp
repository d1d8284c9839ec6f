// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "extractsession.h"
#include "otherlimit.h"
#include "processcounts.h"
#include "scriptedcalls.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"

#include <QLabel>
#include <QTemporaryDir>

namespace
{

constexpr int stops = 15;      // a third of them at each moment
constexpr int limitMs = 60000; // only a test that fails needs so long

QString toolPath()
{
    return QCoreApplication::applicationDirPath() + "/7z/7z";
}

const char* const listing = KORVEX_TEST_DATA "/7z/list-plain-26.02.txt";

// How many bytes the tool has written by now.
qint64 writtenBytes()
{
    const QList<qint64> tools = processesOf("scriptedtool");
    if (tools.isEmpty())
        return 0;
    const QByteArray counts = readFile(QString("/proc/%1/io").arg(tools.first()));
    return counts.mid(counts.indexOf("wchar:") + 6).trimmed().split('\n').first().toLongLong();
}

// The tool, its child and whatever has not become a tool yet.
bool everythingIsGone()
{
    return childProcesses().isEmpty() && processesOf("scriptedtool").isEmpty();
}

} // namespace

// Stop with a tool that ignores the polite request and has a child that would hold its pipes.
class TstStubbornTool : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void manyStopsInARow();
    void stopUnderAFlood();
    void pauseInALineOfAListingLosesNoEntry();
    void newListingEndsTheOlderOne();

private:
    void beginExtraction();

    QTemporaryDir folder;
    std::unique_ptr<ExtractSession> session;
    // A stop is noticed at once, and a tool that does not heed it is not waited for.
    const OtherLimit quickSteps{toolLimits().stepMs, 10};
    const OtherLimit littlePatience{toolLimits().politeStopMs, 50};
};

void TstStubbornTool::init()
{
    TestCase::init();
    ScriptedCalls(toolPath()).setScript({QString("file 4096 ") + listing});
    session = std::make_unique<ExtractSession>();
    QVERIFY(session->load(listing));
}

void TstStubbornTool::beginExtraction()
{
    QVERIFY(session->tick({"big.bin"}));
    session->beginExtraction(folder.path());
}

void TstStubbornTool::manyStopsInARow()
{
    ScriptedCalls(toolPath())
        .setScript({"ignore-term", "child 600000", "out 10% 1 - big.bin\\n", "sleep 600000"});
    int descriptors = 0;
    for (int run = 0; run < stops; ++run) {
        beginExtraction();
        // At once, a little later, or when it is known to ignore the request.
        if (run % 3 == 1)
            QTest::qWait(20);
        const QLabel* const text = session->progressText();
        if (run % 3 == 2)
            QTRY_COMPARE_WITH_TIMEOUT(text->text(), QString("Extracting files: big.bin"), limitMs);
        session->pressStop();
        QVERIFY(session->isUsable());
        QVERIFY(QTest::qWaitFor(everythingIsGone, limitMs));
        QVERIFY2(!QApplication::activeModalWidget(), "a success message after Stop");
        QTRY_VERIFY_WITH_TIMEOUT(areRunnersGone(), limitMs);
        if (run == 2)
            descriptors = descriptorCount();
    }
    QVERIFY(descriptorCount() <= descriptors);
}

void TstStubbornTool::stopUnderAFlood()
{
    ScriptedCalls(toolPath()).setScript({"ignore-term", "flood 100000000"});
    beginExtraction();
    QVERIFY(QTest::qWaitFor([] { return writtenBytes() > 8 << 20; }, limitMs));
    const qint64 before = residentKilobytes();
    qint64 most = before;
    session->pressStop();
    QVERIFY(session->isUsable());
    // What the tool still writes is nobody's any more and must not pile up.
    const auto isOver = [&most] {
        most = qMax(most, residentKilobytes());
        return everythingIsGone();
    };
    QVERIFY(QTest::qWaitFor(isOver, limitMs));
    QVERIFY2(most - before < 32 * 1024, qPrintable(QString("%1 KB").arg(most - before)));
}

void TstStubbornTool::pauseInALineOfAListingLosesNoEntry()
{
    const QStringList expected = session->allPaths();
    const QByteArray whole = readFile(listing);
    const int cut = whole.indexOf("big.bin") + 3;
    writeFile(folder.filePath("first"), whole.left(cut));
    writeFile(folder.filePath("second"), whole.mid(cut));
    const ScriptedCalls tool(toolPath());
    tool.setScript({"file 100000 " + folder.filePath("first"), tool.holding("pause"),
                    "file 100000 " + folder.filePath("second")});
    const Trigger pause(
        [&tool] { return !tool.calls().isEmpty(); },
        [&tool] {
            if (!tool.isHeld("pause"))
                return;
            const qint64 waits = runnerThreadWaits();
            if (QTest::qWaitFor([waits] { return runnerThreadWaits() >= waits + 10; }, limitMs))
                tool.release("pause");
        });
    QVERIFY(session->load(listing, limitMs));
    QVERIFY(expected.contains("big.bin"));
    QCOMPARE(session->allPaths(), expected);
}

// A listing is complete before its tool has ended.
void TstStubbornTool::newListingEndsTheOlderOne()
{
    const ScriptedCalls tool(toolPath());
    tool.setScript({"ignore-term", QString("file 100000 ") + listing, "sleep 600000"});
    QVERIFY(session->load(listing, limitMs));
    QCOMPARE(processesOf("scriptedtool").size(), 1);
    tool.setScript({QString("file 100000 ") + listing});
    QVERIFY(session->load(listing, limitMs));
    QVERIFY(QTest::qWaitFor(everythingIsGone, limitMs));
    QVERIFY(session->allPaths().contains("big.bin"));
}

KORVEX_TEST_MAIN(TstStubbornTool)
#include "tst_stubborntool.moc"
