// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "createpagefixture.h"
#include "modaldriver.h"
#include "processcounts.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QLoggingCategory>

namespace
{

constexpr int stops = 51; // a third of them at each moment
constexpr int stopLimitMs = 2000;
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
    void linesAfterStopAreIgnored();
    void linesOnTheirWayAreIgnoredAfterStop();
    void endOnItsWayIsIgnoredAfterStop();
    void stopWithoutARunIsHarmless();
    void createAtOnceAfterStopRunsAnew();
    void createWhileTheToolStillRunsEndsThatOne();
    void fiftyStopsInARow();
    void backWhileTheToolRunsEndsIt();
    void backEndsTheToolAtOnceAlthoughACopyGoesOn();
    void pageMayGoWhileTheToolRuns();
    void pageMayGoWhileAStubbornToolIsBeingStopped();

private:
    void startEndlessCreation();

    std::unique_ptr<CreatePageFixture> fixture;
    QString image;
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
    fixture->tool.setScript({"sleep 60000"});
    fixture->startCreating(image);
    QVERIFY(fixture->waitForCall(1));
}

void TstCPage3Stop::stopEndsEveryTool_data()
{
    QTest::addColumn<QStringList>("script");
    QTest::newRow("silent") << QStringList{"sleep 60000"};
    QTest::newRow("flood") << QStringList{"flood 100000"};
    QTest::newRow("stubborn") << QStringList{"ignore-term", "sleep 60000"};
    QTest::newRow("stubborn flood") << QStringList{"ignore-term", "flood 100000"};
    QTest::newRow("with a child") << QStringList{"child 60000", "sleep 60000"};
    QTest::newRow("stubborn, with a child")
        << QStringList{"ignore-term", "child 60000", "child 60000", "sleep 60000"};
}

void TstCPage3Stop::stopEndsEveryTool()
{
    QFETCH(QStringList, script);
    fixture->tool.setScript(script);
    fixture->startCreating(image);
    QVERIFY(fixture->waitForCall(1));
    QTest::qWait(200);
    fixture->pressStop();
    QVERIFY(fixture->isUsable());
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, stopLimitMs));
    QTest::qWait(400); // longer than the end of a run takes to be told
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
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, stopLimitMs));
}

void TstCPage3Stop::partlyWrittenImageStays()
{
    startEndlessCreation();
    writeFile(image, "part");
    fixture->pressStop();
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, stopLimitMs));
    QCOMPARE(readFile(image), QByteArray("part"));
    QCOMPARE(readFile(CreatePageFixture::stagingFolder() + "/a.txt"), QByteArray("content"));
}

void TstCPage3Stop::linesAfterStopAreIgnored()
{
    QStringList script{"ignore-term"};
    for (int percent = 10; percent < 60; ++percent)
        script += {QString("err  %1.00% done, estimate finish x\\n").arg(percent), "sleep 20"};
    fixture->tool.setScript(script + QStringList("sleep 60000"));
    fixture->startCreating(image);
    QVERIFY(QTest::qWaitFor([this] { return fixture->progressValue() >= 1000; }, 10000));
    fixture->pressStop();
    const int value = fixture->progressValue();
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, stopLimitMs));
    QCOMPARE(fixture->progressValue(), value);
    QVERIFY(fixture->isUsable());
}

// The lines wait to be delivered when Stop comes.
void TstCPage3Stop::linesOnTheirWayAreIgnoredAfterStop()
{
    QLoggingCategory::setFilterRules("korvex.tooloutput.debug=true");
    fixture->tool.setScript({"lines 50  45.00% done, estimate finish", "sleep 60000"});
    fixture->startCreating(image);
    QThread::msleep(1000);
    QVERIFY(QMetaObject::invokeMethod(fixture->progress(), "OnBtnCancel"));
    QTest::qWait(100);
    QLoggingCategory::setFilterRules({});
    QVERIFY(debugLines().join(' ').contains("CPage3::OnCreateOutput")); // they did come
    QCOMPARE(fixture->progressValue(), 0);
}

void TstCPage3Stop::endOnItsWayIsIgnoredAfterStop()
{
    fixture->startCreating(image);
    QThread::msleep(1000);
    QVERIFY(QMetaObject::invokeMethod(fixture->progress(), "OnBtnCancel"));
    const ModalDriver driver; // fails for any message
    QTest::qWait(300);
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
        {"ignore-term", "err 80.00% done, estimate finish x\\n", "sleep 60000"});
    fixture->startCreating(image);
    QTRY_COMPARE(fixture->progressValue(), 8000);
    fixture->pressStop();
    fixture->tool.setScript({});
    // The stopped tool is still on its way out.
    fixture->startCreating(fixture->path("second.iso"));
    QVERIFY(fixture->progress()->isVisible());
    QCOMPARE(fixture->progressValue(), 0);
    QCOMPARE(fixture->waitForMessage(), success);
    QCOMPARE(fixture->tool.calls().size(), 2);
    QTest::qWait(1200);
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
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, stopLimitMs));
    QTest::qWait(400);
    QVERIFY(fixture->isUsable());
}

void TstCPage3Stop::fiftyStopsInARow()
{
    fixture->tool.setScript(
        {"child 60000", "err 10.00% done, estimate finish x\\n", "sleep 60000"});
    int descriptors = 0;
    for (int run = 0; run < stops; ++run) {
        fixture->startCreating(image);
        // At once, a little later, or when it is known to be at work.
        if (run % 3 == 1)
            QTest::qWait(20);
        if (run % 3 == 2)
            QTRY_COMPARE(fixture->progressValue(), 1000);
        fixture->pressStop();
        QVERIFY(fixture->isUsable());
        QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, stopLimitMs));
        QVERIFY2(!QApplication::activeModalWidget(), "a success message after Stop");
        QTRY_COMPARE(runnerThreadCount(), 0);
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
    QVERIFY(QTest::qWaitFor([this] { return !fixture->page; }));
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, stopLimitMs));
    QVERIFY(!QApplication::activeModalWidget());
}

void TstCPage3Stop::backEndsTheToolAtOnceAlthoughACopyGoesOn()
{
    startEndlessCreation();
    fixture->progress()->hide();
    const auto held = fixture->addHeld(1000);
    fixture->press("back");
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, stopLimitMs));
    QVERIFY(fixture->page);
    QVERIFY(!QApplication::activeModalWidget());
}

void TstCPage3Stop::pageMayGoWhileTheToolRuns()
{
    startEndlessCreation();
    delete fixture->page;
    QVERIFY(!fixture->progress());
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, stopLimitMs));
    QTest::qWait(300);
    QVERIFY(!QApplication::activeModalWidget());
}

void TstCPage3Stop::pageMayGoWhileAStubbornToolIsBeingStopped()
{
    fixture->tool.setScript({"ignore-term", "out ready\\n", "sleep 60000"});
    fixture->startCreating(image);
    QVERIFY(fixture->waitForCall(1));
    QTest::qWait(100);
    fixture->pressStop();
    delete fixture->page;
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, stopLimitMs));
    QTRY_COMPARE(runnerThreadCount(), 0);
}

KORVEX_TEST_MAIN(TstCPage3Stop)
#include "tst_cpage3_stop.moc"
