// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "editsavefixture.h"
#include "extractpagefixture.h"
#include "modaldriver.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

namespace
{

constexpr int stopLimitMs = 2000;
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

private:
    void load(const QStringList& unpacking = {});
    // Nothing of the page is left, nor of its tools, and no message comes.
    void checkGone();

    std::unique_ptr<EditSaveFixture> fixture;
    QString image;
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
    QVERIFY(QTest::qWaitFor([this] { return !fixture->page; }));
    QVERIFY(!fixture->progress());
    QVERIFY(QTest::qWaitFor([] { return EditSaveFixture::areToolsGone(); }, stopLimitMs));
    QTest::qWait(300);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!QApplication::overrideCursor());
}

void TstCPage4SaveTool::failureOfTheToolIsToldAsSuccess_data()
{
    QTest::addColumn<QStringList>("script");
    QTest::newRow("exit status") << QStringList{"err No space left on device\\n", "exit 1"};
    QTest::newRow("crash") << QStringList{"crash"};
    QTest::newRow("flood") << QStringList{"flood 1", "exit 1"};
    QTest::newRow("silence") << QStringList{"sleep 700"};
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
    QVERIFY(QTest::qWaitFor([] { return EditSaveFixture::areToolsGone(); }, stopLimitMs));
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
    QTest::newRow("silent") << QStringList{"sleep 60000"};
    QTest::newRow("flood") << QStringList{"flood 100000"};
    QTest::newRow("stubborn") << QStringList{"ignore-term", "sleep 60000"};
    QTest::newRow("stubborn flood, with a child")
        << QStringList{"ignore-term", "child 60000", "flood 100000"};
}

void TstCPage4SaveTool::stopWhileWritingEndsEveryTool()
{
    QFETCH(QStringList, script);
    load();
    QVERIFY(fixture->waitUntilWorked());
    fixture->author.setScript(script);
    fixture->startSaving(image);
    QVERIFY(fixture->waitForCall(1));
    QTest::qWait(200);
    fixture->pressStop();
    QVERIFY(fixture->isUsable());
    const ModalDriver noMessage;
    QVERIFY(QTest::qWaitFor([] { return EditSaveFixture::areToolsGone(); }, stopLimitMs));
    QTest::qWait(400); // longer than the end of a run takes to be told
    QVERIFY(fixture->isUsable());
}

void TstCPage4SaveTool::linesAndEndAfterStopAreIgnored()
{
    load();
    QVERIFY(fixture->waitUntilWorked());
    fixture->author.setScript({"lines 50  45.00% done, estimate finish"});
    fixture->startSaving(image);
    QThread::msleep(1000); // lines and end wait to be delivered
    QVERIFY(QMetaObject::invokeMethod(fixture->progress(), "OnBtnCancel"));
    const ModalDriver noMessage;
    QTest::qWait(300);
    QCOMPARE(fixture->author.calls().size(), 1);
    QCOMPARE(fixture->progressValue(), 0);
    QVERIFY(fixture->isUsable());
}

void TstCPage4SaveTool::stopOverAndOverIsHarmless()
{
    load({"sleep 600"});
    QVERIFY(fixture->saveAnd(
        image, [this] { return fixture->isShowing(extracting); },
        [this] {
            for (int press = 0; press < 20; ++press)
                QVERIFY(QMetaObject::invokeMethod(fixture->progress(), "OnBtnCancel"));
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
    QTRY_COMPARE(fixture->progressValue(), 8000);
    fixture->pressStop();
    fixture->author.setScript({});
    // The stopped tool is still on its way out.
    fixture->startSaving(fixture->path("second.iso"));
    QCOMPARE(fixture->progressValue(), 0);
    QCOMPARE(fixture->waitForMessage(), success);
    QCOMPARE(fixture->author.calls().size(), 2);
    QVERIFY(QTest::qWaitFor([] { return EditSaveFixture::areToolsGone(); }, stopLimitMs));
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
    load({"ignore-term", "child 60000", "sleep 60000"});
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
    QTest::qWait(200);
    QVERIFY2(fixture->page, "freed before its copy has ended");
    held->release();
    checkGone();
    QVERIFY(fixture->author.calls().isEmpty());
}

void TstCPage4SaveTool::pageClosedWhileWritingGoes()
{
    load();
    fixture->author.setScript({"ignore-term", "child 60000", "sleep 60000"});
    fixture->startSaving(image);
    QVERIFY(fixture->waitForCall(1));
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

KORVEX_TEST_MAIN(TstCPage4SaveTool)
#include "tst_cpage4_savetool.moc"
