// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "createpagefixture.h"
#include "markedtranslator.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "widgetrecorder.h"

#include <QLoggingCategory>
#include <QRadioButton>

// While the authoring tool runs: what its lines do to the progress dialog.
class TstCPage3Progress : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void toolStartsWithTheProgressDialogAtZero();
    void progressLineMovesTheBar_data();
    void progressLineMovesTheBar();
    void lineWithoutProgressChangesNothing_data();
    void lineWithoutProgressChangesNothing();
    void lateLowerPercentageMovesTheBarBack();
    void progressOfTheToolArrivesWhileItRuns();
    void everyLineIsLogged();
    void languageChangeWhileTheToolRunsIsHarmless();

private:
    void startEndlessCreation();

    std::unique_ptr<CreatePageFixture> fixture;
    QString image;
};

void TstCPage3Progress::initTestCase()
{
    setApplicationLook();
}

void TstCPage3Progress::init()
{
    TestCase::init();
    fixture = std::make_unique<CreatePageFixture>();
    image = fixture->path("out.iso");
}

void TstCPage3Progress::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage3Progress::startEndlessCreation()
{
    fixture->tool.setScript({"sleep 60000"});
    fixture->addStaged("a.txt");
    fixture->startCreating(image);
    QVERIFY(fixture->waitForCall(1));
}

void TstCPage3Progress::toolStartsWithTheProgressDialogAtZero()
{
    startEndlessCreation();
    QVERIFY(fixture->progress()->isVisible());
    QCOMPARE(fixture->progressText(), QString("Creating ISO file..."));
    QCOMPARE(fixture->progressMaximum(), 10000);
    QCOMPARE(fixture->progressValue(), 0);
}

void TstCPage3Progress::progressLineMovesTheBar_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("value");
    QTest::newRow("as printed") << " 12.50% done, estimate finish Sat Nov 21 11:16:00 2026" << 1250;
    QTest::newRow("nothing behind") << "7% done, estimate finish" << 700;
    QTest::newRow("blanks around") << "   3.25  % done, estimate finish x" << 325;
    QTest::newRow("tab") << "\t3.25% done, estimate finish x" << 325;
    QTest::newRow("single precision, truncated") << " 0.29% done, estimate finish x" << 29;
    QTest::newRow("third decimal truncated") << "1.999% done, estimate finish x" << 199;
    QTest::newRow("complete") << "100.00% done, estimate finish x" << 10000;
    QTest::newRow("no number is zero") << "some % done, estimate finish x" << 0;
    QTest::newRow("only a blank is zero") << " % done, estimate finish x" << 0;
    QTest::newRow("comma is no point") << "12,50% done, estimate finish x" << 0;
    QTest::newRow("two marks: the first")
        << "5.00% done, estimate finish 9.00% done, estimate finish" << 500;
    QTest::newRow("not a number") << "nan% done, estimate finish x" << 0;
    QTest::newRow("endless") << "inf% done, estimate finish x" << 0;
}

void TstCPage3Progress::progressLineMovesTheBar()
{
    startEndlessCreation();
    fixture->page->OnCreateOutput("1.23% done, estimate finish x");
    QCOMPARE(fixture->progressValue(), 123);
    QFETCH(QString, line);
    fixture->page->OnCreateOutput(line);
    QTEST(fixture->progressValue(), "value");
    QCOMPARE(fixture->progressText(), QString("Creating ISO file..."));
}

void TstCPage3Progress::lineWithoutProgressChangesNothing_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("empty") << "";
    QTest::newRow("mark at the beginning") << "% done, estimate finish Sat Nov 21";
    QTest::newRow("other case") << " 12.50% Done, Estimate Finish x";
    QTest::newRow("half the mark") << " 12.50% done";
    QTest::newRow("without blank") << " 12.50% done,estimate finish x";
    QTest::newRow("above the bar's end") << " 250.00% done, estimate finish x";
    QTest::newRow("below its start") << " -3.00% done, estimate finish x";
    QTest::newRow("end") << "Max brk space used 0";
    QTest::newRow("long") << QString(100000, 'x');
}

void TstCPage3Progress::lineWithoutProgressChangesNothing()
{
    startEndlessCreation();
    fixture->page->OnCreateOutput("20.00% done, estimate finish x");
    QFETCH(QString, line);
    fixture->page->OnCreateOutput(line);
    QCOMPARE(fixture->progressValue(), 2000);
}

void TstCPage3Progress::lateLowerPercentageMovesTheBarBack()
{
    startEndlessCreation();
    fixture->page->OnCreateOutput("60.00% done, estimate finish x");
    fixture->page->OnCreateOutput("30.00% done, estimate finish x");
    QCOMPARE(fixture->progressValue(), 3000);
}

void TstCPage3Progress::progressOfTheToolArrivesWhileItRuns()
{
    fixture->tool.setScript(
        {"err  10.01% done, estimate finish Sat Nov 21 11:16:00 2026\\n", "sleep 50",
         "err  54.32% done, estimate finish Sat Nov 21 11:16:00 2026\\n", "sleep 60000"});
    fixture->addStaged("a.txt");
    const WidgetRecorder recorder(fixture->progress());
    fixture->startCreating(image);
    QVERIFY(QTest::qWaitFor([this] { return fixture->progressValue() == 5432; }, 10000));
    QVERIFY(recorder.values().contains(1001));
}

void TstCPage3Progress::everyLineIsLogged()
{
    QLoggingCategory::setFilterRules("korvex.tooloutput.debug=true");
    startEndlessCreation();
    fixture->page->OnCreateOutput("any line");
    QLoggingCategory::setFilterRules({});
    QVERIFY(debugLines().contains("CPage3::OnCreateOutput \"any line\""));
}

void TstCPage3Progress::languageChangeWhileTheToolRunsIsHarmless()
{
    startEndlessCreation();
    fixture->page->OnCreateOutput("20.00% done, estimate finish x");
    MarkedTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::processEvents();
    const int value = fixture->progressValue();
    const bool isShown = fixture->progress()->isVisible();
    fixture->page->OnCreateOutput("30.00% done, estimate finish x");
    const int next = fixture->progressValue();
    const auto types = fixture->page->findChildren<QRadioButton*>();
    const QString typeText = types.first()->text();
    const bool isChecked = types.first()->isChecked();
    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QCoreApplication::processEvents();
    QCOMPARE(value, 2000);
    QCOMPARE(next, 3000);
    QVERIFY(isShown);
    QCOMPARE(typeText, QString("<ISO9660 Jolet>"));
    QVERIFY(isChecked);
    fixture->pressStop();
    QVERIFY(fixture->isUsable());
}

KORVEX_TEST_MAIN(TstCPage3Progress)
#include "tst_cpage3_progress.moc"
