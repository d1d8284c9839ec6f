// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "extractsession.h"
#include "processcounts.h"
#include "scriptedcalls.h"
#include "testcase.h"
#include "testmain.h"

#include <QLabel>
#include <QTemporaryDir>

namespace
{

constexpr int stops = 51; // a third of them at each moment
constexpr int stopLimitMs = 2000;

QString toolPath()
{
    return QCoreApplication::applicationDirPath() + "/7z/7z";
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
    void fiftyStopsInARow();
    void stopUnderAFlood();

private:
    void beginExtraction();

    QTemporaryDir folder;
    std::unique_ptr<ExtractSession> session;
};

void TstStubbornTool::init()
{
    TestCase::init();
    ScriptedCalls(toolPath()).setScript({"file 4096 " KORVEX_TEST_DATA "/7z/list-plain-26.02.txt"});
    session = std::make_unique<ExtractSession>();
    QVERIFY(session->load(KORVEX_TEST_DATA "/7z/list-plain-26.02.txt"));
}

void TstStubbornTool::beginExtraction()
{
    QVERIFY(session->tick({"big.bin"}));
    session->beginExtraction(folder.path());
}

void TstStubbornTool::fiftyStopsInARow()
{
    ScriptedCalls(toolPath())
        .setScript({"ignore-term", "child 60000", "out 10% 1 - big.bin\\n", "sleep 60000"});
    int descriptors = 0;
    for (int run = 0; run < stops; ++run) {
        beginExtraction();
        // At once, a little later, or when it is known to ignore the request.
        if (run % 3 == 1)
            QTest::qWait(20);
        const QLabel* const text = session->progressText();
        if (run % 3 == 2)
            QTRY_COMPARE(text->text(), QString("Extracting files: big.bin"));
        session->pressStop();
        QVERIFY(session->isUsable());
        QVERIFY(QTest::qWaitFor(everythingIsGone, stopLimitMs));
        QVERIFY2(!QApplication::activeModalWidget(), "a success message after Stop");
        QTRY_COMPARE(runnerThreadCount(), 0);
        if (run == 2)
            descriptors = descriptorCount();
    }
    QVERIFY(descriptorCount() <= descriptors);
}

void TstStubbornTool::stopUnderAFlood()
{
    ScriptedCalls(toolPath()).setScript({"ignore-term", "flood 100000"});
    beginExtraction();
    QTest::qWait(500);
    const qint64 before = residentKilobytes();
    qint64 most = before;
    session->pressStop();
    QVERIFY(session->isUsable());
    // What the tool still writes is nobody's any more and must not pile up.
    const auto isOver = [&most] {
        most = qMax(most, residentKilobytes());
        return everythingIsGone();
    };
    QVERIFY(QTest::qWaitFor(isOver, stopLimitMs));
    QVERIFY2(most - before < 32 * 1024, qPrintable(QString("%1 KB").arg(most - before)));
}

KORVEX_TEST_MAIN(TstStubbornTool)
#include "tst_stubborntool.moc"
