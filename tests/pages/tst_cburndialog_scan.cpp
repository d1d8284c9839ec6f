// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnpagefixture.h"
#include "drivescenario.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// The Burn page's reader of a bus scan, which never names a burner on this platform but says in the
// log what it has read.
class TstCBurnDialogScan : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void lineOfABurnerIsReadAndNoted();
    void lineWithoutIndexIsNotedTwice();
    void lineThatNamesNoBurnerIsNoted_data();
    void lineThatNamesNoBurnerIsNoted();
    void burnerHasNoDriverLetter();

private:
    std::unique_ptr<DriveScenario> drives;
    std::unique_ptr<BurnPageFixture> fixture;
    std::unique_ptr<LogSwitch> logSwitch;
};

namespace
{

const QString burner = "\t1,0,0\t100) 'HL-DT-ST' 'DVDRAM GP65NS60 ' 'PF00' Removable CD-ROM";

} // namespace

void TstCBurnDialogScan::initTestCase()
{
    setApplicationLook();
    drives = std::make_unique<DriveScenario>();
    fixture = std::make_unique<BurnPageFixture>();
}

void TstCBurnDialogScan::cleanupTestCase()
{
    fixture.reset();
    drives.reset();
}

void TstCBurnDialogScan::init()
{
    TestCase::init();
    logSwitch = std::make_unique<LogSwitch>();
}

void TstCBurnDialogScan::cleanup()
{
    logSwitch.reset();
    TestCase::cleanup();
}

void TstCBurnDialogScan::lineOfABurnerIsReadAndNoted()
{
    QCOMPARE(fixture->page->GetDriverName(burner), QString());
    QCOMPARE(LogSwitch::texts(), QStringList({"CBurnDialog::GetCDRNoToDriver for osx entry1,0,0",
                                              burner + "GetCDRNoToDriver return null"}));
}

void TstCBurnDialogScan::lineWithoutIndexIsNotedTwice()
{
    const QString line = "\tno index 'HL-DT-ST'";
    QCOMPARE(fixture->page->GetDriverName(line), QString());
    QCOMPARE(LogSwitch::texts(), QStringList({R"(Not match the RegExp (.*)\s.*\))",
                                              "CBurnDialog::GetCDRNoToDriver for osx entry",
                                              line + "GetCDRNoToDriver return null"}));
}

void TstCBurnDialogScan::lineThatNamesNoBurnerIsNoted_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("empty") << "";
    QTest::newRow("empty place") << "\t1,1,0\t101) *";
    QTest::newRow("heading") << "scsibus1:";
    QTest::newRow("no tab") << "1,0,0 100) 'HL-DT-ST'";
    QTest::newRow("one quote") << "\t1,0,0\t100) 'HL-DT-ST";
}

void TstCBurnDialogScan::lineThatNamesNoBurnerIsNoted()
{
    QFETCH(QString, line);
    QCOMPARE(fixture->page->GetDriverName(line), QString());
    QCOMPARE(LogSwitch::texts(), QStringList("Not match the RegExp"));
}

void TstCBurnDialogScan::burnerHasNoDriverLetter()
{
    QCOMPARE(fixture->page->GetCDRNoToDriver("HL-DT-ST DVDRAM", "1,0,0"), QString());
    QCOMPARE(LogSwitch::texts(), QStringList("CBurnDialog::GetCDRNoToDriver for osx entry1,0,0"));
}

KORVEX_TEST_MAIN(TstCBurnDialogScan)
#include "tst_cburndialog_scan.moc"
