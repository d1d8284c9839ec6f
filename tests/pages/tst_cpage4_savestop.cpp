// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "editsavefixture.h"
#include "extractpagefixture.h"
#include "modaldriver.h"
#include "processcounts.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"

namespace
{

constexpr int stops = 30; // a third of them in each phase
constexpr int stopLimitMs = 2000;
const QString extracting = "Extracting iso...";
const QString copying = "Copy files and directories...";
const QString writing = "Saving ISO file...";
const QString success = "Save ISO file successfully!";

} // namespace

// Stop in each phase of a save, and the save that follows it.
class TstCPage4SaveStop : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void stopInTheExtractionWaitDoesNotShortenItAndTheSaveStopsThen();
    void editsBeforeAStopInTheExtractionWaitAreMade();
    void stopWhileTheWorkFolderIsStillToBeEmptiedLeavesNothingInIt();
    void stopInTheCopyWaitLosesWhatWasQueued();
    void editsAfterAStopInTheCopyWaitAreMade();
    void thirtyStopsInARow();
    void saveAgainInTheExtractionWaitTheNewestWins();
    void saveAgainInTheCopyWaitTheNewestWins();
    void saveAgainAndCancelledLeavesTheStoppedOneStopped();

private:
    void load(const QStringList& unpacking = {});
    // A save that ends in the phase of this text, by Stop.
    void saveAndStop(const QString& text, HeldFolder* held = nullptr);
    // Stop in the phase of this text, and a second save in it, which is the one that is carried
    // out.
    void saveTwice(const QString& text, const std::function<void()>& onSecond);

    std::unique_ptr<EditSaveFixture> fixture;
    QString image;
};

void TstCPage4SaveStop::initTestCase()
{
    setApplicationLook();
}

void TstCPage4SaveStop::init()
{
    TestCase::init();
    fixture = std::make_unique<EditSaveFixture>();
    image = fixture->path("out.iso");
}

void TstCPage4SaveStop::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage4SaveStop::load(const QStringList& unpacking)
{
    fixture->setArchiver(ExtractPageFixture::usualEntries(), unpacking);
    fixture->startLoading();
    QVERIFY(fixture->waitUntilListed());
}

void TstCPage4SaveStop::saveAndStop(const QString& text, HeldFolder* held)
{
    QVERIFY(fixture->saveAnd(
        image, [this, text] { return fixture->isShowing(text); },
        [this, held] {
            fixture->pressStop();
            if (held)
                held->release();
        }));
}

void TstCPage4SaveStop::stopInTheExtractionWaitDoesNotShortenItAndTheSaveStopsThen()
{
    load({"sleep 1500"});
    QVERIFY(QTest::qWaitFor([] { return !processesOf("scriptedtool").isEmpty(); }));
    bool isHiddenWhileUnpacking = false;
    bool isUnpackingAtStop = false;
    QVERIFY(fixture->saveAnd(
        image, [this] { return fixture->isShowing(extracting); },
        [&] {
            fixture->pressStop();
            isUnpackingAtStop = !processesOf("scriptedtool").isEmpty();
            QTest::qWait(300);
            isHiddenWhileUnpacking =
                !processesOf("scriptedtool").isEmpty() && !fixture->progress()->isVisible();
        }));
    QVERIFY(isUnpackingAtStop);
    QVERIFY(isHiddenWhileUnpacking);
    // The save has returned: the extraction is over and was not cut off.
    QVERIFY(processesOf("scriptedtool").isEmpty());
    QVERIFY(debugLines().contains("CPage4::OnExtractFinished() is called!!"));
    QVERIFY(!debugLines().contains("Extract finished!!!"));
    QVERIFY(fixture->isUsable());
    QVERIFY(fixture->author.calls().isEmpty());
    QCOMPARE(fixture->save(image), success);
}

void TstCPage4SaveStop::editsBeforeAStopInTheExtractionWaitAreMade()
{
    load({"sleep 800"});
    writeFile(fixture->path("new.txt"), "new");
    fixture->add({fixture->path("new.txt")});
    saveAndStop(extracting);
    QVERIFY(fixture->waitUntilWorked());
    QCOMPARE(readFile(EditPageFixture::workFolder() + "/new.txt"), QByteArray("new"));
    QVERIFY(fixture->author.calls().isEmpty());
}

// What is dropped by Stop must not be the emptying for the image that is being loaded.
void TstCPage4SaveStop::stopWhileTheWorkFolderIsStillToBeEmptiedLeavesNothingInIt()
{
    load();
    QVERIFY(fixture->waitUntilWorked());
    writeFile(EditPageFixture::workFolder() + "/of the first image.txt", "left");
    const auto held = fixture->addHeld(1000);
    fixture->startLoading("second.iso");
    QVERIFY(fixture->waitUntilListed());
    QVERIFY(fixture->saveAnd(
        image, [this] { return fixture->isShowing(extracting); },
        [&] {
            fixture->pressStop();
            QTest::qWait(300);
            // Nothing is unpacked beside a copy of the image before.
            QCOMPARE(fixture->archiver.calls().size(), 3);
            held->release();
        }));
    QVERIFY(fixture->waitUntilWorked());
    QCOMPARE(fixture->archiver.calls().size(), 4);
    QCOMPARE(entriesOf(EditPageFixture::workFolder()), QStringList());
    QVERIFY(fixture->isUsable());
}

void TstCPage4SaveStop::stopInTheCopyWaitLosesWhatWasQueued()
{
    load();
    QVERIFY(fixture->waitUntilWorked());
    const auto held = fixture->addHeld(1000);
    writeFile(fixture->path("queued.txt"), "queued");
    fixture->add({fixture->path("queued.txt")});
    QVERIFY(fixture->saveAnd(
        image, [this] { return fixture->isShowing(copying); },
        [&] {
            fixture->pressStop();
            QVERIFY(fixture->isUsable());
            held->release();
        }));
    QVERIFY(fixture->isUsable());
    QVERIFY(fixture->author.calls().isEmpty());
    // The copy that was in progress has gone on.
    QCOMPARE(entriesOf(EditPageFixture::workFolder()), QStringList("held"));
    QVERIFY(fixture->shownNames().contains("queued.txt"));
    // Removed and added anew, it is there again.
    fixture->remove({"queued.txt"});
    fixture->add({fixture->path("queued.txt")});
    QCOMPARE(fixture->save(image), success);
    QCOMPARE(entriesOf(EditPageFixture::workFolder()), QStringList({"held", "queued.txt"}));
}

void TstCPage4SaveStop::editsAfterAStopInTheCopyWaitAreMade()
{
    load();
    QVERIFY(fixture->waitUntilWorked());
    const auto held = fixture->addHeld(1000);
    writeFile(fixture->path("late.txt"), "late");
    QVERIFY(fixture->saveAnd(
        image, [this] { return fixture->isShowing(copying); },
        [&] {
            fixture->pressStop();
            // Not through the dialog, which the driver of the save dialog would answer.
            fixture->page->AddFileOpTasks(fixture->path("late.txt"),
                                          EditPageFixture::workFolder() + "/late.txt",
                                          CFileCopy::Copy);
            held->release();
        }));
    QVERIFY(fixture->waitUntilWorked());
    QCOMPARE(entriesOf(EditPageFixture::workFolder()), QStringList({"held", "late.txt"}));
}

void TstCPage4SaveStop::thirtyStopsInARow()
{
    fixture->author.setScript({"sleep 60000"});
    int descriptors = 0;
    for (int run = 0; run < stops; ++run) {
        load(run % 3 == 0 ? QStringList{"sleep 250"} : QStringList());
        if (run % 3 != 0)
            QVERIFY(fixture->waitUntilWorked());
        if (run % 3 == 1) {
            QDir(fixture->path("held")).removeRecursively();
            QFile::remove(fixture->path("held.pipe"));
            const auto held = fixture->addHeld(0);
            saveAndStop(copying, held.get());
        } else if (run % 3 == 0) {
            saveAndStop(extracting);
        } else {
            fixture->startSaving(image);
            QVERIFY(fixture->isShowing(writing));
            fixture->pressStop();
        }
        QVERIFY(fixture->isUsable());
        QVERIFY(QTest::qWaitFor([] { return EditSaveFixture::areToolsGone(); }, stopLimitMs));
        if (run == 5)
            descriptors = descriptorCount();
    }
    QVERIFY(descriptorCount() <= descriptors);
    QVERIFY(fixture->author.calls().size() <= stops / 3);
    fixture->author.setScript({});
    QCOMPARE(fixture->save(image), success);
}

void TstCPage4SaveStop::saveTwice(const QString& text, const std::function<void()>& onSecond)
{
    fixture->author.setScript({"sleep 300"});
    {
        ModalDriver driver;
        driver.typePath(image);
        driver.typePath(fixture->path("newer.iso"));
        const Trigger second([&] { return driver.done() && fixture->isShowing(text); }, onSecond);
        const Trigger first([&] { return fixture->isShowing(text); },
                            [this] {
                                fixture->pressStop();
                                fixture->press("save");
                            });
        fixture->page->OnSave();
        QVERIFY(driver.done());
        QVERIFY(second.hasFired());
    }
    QVERIFY(fixture->waitForCall(1));
    QVERIFY(fixture->isShowing(writing));
    QCOMPARE(fixture->waitForMessage(), success);
    QTest::qWait(300);
    QCOMPARE(fixture->author.calls().size(), 1);
    QCOMPARE(fixture->author.calls().first().at(3), fixture->path("newer.iso"));
    QVERIFY(fixture->isUsable());
}

void TstCPage4SaveStop::saveAgainInTheExtractionWaitTheNewestWins()
{
    load({"sleep 2500"});
    saveTwice(extracting, [] {});
}

// It waits for the copy that is still in progress, which would come out half otherwise.
void TstCPage4SaveStop::saveAgainInTheCopyWaitTheNewestWins()
{
    load();
    QVERIFY(fixture->waitUntilWorked());
    const auto held = fixture->addHeld(1000);
    saveTwice(copying, [&] {
        QTest::qWait(300);
        QVERIFY(fixture->author.calls().isEmpty());
        held->release();
    });
    QCOMPARE(QFileInfo(EditPageFixture::workFolder() + "/held/rest.bin").size(), 1000);
}

void TstCPage4SaveStop::saveAgainAndCancelledLeavesTheStoppedOneStopped()
{
    load({"sleep 1500"});
    ModalDriver driver;
    driver.typePath(image);
    driver.key("QFileDialog", Qt::Key_Escape);
    const Trigger again([this] { return fixture->isShowing(extracting); },
                        [this] {
                            fixture->pressStop();
                            fixture->press("save");
                        });
    fixture->page->OnSave();
    QVERIFY(driver.done());
    QVERIFY(fixture->isUsable());
    QTest::qWait(300);
    QVERIFY(fixture->author.calls().isEmpty());
}

KORVEX_TEST_MAIN(TstCPage4SaveStop)
#include "tst_cpage4_savestop.moc"
