// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "createpagefixture.h"
#include "markedtranslator.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"

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
    void progressLineMovesTheBar();
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
    fixture->tool.setScript({"sleep 600000"});
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

// How lines are read is the reader's test; here, that the bar gets what it reads.
void TstCPage3Progress::progressLineMovesTheBar()
{
    startEndlessCreation();
    fixture->page->OnCreateOutput(" 12.50% done, estimate finish Sat Nov 21 11:16:00 2026");
    QCOMPARE(fixture->progressValue(), 1250);
    fixture->page->OnCreateOutput("100.00% done, estimate finish x");
    QCOMPARE(fixture->progressValue(), 10000);
    QCOMPARE(fixture->progressText(), QString("Creating ISO file..."));
}

void TstCPage3Progress::lineWithoutProgressChangesNothing()
{
    startEndlessCreation();
    fixture->page->OnCreateOutput("20.00% done, estimate finish x");
    for (const QString& line :
         {QString(), QString("% done, estimate finish Sat Nov 21"), QString(" 12.50% done"),
          QString(" 250.00% done, estimate finish x"), QString(" -3.00% done, estimate finish x"),
          QString("Max brk space used 0"), QString(100000, 'x')}) {
        fixture->page->OnCreateOutput(line);
        QCOMPARE(fixture->progressValue(), 2000);
    }
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
    fixture->tool.setScript({"err  10.01% done, estimate finish Sat Nov 21 11:16:00 2026\\n",
                             fixture->tool.holding("more"),
                             "err  54.32% done, estimate finish Sat Nov 21 11:16:00 2026\\n",
                             "sleep 600000"});
    fixture->addStaged("a.txt");
    fixture->startCreating(image);
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 1001, patienceMs);
    fixture->tool.release("more");
    QVERIFY(QTest::qWaitFor([this] { return fixture->progressValue() == 5432; }, patienceMs));
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
