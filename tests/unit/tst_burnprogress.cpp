// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnprogress.h"
#include "discprogress.h"
#include "outputcapture.h"
#include "testcase.h"
#include "testmain.h"

Q_DECLARE_METATYPE(std::optional<double>)

// From the burning tool's progress to the lines that the program reads.
class TstBurnProgress : public TestCase
{
    Q_OBJECT

private slots:
    void lineOfTheTool_data();
    void lineOfTheTool();
    void lineOfOurs_data();
    void lineOfOurs();
    void onlySuccessReachesOne();
    void valuesOnlyRise();
    void valuesInQuickSuccessionAreLeftOut();
};

void TstBurnProgress::lineOfTheTool_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<std::optional<double>>("part");
    const auto row = [](const char* name, const char* line, std::optional<double> part) {
        QTest::newRow(name) << QString(line) << part;
    };
    row("nothing", "", {});
    row("xorriso 1.5.4", "xorriso : UPDATE :   12 of   57 MB written (fifo  0%) [buf  50%]",
        12.0 / 57);
    row("with speed", "xorriso : UPDATE :   24 of   48 MB written (fifo  0%) [buf  50%]  55.7x.",
        0.5);
    row("cdrecord", "Track 01:  175 of  700 MB written (fifo 100%) [buf 100%]   8.2x.", 0.25);
    row("start", "Track 01:    0 of  700 MB written", 0.0);
    row("more than all", "xorriso : UPDATE :   58 of   57 MB written", 1.0);
    row("tiny image", "xorriso : UPDATE :    0 of    0 MB written", {});
    row("no total", "Track 01:    3 MB written", {});
    row("closing", "xorriso : UPDATE : Closing track/session. Working since 12 seconds", {});
    row("end", "Writing to 'stdio:/tmp/out.img' completed successfully.", {});
}

void TstBurnProgress::lineOfTheTool()
{
    QFETCH(QString, line);
    QTEST(readBurnProgress(line), "part");
}

void TstBurnProgress::lineOfOurs_data()
{
    QTest::addColumn<double>("part");
    QTest::addColumn<QString>("number");
    QTest::newRow("rounded") << 0.12345678 << "0.1234568";
    QTest::newRow("half") << 0.5 << "0.5";
    QTest::newRow("small") << 0.00001 << "0.00001";
    QTest::newRow("nothing") << 0.0 << "0";
    QTest::newRow("all") << 1.0 << "1";
}

void TstBurnProgress::lineOfOurs()
{
    QFETCH(double, part);
    QFETCH(QString, number);
    QCOMPARE(progressLine(part), "DRStatusPercentCompleteKey: " + number);
    QCOMPARE(readDiscProgress(progressLine(part), 10000).value_or(0),
             static_cast<int>(number.toDouble() * 10000));
}

void TstBurnProgress::onlySuccessReachesOne()
{
    QCOMPARE(standardOutputOf([] { ProgressTeller().reach(1); }),
             QByteArray("DRStatusPercentCompleteKey: 0.9999999\n"));
    QCOMPARE(standardOutputOf([] { ProgressTeller::finish(); }),
             QByteArray("DRStatusPercentCompleteKey: 1\n"));
}

void TstBurnProgress::valuesOnlyRise()
{
    const QByteArray said = standardOutputOf([] {
        ProgressTeller teller(0);
        for (const double part : {0.0, 0.25, 0.25, 0.125, 0.5, qQNaN()})
            teller.reach(part);
    });
    QCOMPARE(said, QByteArray("DRStatusPercentCompleteKey: 0.25\n"
                              "DRStatusPercentCompleteKey: 0.5\n"));
}

void TstBurnProgress::valuesInQuickSuccessionAreLeftOut()
{
    // Quick is what lies within an hour,
    const QByteArray quick = standardOutputOf([] {
        ProgressTeller teller(3'600'000);
        teller.reach(0.125);
        teller.reach(0.25);
        teller.reach(1);
        ProgressTeller::finish();
    });
    QCOMPARE(quick, QByteArray("DRStatusPercentCompleteKey: 0.125\n"
                               "DRStatusPercentCompleteKey: 1\n"));
    // and slow what takes longer than it has to.
    const QByteArray slow = standardOutputOf([] {
        ProgressTeller teller(10);
        teller.reach(0.125);
        QTest::qSleep(20);
        teller.reach(0.5);
    });
    QCOMPARE(slow, QByteArray("DRStatusPercentCompleteKey: 0.125\n"
                              "DRStatusPercentCompleteKey: 0.5\n"));
}

KORVEX_TEST_MAIN(TstBurnProgress)

#include "tst_burnprogress.moc"
