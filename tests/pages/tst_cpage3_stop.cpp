// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "createpagefixture.h"
#include "modaldriver.h"
#include "otherlimit.h"
#include "processcounts.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QLoggingCategory>

namespace
{

constexpr int stops = 15; // a third of them at each moment
const QString success = "Create ISO successfully!";

} // namespace

// Stop while the authoring tool runs, whatever the tool makes of it.
class TstCPage3Stop : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void stopEndsEveryTool_data();
    void stopEndsEveryTool();
    void escapeInTheProgressDialogIsStop();
    void partlyWrittenImageStays();
    void linesAndEndOnTheirWayAreIgnoredAfterStop();
    void stopWithoutARunIsHarmless();
    void createAtOnceAfterStopRunsAnew();
    void createWhileTheToolStillRunsEndsThatOne();
    void manyStopsInARow();
    void backWhileTheToolRunsEndsIt();
    void backEndsTheToolAtOnceAlthoughACopyGoesOn();
    void pageMayGoWhileTheToolRuns();
    void pageMayGoWhileAStubbornToolIsBeingStopped();
    void toolIsHeldUntilThePageHasGone();

private:
    void startEndlessCreation();

    std::unique_ptr<CreatePageFixture> fixture;
    QString image;
    // A stop is noticed at once, and a tool that does not heed it is not waited for.
    const OtherLimit quickSteps{toolLimits().stepMs, 10};
    const OtherLimit littlePatience{toolLimits().politeStopMs, 50};
};

void TstCPage3Stop::initTestCase()
{
    setApplicationLook();
}

void TstCPage3Stop::init()
{
    TestCase::init();
    fixture = std::make_unique<CreatePageFixture>();
    image = fixture->path("out.iso");
    fixture->addStaged("a.txt");
}

void TstCPage3Stop::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage3Stop::startEndlessCreation()
{
    fixture->tool.setScript({"sleep 600000"});
    fixture->startCreating(image);
    QVERIFY(fixture->waitForCall(1));
}

void TstCPage3Stop::stopEndsEveryTool_data()
{
    QTest::addColumn<QStringList>("script");
    const QString atWork("err 10.00% done, estimate finish x\\n");
    QTest::newRow("silent") << QStringList{atWork, "sleep 600000"};
    QTest::newRow("flood") << QStringList{atWork, "flood 100000"};
    QTest::newRow("stubborn") << QStringList{"ignore-term", atWork, "sleep 600000"};
    QTest::newRow("stubborn flood") << QStringList{"ignore-term", atWork, "flood 100000"};
    QTest::newRow("with a child") << QStringList{"child 600000", atWork, "sleep 600000"};
    QTest::newRow("stubborn, with a child")
        << QStringList{"ignore-term", "child 600000", "child 600000", atWork, "sleep 600000"};
}

void TstCPage3Stop::stopEndsEveryTool()
{
    QFETCH(QStringList, script);
    fixture->tool.setScript(script);
    fixture->startCreating(image);
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 1000, patienceMs);
    fixture->pressStop();
    QVERIFY(fixture->isUsable());
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, patienceMs));
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(fixture->isUsable());
    fixture->tool.setScript({});
    fixture->startCreating(image);
    QCOMPARE(fixture->waitForMessage(), success);
}

void TstCPage3Stop::escapeInTheProgressDialogIsStop()
{
    startEndlessCreation();
    QTest::keyClick(fixture->progress(), Qt::Key_Escape);
    QVERIFY(fixture->isUsable());
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, patienceMs));
}

void TstCPage3Stop::partlyWrittenImageStays()
{
    startEndlessCreation();
    writeFile(image, "part");
    fixture->pressStop();
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, patienceMs));
    QCOMPARE(readFile(image), QByteArray("part"));
    QCOMPARE(readFile(CreatePageFixture::stagingFolder() + "/a.txt"), QByteArray("content"));
}

// All that the tool had to tell waits to be delivered when Stop comes.
void TstCPage3Stop::linesAndEndOnTheirWayAreIgnoredAfterStop()
{
    QLoggingCategory::setFilterRules("korvex.tooloutput.debug=true");
    fixture->tool.setScript({"lines 50  45.00% done, estimate finish"});
    fixture->startCreating(image);
    QVERIFY(PageFixture::waitWithoutEvents([this] { return fixture->tool.calls().size() == 1; }));
    QVERIFY(PageFixture::waitUntilAllIsSent());
    QVERIFY(QMetaObject::invokeMethod(fixture->progress(), "OnBtnCancel"));
    const ModalDriver driver; // fails for any message
    QVERIFY(PageFixture::waitUntilToolsGone());
    QLoggingCategory::setFilterRules({});
    QVERIFY(debugLines().join(' ').contains("CPage3::OnCreateOutput")); // they did come
    QCOMPARE(fixture->progressValue(), 0);
    QCOMPARE(fixture->tool.calls().size(), 1);
    QVERIFY(fixture->isUsable());
}

void TstCPage3Stop::stopWithoutARunIsHarmless()
{
    fixture->page->StopCreate();
    fixture->page->StopCreate();
    QVERIFY(fixture->isUsable());
}

void TstCPage3Stop::createAtOnceAfterStopRunsAnew()
{
    fixture->tool.setScript(
        {"ignore-term", "err 80.00% done, estimate finish x\\n", "sleep 600000"});
    fixture->startCreating(image);
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 8000, patienceMs);
    fixture->pressStop();
    fixture->tool.setScript({fixture->tool.holding("second")});
    // The stopped tool may still be on its way out.
    fixture->startCreating(fixture->path("second.iso"));
    QVERIFY(fixture->progress()->isVisible());
    QCOMPARE(fixture->progressValue(), 0);
    QVERIFY(fixture->tool.isHeld("second"));
    QTRY_COMPARE_WITH_TIMEOUT(runnerThreadCount(), 1, patienceMs);
    QCOMPARE(fixture->progressValue(), 0);
    QVERIFY(fixture->progress()->isVisible());
    fixture->tool.release("second");
    QCOMPARE(fixture->waitForMessage(), success);
    QCOMPARE(fixture->tool.calls().size(), 2);
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(fixture->isUsable());
    QVERIFY(CreatePageFixture::isToolGone());
}

// After a Stop in the wait the dialog is hidden and the button can be pressed.
void TstCPage3Stop::createWhileTheToolStillRunsEndsThatOne()
{
    startEndlessCreation();
    fixture->progress()->hide();
    fixture->tool.setScript({});
    fixture->startCreating(fixture->path("second.iso"));
    QCOMPARE(fixture->waitForMessage(), success);
    QCOMPARE(fixture->tool.calls().last().at(4), fixture->path("second.iso"));
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, patienceMs));
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(fixture->isUsable());
}

void TstCPage3Stop::manyStopsInARow()
{
    fixture->tool.setScript(
        {"child 600000", "err 10.00% done, estimate finish x\\n", "sleep 600000"});
    int descriptors = 0;
    for (int run = 0; run < stops; ++run) {
        const int calls = fixture->tool.calls().size();
        fixture->startCreating(image);
        // At once, when it has been called, or when it is known to be at work.
        if (run % 3 == 1)
            QVERIFY(fixture->waitForCall(calls + 1));
        if (run % 3 == 2)
            QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 1000, patienceMs);
        fixture->pressStop();
        QVERIFY(fixture->isUsable());
        QVERIFY(PageFixture::waitUntilToolsGone());
        QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, patienceMs));
        QVERIFY2(!QApplication::activeModalWidget(), "a success message after Stop");
        if (run == 2)
            descriptors = descriptorCount();
    }
    QVERIFY(descriptorCount() <= descriptors);
    fixture->tool.setScript({});
    fixture->startCreating(image);
    QCOMPARE(fixture->waitForMessage(), success);
}

void TstCPage3Stop::backWhileTheToolRunsEndsIt()
{
    startEndlessCreation();
    // As the program hides it when Stop is pressed in the wait.
    fixture->progress()->hide();
    fixture->press("back");
    QVERIFY(QTest::qWaitFor([this] { return !fixture->page; }, patienceMs));
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, patienceMs));
    QVERIFY(!QApplication::activeModalWidget());
}

void TstCPage3Stop::backEndsTheToolAtOnceAlthoughACopyGoesOn()
{
    startEndlessCreation();
    fixture->progress()->hide();
    const auto held = fixture->addHeld(1000);
    fixture->press("back");
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, patienceMs));
    QVERIFY(fixture->page);
    QVERIFY(!QApplication::activeModalWidget());
}

void TstCPage3Stop::pageMayGoWhileTheToolRuns()
{
    startEndlessCreation();
    delete fixture->page;
    QVERIFY(!fixture->progress());
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, patienceMs));
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(!QApplication::activeModalWidget());
}

void TstCPage3Stop::pageMayGoWhileAStubbornToolIsBeingStopped()
{
    fixture->tool.setScript({"ignore-term", fixture->tool.holding("deaf")});
    fixture->startCreating(image);
    QVERIFY(fixture->tool.isHeld("deaf"));
    fixture->pressStop();
    delete fixture->page;
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, patienceMs));
    QTRY_VERIFY_WITH_TIMEOUT(areRunnersGone(), patienceMs);
}

// Also when the test ends: the success of a run that goes on by itself would be told while nobody
// is there to close the message.
void TstCPage3Stop::toolIsHeldUntilThePageHasGone()
{
    fixture->tool.setScript({fixture->tool.holding("held")});
    fixture->startCreating(image);
    QVERIFY(fixture->tool.isHeld("held"));
    const QString gate = fixture->tool.holding("held").section(' ', 1);
    bool isHeld = false;
    connect(fixture->page, &QObject::destroyed, this,
            [&] { isHeld = QFileInfo::exists(gate + ".reached"); });
    const ModalDriver noMessage;
    fixture.reset();
    QVERIFY(isHeld);
    QVERIFY(PageFixture::waitUntilToolsGone());
}

KORVEX_TEST_MAIN(TstCPage3Stop)
#include "tst_cpage3_stop.moc"
