// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootextracttest.h"
#include "bootimages.h"
#include "testfiles.h"
#include "testmain.h"

namespace
{

const QString inputs = KORVEX_TEST_DATA "/bootimage/";

QStringList inputNames()
{
    QStringList names = entriesOf(inputs);
    names.removeOne("README.md");
    return names;
}

} // namespace

// Replays damaged images, written by hand or found by the fuzzer, against a second reading of the
// same image that shares nothing with the program's.
class TstBootExtractDamaged : public BootExtractTest
{
    Q_OBJECT

private slots:
    void everyOutcomeIsAmongTheInputs();
    void theOutcomeIsThatOfASecondReading_data();
    void theOutcomeIsThatOfASecondReading();
};

void TstBootExtractDamaged::everyOutcomeIsAmongTheInputs()
{
    int refused = 0;
    int acceptedOnly = 0;
    int written = 0;
    for (const QString& name : inputNames()) {
        QVERIFY(writeFromShortForm(readFile(inputs + name), path("image.iso")));
        const BootOutcome outcome = expectedBootOutcome(path("image.iso"));
        ++(outcome.written ? written : outcome.accepted ? acceptedOnly : refused);
    }
    QVERIFY2(refused >= 10 && acceptedOnly >= 5 && written >= 10,
             qPrintable(QString("%1 %2 %3").arg(refused).arg(acceptedOnly).arg(written)));
}

void TstBootExtractDamaged::theOutcomeIsThatOfASecondReading_data()
{
    QTest::addColumn<QString>("file");

    for (const QString& name : inputNames())
        QTest::newRow(qPrintable(name)) << inputs + name;
}

void TstBootExtractDamaged::theOutcomeIsThatOfASecondReading()
{
    QFETCH(QString, file);
    QVERIFY(writeFromShortForm(readFile(file), path("image.iso")));
    const BootOutcome expected = expectedBootOutcome(path("image.iso"));
    const Run run = extract();
    QCOMPARE(run.accepted, expected.accepted);
    QCOMPARE(run.written, expected.written.has_value());
    QCOMPARE(run.content.size(), expected.written.value_or(QByteArray()).size());
    QVERIFY(run.content == expected.written.value_or(QByteArray()));
}

KORVEX_TEST_MAIN(TstBootExtractDamaged)

#include "tst_bootextract_damaged.moc"
