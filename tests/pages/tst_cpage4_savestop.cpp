// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "editsavefixture.h"
#include "extractpagefixture.h"
#include "modaldriver.h"
#include "otherlimit.h"
#include "processcounts.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"

namespace
{

constexpr int stops = 12; // a third of them in each phase
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
    void manyStopsInARow();
    void saveAgainInTheExtractionWaitTheNewestWins();
    void saveAgainInTheCopyWaitTheNewestWins();
    void saveAgainAndCancelledLeavesTheStoppedOneStopped();

private:
    void load();
    // A save that ends in the phase of this text, by Stop. letGo ends what the phase waits for.
    void saveAndStop(const QString& text, const std::function<void()>& letGo);
    // How many turns the copy wait has made.
    static int copyTurns() { return debugLines().filter("CPage3::OnCreate ").size(); }
    // Stop in the phase of this text, and a second save in it, which is the one that is carried
    // out.
    void saveTwice(const QString& text, const std::function<void()>& onSecond);

    std::unique_ptr<EditSaveFixture> fixture;
    QString image;
    // A stop is noticed at once, and a tool that does not heed it is not waited for.
    const OtherLimit quickSteps{toolLimits().stepMs, 10};
    const OtherLimit littlePatience{toolLimits().politeStopMs, 50};
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

void TstCPage4SaveStop::load()
{
    fixture->setArchiver(ExtractPageFixture::usualEntries());
    fixture->startLoading();
    QVERIFY(fixture->waitUntilListed());
}

void TstCPage4SaveStop::saveAndStop(const QString& text, const std::function<void()>& letGo)
{
    QVERIFY(fixture->saveAnd(
        image, [this, text] { return fixture->isShowing(text); },
        [this, letGo] {
            fixture->pressStop();
            letGo();
        }));
}

void TstCPage4SaveStop::stopInTheExtractionWaitDoesNotShortenItAndTheSaveStopsThen()
{
    QVERIFY(fixture->loadHalfway({"err  77% 2 - late\\n"}));
    bool isHiddenAtStop = false;
    connect(fixture->progress(), &CProgressDialog::SigCancel, this,
            [&] { isHiddenAtStop = !fixture->progress()->isVisible(); });
    // Until the page sets the bar again, in the next turn of its wait, it stays where it is put
    // here.
    constexpr int put = 99;
    bool isPut = false;
    const Trigger stop([this] { return fixture->isShowing(extracting); },
                       [this, &isPut] {
                           fixture->pressStop();
                           fixture->progress()->SetValue(put);
                           isPut = true;
                       });
    bool isHiddenInTheNextTurn = false;
    const Trigger nextTurn([&] { return isPut && fixture->progressValue() != put; },
                           [&] {
                               isHiddenInTheNextTurn = !fixture->progress()->isVisible();
                               fixture->letUnpack();
                           });
    fixture->startSaving(image);
    // The save has returned: the extraction is over and was not cut off.
    QVERIFY(nextTurn.hasFired());
    QVERIFY(isHiddenAtStop);
    QVERIFY(isHiddenInTheNextTurn);
    QVERIFY(debugLines().contains("m_ExtractProgress: 77"));
    QVERIFY(debugLines().contains("CPage4::OnExtractFinished() is called!!"));
    QVERIFY(!debugLines().contains("Extract finished!!!"));
    QVERIFY(fixture->isUsable());
    QVERIFY(fixture->author.calls().isEmpty());
    QCOMPARE(fixture->save(image), success);
}

void TstCPage4SaveStop::editsBeforeAStopInTheExtractionWaitAreMade()
{
    QVERIFY(fixture->loadHalfway());
    writeFile(fixture->path("new.txt"), "new");
    fixture->add({fixture->path("new.txt")});
    saveAndStop(extracting, [this] { fixture->letUnpack(); });
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
    QVERIFY(PageFixture::waitUntilToolsGone());
    constexpr int put = 99;
    bool isPut = false;
    const Trigger stop([this] { return fixture->isShowing(extracting); },
                       [this, &isPut] {
                           fixture->pressStop();
                           fixture->progress()->SetValue(put);
                           isPut = true;
                       });
    // In a turn of the wait, the page has looked many times whether it may unpack.
    const Trigger nextTurn([&] { return isPut && fixture->progressValue() != put; },
                           [&] {
                               // Nothing is unpacked beside a copy of the image before.
                               QCOMPARE(runnerThreadCount(), 0);
                               held->release();
                           });
    fixture->startSaving(image);
    QVERIFY(nextTurn.hasFired());
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

void TstCPage4SaveStop::manyStopsInARow()
{
    fixture->author.setScript({"sleep 60000"});
    int descriptors = 0;
    for (int run = 0; run < stops; ++run) {
        const QString gate = QString::number(run);
        fixture->setArchiver(ExtractPageFixture::usualEntries(),
                             {run % 3 == 0 ? fixture->archiver.holding(gate) : QString()});
        fixture->startLoading();
        QVERIFY(fixture->waitUntilListed());
        if (run % 3 != 0)
            QVERIFY(fixture->waitUntilWorked());
        if (run % 3 == 1) {
            QDir(fixture->path("held")).removeRecursively();
            QFile::remove(fixture->path("held.pipe"));
            const auto held = fixture->addHeld(0);
            saveAndStop(copying, [&held] { held->release(); });
        } else if (run % 3 == 0) {
            saveAndStop(extracting, [&] { fixture->archiver.release(gate); });
        } else {
            fixture->startSaving(image);
            QVERIFY(fixture->isShowing(writing));
            fixture->pressStop();
        }
        QVERIFY(fixture->isUsable());
        QVERIFY(PageFixture::waitUntilToolsGone());
        if (run == 5)
            descriptors = descriptorCount();
    }
    QVERIFY(QTest::qWaitFor([&] { return descriptorCount() <= descriptors; }, 60000));
    QVERIFY(fixture->author.calls().size() <= stops / 3);
    fixture->author.setScript({});
    QCOMPARE(fixture->save(image), success);
}

void TstCPage4SaveStop::saveTwice(const QString& text, const std::function<void()>& onSecond)
{
    fixture->author.setScript({fixture->author.holding("writing")});
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
    fixture->author.release("writing");
    QCOMPARE(fixture->waitForMessage(), success);
    QVERIFY(PageFixture::waitUntilToolsGone());
    QCOMPARE(fixture->author.calls().size(), 1);
    QCOMPARE(fixture->author.calls().first().at(3), fixture->path("newer.iso"));
    QVERIFY(fixture->isUsable());
}

void TstCPage4SaveStop::saveAgainInTheExtractionWaitTheNewestWins()
{
    QVERIFY(fixture->loadHalfway());
    saveTwice(extracting, [this] { fixture->letUnpack(); });
}

// It waits for the copy that is still in progress, which would come out half otherwise.
void TstCPage4SaveStop::saveAgainInTheCopyWaitTheNewestWins()
{
    load();
    QVERIFY(fixture->waitUntilWorked());
    const auto held = fixture->addHeld(1000);
    int turns = -1;
    const Trigger twoTurnsLater([&turns] { return turns >= 0 && copyTurns() >= turns + 2; },
                                [&held] {
                                    QCOMPARE(runnerThreadCount(), 0);
                                    held->release();
                                });
    saveTwice(copying, [&turns] { turns = copyTurns(); });
    QVERIFY(twoTurnsLater.hasFired());
    QCOMPARE(QFileInfo(EditPageFixture::workFolder() + "/held/rest.bin").size(), 1000);
}

void TstCPage4SaveStop::saveAgainAndCancelledLeavesTheStoppedOneStopped()
{
    QVERIFY(fixture->loadHalfway());
    ModalDriver driver;
    driver.typePath(image);
    driver.key("QFileDialog", Qt::Key_Escape);
    const Trigger again([this] { return fixture->isShowing(extracting); },
                        [this] {
                            fixture->pressStop();
                            fixture->press("save");
                            fixture->letUnpack();
                        });
    fixture->page->OnSave();
    QVERIFY(driver.done());
    QVERIFY(fixture->isUsable());
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(fixture->author.calls().isEmpty());
}

KORVEX_TEST_MAIN(TstCPage4SaveStop)
#include "tst_cpage4_savestop.moc"
