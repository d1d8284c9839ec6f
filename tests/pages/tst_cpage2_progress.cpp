// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "extractpagefixture.h"
#include "modaldriver.h"
#include "processcounts.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usermouse.h"

#include <QApplication>
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
    void progressLineMovesTheBar_data();
    void progressLineMovesTheBar();
    void lineWithoutProgressChangesNothing_data();
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

private:
    void startEndlessExtraction();
    void pressStop();

    std::unique_ptr<ExtractPageFixture> fixture;
    QString outputDir;
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
    fixture->tool.setScript({"sleep 60000"});
    fixture->tick({"readme.txt"});
    fixture->startExtractingTo(outputDir);
    QVERIFY(QTest::qWaitFor([this] { return fixture->tool.calls().size() == 2; }));
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

void TstCPage2Progress::progressLineMovesTheBar_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("with its number of entries")
        << " 45% 12 - boot/grub/font.pf2" << 45 << "Extracting files: boot/grub/font.pf2";
    QTest::newRow("rest of another line in front")
        << "Everything 7% 1 - a.txt" << 7 << "Extracting files: a.txt";
    QTest::newRow("drawn over the last one")
        << " 35% 1 - f2\b\b\b\b\b\b\b\b\b\b\b           \b\b\b\b\b\b\b\b\b\b\b 54% 1 - f2" << 54
        << "Extracting files: f2";
    QTest::newRow("dashes in the name")
        << " 5% 1 - a - b.txt" << 5 << "Extracting files: a - b.txt";
    QTest::newRow("Unicode") << QString::fromUtf8(" 5% 1 - файл 日本") << 5
                             << QString::fromUtf8("Extracting files: файл 日本");
    QTest::newRow("99") << " 99% 1 - a.txt" << 99 << "Extracting files: a.txt";
    QTest::newRow("100") << " 100% 12 - a.txt" << 100
                         << "Copying files! Please wait a few seconds..";
}

void TstCPage2Progress::progressLineMovesTheBar()
{
    startEndlessExtraction();
    QFETCH(QString, line);
    fixture->page->OnExtractOutput(line);
    QTEST(fixture->progressValue(), "value");
    QTEST(fixture->progressText(), "text");
    QVERIFY(fixture->progress()->isVisible());
}

void TstCPage2Progress::lineWithoutProgressChangesNothing_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("no entry") << " 45% 12";
    QTest::newRow("no percent") << "- boot/grub/font.pf2";
    QTest::newRow("percent without blank") << " 45%12 - a.txt";
    QTest::newRow("percent in front") << "% 12 - a.txt";
    QTest::newRow("no number") << "  % 12 - a.txt";
    QTest::newRow("empty") << "";
    QTest::newRow("end") << "Everything is Ok";
}

void TstCPage2Progress::lineWithoutProgressChangesNothing()
{
    startEndlessExtraction();
    fixture->page->OnExtractOutput(" 20% 1 - before.txt");
    QFETCH(QString, line);
    fixture->page->OnExtractOutput(line);
    QCOMPARE(fixture->progressValue(), 20);
    QCOMPARE(fixture->progressText(), QString("Extracting files: before.txt"));
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
    fixture->tool.setScript({"err  35% 1 - f2", "sleep 50",
                             "err " + back + QString(11, ' ') + back + " 54% 1 - f2",
                             "sleep 60000"});
    fixture->tick({"readme.txt"});
    fixture->startExtractingTo(outputDir);
    QVERIFY(QTest::qWaitFor([this] { return fixture->progressValue() == 54; }, 10000));
    QCOMPARE(fixture->progressText(), QString("Extracting files: f2"));
}

void TstCPage2Progress::stopEndsTheArchiverWithoutAMessage()
{
    startEndlessExtraction();
    writeFile(outputDir + "/part.bin", "kept");
    pressStop();
    QVERIFY(!fixture->progress()->isVisible());
    QVERIFY(fixture->page->isEnabled());
    QVERIFY(QTest::qWaitFor([] { return processesOf("scriptedtool").isEmpty(); }));
    QTest::qWait(400); // longer than the end of a run takes to be told
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
    QVERIFY(QTest::qWaitFor([] { return processesOf("scriptedtool").isEmpty(); }));
}

// The archiver ignores the polite stop and goes on writing until it is killed.
void TstCPage2Progress::linesAfterStopAreIgnored()
{
    QStringList script{"ignore-term"};
    for (int percent = 10; percent < 60; ++percent)
        script += {QString("out  %1% 1 - f\\n").arg(percent), "sleep 20"};
    fixture->tool.setScript(script + QStringList("sleep 60000"));
    fixture->tick({"readme.txt"});
    fixture->startExtractingTo(outputDir);
    QVERIFY(QTest::qWaitFor([this] { return fixture->progressValue() >= 10; }));
    pressStop();
    const int value = fixture->progressValue();
    QVERIFY(QTest::qWaitFor([] { return processesOf("scriptedtool").isEmpty(); }));
    QCOMPARE(fixture->progressValue(), value);
    QVERIFY(!fixture->progress()->isVisible());
    QVERIFY(fixture->page->isEnabled());
}

// The lines wait to be delivered when Stop comes.
void TstCPage2Progress::linesOnTheirWayAreIgnoredAfterStop()
{
    QLoggingCategory::setFilterRules("korvex.tooloutput.debug=true");
    fixture->tool.setScript({"lines 50  45% 1 - f", "sleep 60000"});
    fixture->tick({"readme.txt"});
    fixture->startExtractingTo(outputDir);
    QThread::msleep(1000);
    QVERIFY(QMetaObject::invokeMethod(fixture->progress(), "OnBtnCancel"));
    QTest::qWait(100);
    QLoggingCategory::setFilterRules({});
    QVERIFY(debugLines().join(' ').contains("CPage2::OnExtractOutput")); // they did come
    QCOMPARE(fixture->progressValue(), 0);
    QCOMPARE(fixture->progressText(), QString("Extracting files..."));
}

void TstCPage2Progress::endOnItsWayIsIgnoredAfterStop()
{
    fixture->tool.setScript({});
    fixture->tick({"readme.txt"});
    fixture->startExtractingTo(outputDir);
    QThread::msleep(1000);
    const ModalDriver driver; // fails for any message
    QVERIFY(QMetaObject::invokeMethod(fixture->progress(), "OnBtnCancel"));
    QTest::qWait(300);
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
    QVERIFY(QTest::qWaitFor([] { return processesOf("scriptedtool").isEmpty(); }));
}

KORVEX_TEST_MAIN(TstCPage2Progress)
#include "tst_cpage2_progress.moc"
