// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "extractpagefixture.h"
#include "modaldriver.h"
#include "otherlimit.h"
#include "processcounts.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usermouse.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QLoggingCategory>

// While the archiver extracts: what its lines do to the progress dialog, and Stop.
class TstCPage2Progress : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void pageIsDisabledWhileTheArchiverRuns();
    void progressLineMovesTheBar();
    void lineWithoutProgressChangesNothing();
    void progressNeverRunsBackwardsOrBeyondItsEnd();
    void progressDrawnInPlaceArrivesWhileTheArchiverRuns();
    void stopEndsTheArchiverWithoutAMessage();
    void escapeInTheProgressDialogIsStop();
    void linesAfterStopAreIgnored();
    void linesOnTheirWayAreIgnoredAfterStop();
    void endOnItsWayIsIgnoredAfterStop();
    void extractionAfterStopStartsAnew();
    void stopWithoutAnExtractionIsHarmless();
    void pageMayGoWhileTheArchiverRuns();
    void secondExtractionEndsTheFirst();
    void archiverIsHeldUntilThePageHasGone();

private:
    void startEndlessExtraction();
    // The archiver has run to its end, and all that its runner has sent is on its way to the page.
    void extractWithoutReceiving();
    void pressStop();

    std::unique_ptr<ExtractPageFixture> fixture;
    QString outputDir;
    // A stop is noticed at once, and a tool that does not heed it is not waited for.
    const OtherLimit quickSteps{toolLimits().stepMs, 10};
    const OtherLimit littlePatience{toolLimits().politeStopMs, 50};
};

void TstCPage2Progress::initTestCase()
{
    setApplicationLook();
}

void TstCPage2Progress::init()
{
    TestCase::init();
    fixture = std::make_unique<ExtractPageFixture>();
    outputDir = fixture->path("Out put");
    QVERIFY(QDir().mkpath(outputDir));
    QVERIFY(fixture->load());
    fixture->tool.setScript({});
}

void TstCPage2Progress::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage2Progress::startEndlessExtraction()
{
    fixture->tool.setScript({fixture->tool.holding("endless")});
    fixture->tick({"readme.txt"});
    fixture->startExtractingTo(outputDir);
    QVERIFY(fixture->tool.isHeld("endless"));
}

void TstCPage2Progress::extractWithoutReceiving()
{
    fixture->tick({"readme.txt"});
    fixture->startExtractingTo(outputDir);
    const QDeadlineTimer limit(60000);
    while (fixture->tool.calls().size() < 2 && !limit.hasExpired())
        QThread::msleep(1);
    QVERIFY(PageFixture::waitUntilAllIsSent());
}

void TstCPage2Progress::pressStop()
{
    auto* const stop = fixture->progress()->findChild<QWidget*>("btncancel");
    QVERIFY(stop->isEnabled());
    UserMouse::click(stop);
}

void TstCPage2Progress::pageIsDisabledWhileTheArchiverRuns()
{
    startEndlessExtraction();
    QVERIFY(!fixture->page->isEnabled());
    QVERIFY(fixture->progress()->isVisible());
    QCOMPARE(fixture->progressText(), QString("Extracting files..."));
    QCOMPARE(fixture->progressValue(), 0);
    fixture->clickRow(0, 80);
    QCOMPARE(fixture->ticked(), QStringList("readme.txt"));
}

void TstCPage2Progress::progressLineMovesTheBar()
{
    struct Step
    {
        QString line;
        int value;
        QString text;
    };
    const QList<Step> steps{
        {QString::fromUtf8(" 5% 1 - файл - 日本"), 5,
         QString::fromUtf8("Extracting files: файл - 日本")},
        {"Everything 7% 1 - a.txt", 7, "Extracting files: a.txt"},
        {" 45% 12 - boot/grub/font.pf2", 45, "Extracting files: boot/grub/font.pf2"},
        {" 99% 1 - a.txt", 99, "Extracting files: a.txt"},
        {" 100% 12 - a.txt", 100, "Copying files! Please wait a few seconds.."}};
    startEndlessExtraction();
    for (const Step& step : steps) {
        fixture->page->OnExtractOutput(step.line);
        QCOMPARE(fixture->progressValue(), step.value);
        QCOMPARE(fixture->progressText(), step.text);
        QVERIFY(fixture->progress()->isVisible());
    }
}

void TstCPage2Progress::lineWithoutProgressChangesNothing()
{
    startEndlessExtraction();
    fixture->page->OnExtractOutput(" 20% 1 - before.txt");
    for (const char* const line : {" 45% 12", "- boot/grub/font.pf2", " 45%12 - a.txt",
                                   "% 12 - a.txt", "  % 12 - a.txt", "", "Everything is Ok"}) {
        fixture->page->OnExtractOutput(line);
        QCOMPARE(fixture->progressValue(), 20);
        QCOMPARE(fixture->progressText(), QString("Extracting files: before.txt"));
    }
}

void TstCPage2Progress::progressNeverRunsBackwardsOrBeyondItsEnd()
{
    startEndlessExtraction();
    const QList<QPair<QString, int>> steps{
        {" 60% 1 - a", 60}, {" 30% 1 - a", 60},    {" -5% 1 - a", 60},        {" many% 1 - a", 60},
        {" 61% 2 - b", 61}, {" 4000% 2 - b", 100}, {" 99999999999% - b", 100}};
    for (const auto& step : steps) {
        fixture->page->OnExtractOutput(step.first);
        QCOMPARE(fixture->progressValue(), step.second);
    }
}

void TstCPage2Progress::progressDrawnInPlaceArrivesWhileTheArchiverRuns()
{
    const QString back = QString("\\b").repeated(11);
    fixture->tool.setScript({"err  35% 1 - f2", fixture->tool.holding("35"),
                             "err " + back + QString(11, ' ') + back + " 54% 1 - f2",
                             "sleep 60000"});
    fixture->tick({"readme.txt"});
    fixture->startExtractingTo(outputDir);
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 35, 60000);
    fixture->tool.release("35");
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 54, 60000);
    QCOMPARE(fixture->progressText(), QString("Extracting files: f2"));
}

void TstCPage2Progress::stopEndsTheArchiverWithoutAMessage()
{
    startEndlessExtraction();
    writeFile(outputDir + "/part.bin", "kept");
    bool isHiddenAtStop = false;
    connect(fixture->progress(), &CProgressDialog::SigCancel, this,
            [&] { isHiddenAtStop = !fixture->progress()->isVisible(); });
    const ModalDriver noMessage;
    pressStop();
    QVERIFY(isHiddenAtStop);
    QVERIFY(!fixture->progress()->isVisible());
    QVERIFY(fixture->page->isEnabled());
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(fixture->page->isEnabled());
    QCOMPARE(readFile(outputDir + "/part.bin"), QByteArray("kept"));
}

void TstCPage2Progress::escapeInTheProgressDialogIsStop()
{
    startEndlessExtraction();
    QTest::keyClick(fixture->progress(), Qt::Key_Escape);
    QVERIFY(!fixture->progress()->isVisible());
    QVERIFY(fixture->page->isEnabled());
    QVERIFY(PageFixture::waitUntilToolsGone());
}

// The archiver ignores the polite stop and goes on writing until it is killed.
void TstCPage2Progress::linesAfterStopAreIgnored()
{
    fixture->tool.setScript({"ignore-term", "out  10% 1 - f\\n", fixture->tool.holding("10"),
                             "out  20% 1 - f\\n", "sleep 60000"});
    fixture->tick({"readme.txt"});
    fixture->startExtractingTo(outputDir);
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 10, 60000);
    pressStop();
    fixture->tool.release("10");
    QVERIFY(PageFixture::waitUntilToolsGone());
    QCOMPARE(fixture->progressValue(), 10);
    QVERIFY(!fixture->progress()->isVisible());
    QVERIFY(fixture->page->isEnabled());
}

// The lines wait to be delivered when Stop comes.
void TstCPage2Progress::linesOnTheirWayAreIgnoredAfterStop()
{
    QLoggingCategory::setFilterRules("korvex.tooloutput.debug=true");
    fixture->tool.setScript({"lines 50  45% 1 - f"});
    extractWithoutReceiving();
    const ModalDriver noMessage;
    QVERIFY(QMetaObject::invokeMethod(fixture->progress(), "OnBtnCancel"));
    QVERIFY(PageFixture::waitUntilToolsGone());
    QLoggingCategory::setFilterRules({});
    QVERIFY(debugLines().join(' ').contains("CPage2::OnExtractOutput")); // they did come
    QCOMPARE(fixture->progressValue(), 0);
    QCOMPARE(fixture->progressText(), QString("Extracting files..."));
}

void TstCPage2Progress::endOnItsWayIsIgnoredAfterStop()
{
    extractWithoutReceiving();
    const ModalDriver noMessage;
    QVERIFY(QMetaObject::invokeMethod(fixture->progress(), "OnBtnCancel"));
    QVERIFY(PageFixture::waitUntilToolsGone());
    QCOMPARE(fixture->tool.calls().size(), 2);
    QVERIFY(fixture->page->isEnabled());
}

void TstCPage2Progress::extractionAfterStopStartsAnew()
{
    startEndlessExtraction();
    fixture->page->OnExtractOutput(" 80% 1 - a");
    pressStop();
    fixture->tool.setScript({});
    int value = -1;
    QString text;
    QVERIFY(fixture->extractTo(outputDir, [&] {
        value = fixture->progressValue();
        text = fixture->progressText();
    }));
    QCOMPARE(value, 0);
    QCOMPARE(text, QString("Extracting files..."));
    QCOMPARE(fixture->tool.calls().size(), 3);
    QVERIFY(fixture->page->isEnabled());
}

void TstCPage2Progress::stopWithoutAnExtractionIsHarmless()
{
    fixture->page->OnStopExtract();
    QVERIFY(fixture->page->isEnabled());
}

void TstCPage2Progress::pageMayGoWhileTheArchiverRuns()
{
    startEndlessExtraction();
    delete fixture->page;
    QVERIFY(!fixture->progress());
    QVERIFY(PageFixture::waitUntilToolsGone());
}

// Which the disabled page does not allow the user.
void TstCPage2Progress::secondExtractionEndsTheFirst()
{
    startEndlessExtraction();
    fixture->tool.setScript({});
    QVERIFY(fixture->extractTo(outputDir));
    QVERIFY(PageFixture::waitUntilToolsGone());
    QCOMPARE(fixture->tool.calls().size(), 3);
}

// Also when the test ends: the success of an extraction that goes on by itself would be told while
// nobody is there to close the message.
void TstCPage2Progress::archiverIsHeldUntilThePageHasGone()
{
    startEndlessExtraction();
    const QString gate = fixture->tool.holding("endless").section(' ', 1);
    bool isHeld = false;
    connect(fixture->page, &QObject::destroyed, this,
            [&] { isHeld = QFileInfo::exists(gate + ".reached"); });
    const ModalDriver noMessage;
    fixture.reset();
    QVERIFY(isHeld);
    QVERIFY(PageFixture::waitUntilToolsGone());
}

KORVEX_TEST_MAIN(TstCPage2Progress)
#include "tst_cpage2_progress.moc"
