// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "editcontentfixture.h"
#include "heldfolder.h"
#include "modaldriver.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"

#include <QDir>

// An export on the Edit page that takes a while: its waits, its Stop and its progress.
class TstCPage4ExportWait : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void whileUnpackingItWaitsAndGoesOn();
    void afterACancelledSaveItStopsSilentlyAfterTheWait();
    void stopWhileUnpackingStopsSilentlyAfterTheWait();
    void afterACancelledSaveCopiesAreMadeWithoutAMessage();
    void stopDuringTheCopyDropsTheRest();
    void rowsAreCopiedInTheirOrder();
    void allIsDoneWhenTheSuccessIsTold();
    void nothingToCopySkipsTheCopyText();
    void debugLinesTellTheCopying();
    void pageClosedWhileItWaitsIsFreed();

private:
    void startExport(const QString& name, const std::function<void()>& whileRunning);

    std::unique_ptr<EditContentFixture> fixture;
    QString target;
};

void TstCPage4ExportWait::initTestCase()
{
    setApplicationLook();
}

void TstCPage4ExportWait::init()
{
    TestCase::init();
    fixture = std::make_unique<EditContentFixture>();
    target = fixture->path("target");
    QVERIFY(QDir().mkpath(target));
}

void TstCPage4ExportWait::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

// An export that ends without a message. whileRunning is called when it has begun to wait.
void TstCPage4ExportWait::startExport(const QString& name,
                                      const std::function<void()>& whileRunning)
{
    fixture->tick({name});
    ModalDriver driver;
    driver.typePath(target);
    driver.run("CProgressDialog", [&whileRunning](QWidget*) { whileRunning(); });
    fixture->page->OnExport();
    QVERIFY(driver.done());
}

void TstCPage4ExportWait::whileUnpackingItWaitsAndGoesOn()
{
    QVERIFY(fixture->openHalfway());
    fixture->tick({"boot"});
    fixture->page->OnExtractOutput(" 42% 7 - boot/kernel");
    QString text;
    int value = 0;
    ModalDriver driver;
    driver.typePath(target);
    driver.run("CProgressDialog", [&](QWidget*) {
        text = fixture->progressText();
        value = fixture->progressValue();
        QVERIFY(entriesOf(target).isEmpty());
        QVERIFY(fixture->openGate());
    });
    driver.press("CommDialog", "btnok");
    fixture->page->OnExport();
    QCOMPARE(text, QString("Extracting iso..."));
    QCOMPARE(value, 42);
    QCOMPARE(driver.texts().value(2), QString("Export Successfully !"));
    QCOMPARE(readFile(target + "/boot/kernel"), QByteArray("boot/kernel"));
}

void TstCPage4ExportWait::afterACancelledSaveItStopsSilentlyAfterTheWait()
{
    QVERIFY(fixture->openHalfway());
    fixture->page->StopCreate();
    startExport("boot", [this] { QVERIFY(fixture->openGate()); });
    QVERIFY(!fixture->progress()->isVisible());
    QVERIFY(fixture->waitUntilWorked());
    QVERIFY(entriesOf(target).isEmpty());
}

void TstCPage4ExportWait::stopWhileUnpackingStopsSilentlyAfterTheWait()
{
    QVERIFY(fixture->openHalfway());
    startExport("boot", [this] {
        fixture->pressStop();
        QVERIFY(fixture->page->isWorking()); // Stop does not end the unpacking
        QVERIFY(fixture->openGate());
    });
    QVERIFY(!fixture->progress()->isVisible());
    QVERIFY(fixture->waitUntilWorked());
    QVERIFY(entriesOf(target).isEmpty());
}

void TstCPage4ExportWait::afterACancelledSaveCopiesAreMadeWithoutAMessage()
{
    QVERIFY(fixture->open());
    fixture->page->StopCreate();
    fixture->tick({"boot"});
    ModalDriver driver; // fails when a message comes
    driver.typePath(target);
    fixture->page->OnExport();
    QVERIFY(!fixture->progress()->isVisible());
    QCOMPARE(readFile(target + "/boot/kernel"), QByteArray("boot/kernel"));
}

void TstCPage4ExportWait::stopDuringTheCopyDropsTheRest()
{
    QVERIFY(fixture->open());
    HeldFolder held(fixture->workFolder() + "/boot", 1000);
    bool isHiddenAtStop = false;
    connect(fixture->progress(), &CProgressDialog::SigCancel, this,
            [&] { isHiddenAtStop = !fixture->progress()->isVisible(); });
    fixture->tick({"boot", "readme.txt"});
    ModalDriver driver;
    driver.typePath(target);
    driver.run("CProgressDialog", [&](QWidget*) {
        QVERIFY(QTest::qWaitFor([&held] { return held.isHolding(); }, 60000));
        fixture->pressStop();
        held.release();
    });
    fixture->page->OnExport();
    QVERIFY(isHiddenAtStop);
    QVERIFY(fixture->waitUntilWorked());
    QVERIFY(!fixture->progress()->isVisible());
    QCOMPARE(entriesOf(target), QStringList("boot"));
}

// While the first is being copied, none of the others is there.
void TstCPage4ExportWait::rowsAreCopiedInTheirOrder()
{
    QVERIFY(fixture->open({"boot/", "a.txt", "b.txt"}));
    HeldFolder held(fixture->workFolder() + "/boot", 1000);
    QStringList early;
    const Trigger look([&held] { return held.isHolding(); },
                       [&] {
                           early = entriesOf(target);
                           held.release();
                       });
    fixture->exportTo({"b.txt", "a.txt", "boot"}, target);
    QVERIFY(look.hasFired());
    QCOMPARE(early, QStringList("boot"));
    QCOMPARE(entriesOf(target), QStringList({"a.txt", "b.txt", "boot"}));
}

// The message waits for the user: whatever came after it would wait as well.
void TstCPage4ExportWait::allIsDoneWhenTheSuccessIsTold()
{
    QVERIFY(fixture->open());
    fixture->tick({"readme.txt"});
    QStringList found;
    ModalDriver driver;
    driver.typePath(target);
    driver.run("CommDialog", [&](QWidget* dialog) {
        found = entriesOf(target);
        found.append(fixture->page->isEnabled() ? "enabled" : "disabled");
        found.append(fixture->progress()->isVisible() ? "progress" : "no progress");
        dialog->close();
    });
    fixture->page->OnExport();
    QCOMPARE(found, QStringList({"readme.txt", "enabled", "no progress"}));
}

void TstCPage4ExportWait::nothingToCopySkipsTheCopyText()
{
    QVERIFY(fixture->open());
    const QString song = fixture->makeFile("music/song.mp3");
    fixture->add({song});
    QVERIFY(fixture->waitUntilWorked());
    // It lies there already.
    const QStringList texts = fixture->exportTo({"song.mp3"}, fixture->path("music"));
    QCOMPARE(texts.value(1), QString("Export Successfully !"));
    QVERIFY(fixture->progressText() != "Copy files and directories...");
}

void TstCPage4ExportWait::debugLinesTellTheCopying()
{
    QVERIFY(fixture->open());
    HeldFolder held(fixture->workFolder() + "/boot", 1000);
    const Trigger release([] { return !debugLines().filter("CPage4::OnCreate ").isEmpty(); },
                          [&held] { held.release(); });
    fixture->exportTo({"boot"}, target);
    QCOMPARE(debugLines().filter("file copy finished!!!").size(), 1);
    const QStringList turns = debugLines().filter("CPage4::OnCreate ");
    QVERIFY(!turns.isEmpty());
    QVERIFY(turns.first().contains(QRegularExpression("CPage4::OnCreate \\d+ -?\\d+$")));
}

void TstCPage4ExportWait::pageClosedWhileItWaitsIsFreed()
{
    QVERIFY(fixture->openHalfway());
    startExport("boot", [this] { fixture->page->close(); });
    QVERIFY(QTest::qWaitFor([this] { return fixture->page.isNull(); }, 60000));
    QVERIFY(entriesOf(target).isEmpty());
}

KORVEX_TEST_MAIN(TstCPage4ExportWait)
#include "tst_cpage4_exportwait.moc"
