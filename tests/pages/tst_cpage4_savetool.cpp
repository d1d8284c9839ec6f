// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "editsavefixture.h"
#include "extractpagefixture.h"
#include "modaldriver.h"
#include "otherlimit.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QDeadlineTimer>

namespace
{

const QString extracting = "Extracting iso...";
const QString copying = "Copy files and directories...";
const QString success = "Save ISO file successfully!";

} // namespace

// The authoring tool in trouble or stopped, and a page that is closed during a save.
class TstCPage4SaveTool : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void failureOfTheToolIsToldAsSuccess_data();
    void failureOfTheToolIsToldAsSuccess();
    void missingToolIsToldAsSuccess();
    void stopWhileWritingEndsEveryTool_data();
    void stopWhileWritingEndsEveryTool();
    void linesAndEndAfterStopAreIgnored();
    void stopOverAndOverIsHarmless();
    void saveAtOnceAfterStopRunsAnew();
    void archiverThatFailsIsNoHindrance_data();
    void archiverThatFailsIsNoHindrance();
    void pageClosedInTheExtractionWaitGoes();
    void pageClosedInTheCopyWaitGoesWhenTheCopyHasEnded();
    void pageClosedWhileWritingGoes();
    void pageDeletedWhileWritingGoes();
    void toolIsHeldUntilThePageHasGone();

private:
    void load(const QStringList& unpacking = {});
    // Nothing of the page is left, nor of its tools, and no message comes.
    void checkGone();

    std::unique_ptr<EditSaveFixture> fixture;
    QString image;
    // A stop is noticed at once, and a tool that does not heed it is not waited for.
    const OtherLimit quickSteps{toolLimits().stepMs, 10};
    const OtherLimit littlePatience{toolLimits().politeStopMs, 50};
};

void TstCPage4SaveTool::initTestCase()
{
    setApplicationLook();
}

void TstCPage4SaveTool::init()
{
    TestCase::init();
    fixture = std::make_unique<EditSaveFixture>();
    image = fixture->path("out.iso");
}

void TstCPage4SaveTool::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage4SaveTool::load(const QStringList& unpacking)
{
    fixture->setArchiver(ExtractPageFixture::usualEntries(), unpacking);
    fixture->startLoading();
    QVERIFY(fixture->waitUntilListed());
}

void TstCPage4SaveTool::checkGone()
{
    QVERIFY(QTest::qWaitFor([this] { return !fixture->page; }, 60000));
    QVERIFY(!fixture->progress());
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!QApplication::overrideCursor());
}

void TstCPage4SaveTool::failureOfTheToolIsToldAsSuccess_data()
{
    QTest::addColumn<QStringList>("script");
    QTest::newRow("exit status") << QStringList{"err No space left on device\\n", "exit 1"};
    QTest::newRow("crash") << QStringList{"crash"};
    QTest::newRow("flood") << QStringList{"flood 1", "exit 1"};
}

void TstCPage4SaveTool::failureOfTheToolIsToldAsSuccess()
{
    QFETCH(QStringList, script);
    load();
    fixture->author.setScript(script);
    QCOMPARE(fixture->save(image), success);
    QVERIFY(fixture->isUsable());
    fixture->author.setScript({});
    QCOMPARE(fixture->save(image), success);
    QCOMPARE(fixture->author.calls().size(), 2);
    QVERIFY(PageFixture::waitUntilToolsGone());
}

void TstCPage4SaveTool::missingToolIsToldAsSuccess()
{
    load();
    const QString tool = QCoreApplication::applicationDirPath() + "/cdrtools/mkisofs";
    QVERIFY(QFile::rename(tool, tool + ".away"));
    const QString text = fixture->save(image);
    QVERIFY(QFile::rename(tool + ".away", tool));
    QCOMPARE(text, success);
    QVERIFY(fixture->isUsable());
    QCOMPARE(fixture->save(image), success);
    QCOMPARE(fixture->author.calls().size(), 1);
}

void TstCPage4SaveTool::stopWhileWritingEndsEveryTool_data()
{
    QTest::addColumn<QStringList>("script");
    QTest::newRow("silent") << QStringList{"", "sleep 60000"};
    QTest::newRow("flood") << QStringList{"", "flood 100000"};
    QTest::newRow("stubborn") << QStringList{"ignore-term", "sleep 60000"};
    QTest::newRow("stubborn with a child")
        << QStringList{"ignore-term", "child 60000", "sleep 60000"};
    QTest::newRow("stubborn flood, with a child")
        << QStringList{"ignore-term", "child 60000", "flood 100000"};
}

void TstCPage4SaveTool::stopWhileWritingEndsEveryTool()
{
    QFETCH(QStringList, script);
    load();
    QVERIFY(fixture->waitUntilWorked());
    // It is what it is before Stop comes.
    script.insert(script.size() - 1, fixture->author.holding("ready"));
    fixture->author.setScript(script);
    fixture->startSaving(image);
    QVERIFY(fixture->author.isHeld("ready"));
    fixture->author.release("ready");
    fixture->pressStop();
    QVERIFY(fixture->isUsable());
    const ModalDriver noMessage;
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(fixture->isUsable());
}

void TstCPage4SaveTool::linesAndEndAfterStopAreIgnored()
{
    load();
    QVERIFY(fixture->waitUntilWorked());
    fixture->author.setScript({"lines 50  45.00% done, estimate finish"});
    fixture->startSaving(image);
    // Lines and end wait to be delivered.
    const QDeadlineTimer limit(60000);
    while (fixture->author.calls().isEmpty() && !limit.hasExpired())
        QThread::msleep(1);
    QVERIFY(PageFixture::waitUntilAllIsSent());
    QVERIFY(QMetaObject::invokeMethod(fixture->progress(), "OnBtnCancel"));
    const ModalDriver noMessage;
    QVERIFY(PageFixture::waitUntilToolsGone());
    QCOMPARE(fixture->author.calls().size(), 1);
    QCOMPARE(fixture->progressValue(), 0);
    QVERIFY(fixture->isUsable());
}

void TstCPage4SaveTool::stopOverAndOverIsHarmless()
{
    QVERIFY(fixture->loadHalfway());
    QVERIFY(fixture->saveAnd(
        image, [this] { return fixture->isShowing(extracting); },
        [this] {
            for (int press = 0; press < 20; ++press)
                QVERIFY(QMetaObject::invokeMethod(fixture->progress(), "OnBtnCancel"));
            fixture->letUnpack();
        }));
    fixture->page->StopCreate();
    QVERIFY(fixture->isUsable());
    QVERIFY(fixture->author.calls().isEmpty());
    QCOMPARE(fixture->save(image), success);
}

void TstCPage4SaveTool::saveAtOnceAfterStopRunsAnew()
{
    load();
    fixture->author.setScript(
        {"ignore-term", "err 80.00% done, estimate finish x\\n", "sleep 60000"});
    fixture->startSaving(image);
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 8000, 60000);
    fixture->pressStop();
    fixture->author.setScript({});
    // The stopped tool is still on its way out.
    fixture->startSaving(fixture->path("second.iso"));
    QCOMPARE(fixture->progressValue(), 0);
    QCOMPARE(fixture->waitForMessage(), success);
    QCOMPARE(fixture->author.calls().size(), 2);
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(fixture->isUsable());
}

void TstCPage4SaveTool::archiverThatFailsIsNoHindrance_data()
{
    QTest::addColumn<QStringList>("script");
    QTest::newRow("exit status") << QStringList{"err ERROR: Data Error\\n", "exit 2"};
    QTest::newRow("crash") << QStringList{"crash"};
    QTest::newRow("flood") << QStringList{"flood 1"};
}

void TstCPage4SaveTool::archiverThatFailsIsNoHindrance()
{
    QFETCH(QStringList, script);
    load(script);
    QCOMPARE(fixture->save(image), success);
    QCOMPARE(fixture->author.calls().size(), 1);
    QVERIFY(fixture->isUsable());
}

void TstCPage4SaveTool::pageClosedInTheExtractionWaitGoes()
{
    load({"ignore-term", "child 60000", fixture->archiver.holding("deaf")});
    QVERIFY(fixture->archiver.isHeld("deaf"));
    QVERIFY(fixture->saveAnd(
        image, [this] { return fixture->isShowing(extracting); },
        [this] {
            fixture->pressStop();
            fixture->press("back");
        }));
    checkGone();
    QVERIFY(fixture->author.calls().isEmpty());
}

void TstCPage4SaveTool::pageClosedInTheCopyWaitGoesWhenTheCopyHasEnded()
{
    load();
    QVERIFY(fixture->waitUntilWorked());
    const auto held = fixture->addHeld(1000);
    QVERIFY(fixture->saveAnd(
        image, [this] { return fixture->isShowing(copying); }, [this] { fixture->page->close(); }));
    QVERIFY(held->isHolding());
    QVERIFY(!fixture->page->isVisible());
    QVERIFY2(!fixture->progress()->isVisible(), "it would block the other pages");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(fixture->page, "freed before its copy has ended");
    held->release();
    checkGone();
    QVERIFY(fixture->author.calls().isEmpty());
}

void TstCPage4SaveTool::pageClosedWhileWritingGoes()
{
    load();
    fixture->author.setScript({"ignore-term", "child 60000", fixture->author.holding("deaf")});
    fixture->startSaving(image);
    QVERIFY(fixture->author.isHeld("deaf"));
    fixture->page->close();
    checkGone();
}

void TstCPage4SaveTool::pageDeletedWhileWritingGoes()
{
    load();
    fixture->author.setScript({"sleep 60000"});
    fixture->startSaving(image);
    QVERIFY(fixture->waitForCall(1));
    delete fixture->page;
    checkGone();
}

// Also when the test ends: the success of a save that goes on by itself would be told while nobody
// is there to close the message.
void TstCPage4SaveTool::toolIsHeldUntilThePageHasGone()
{
    load();
    fixture->author.setScript({fixture->author.holding("held")});
    fixture->startSaving(image);
    QVERIFY(fixture->author.isHeld("held"));
    const QString gate = fixture->author.holding("held").section(' ', 1);
    bool isHeld = false;
    connect(fixture->page, &QObject::destroyed, this,
            [&] { isHeld = QFileInfo::exists(gate + ".reached"); });
    const ModalDriver noMessage;
    fixture.reset();
    QVERIFY(isHeld);
    QVERIFY(PageFixture::waitUntilToolsGone());
}

KORVEX_TEST_MAIN(TstCPage4SaveTool)
#include "tst_cpage4_savetool.moc"
