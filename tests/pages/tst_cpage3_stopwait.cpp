// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "createpagefixture.h"
#include "heldfolder.h"
#include "modaldriver.h"
#include "otherlimit.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"

#include <QElapsedTimer>
#include <QRadioButton>

// Create ISO while the copying is still under way, and Stop, Create ISO again or Back in the wait.
class TstCPage3StopWait : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void stopHidesTheDialogForGoodAndTheImageIsWritten();
    void stopOverAndOverIsHarmless();
    void filesAddedAfterStopAreWaitedForToo();
    void createAgainAfterStopTheNewestWins();
    void createAgainThriceTheNewestWins();
    void createAgainAndCancelledLeavesTheFirst();
    void createAgainWithoutTypeGivesUpTheFirst();
    void backAfterStopNeverStartsTheToolAndFreesThePage();
    void backAfterStopAndTheEndOfTheCopyLeaveThePageToItsWait();
    void backAfterStopWhileTheToolRunsEndsIt();

private:
    // Adds a folder whose copying is held until held is released.
    void addHeld(qint64 bytes = 1 << 20);
    // How often the wait has looked whether all is copied.
    static int looksAtQueue();
    // Presses Create, and Stop as soon as the wait shows; returns at the end of the wait, which
    // afterStop has to bring about.
    void createAndStop(const std::function<void()>& afterStop);

    std::unique_ptr<CreatePageFixture> fixture;
    std::unique_ptr<HeldFolder> held;
    QString image;
    // A stop is noticed at once, and a tool that does not heed it is not waited for.
    const OtherLimit quickSteps{toolLimits().stepMs, 10};
    const OtherLimit littlePatience{toolLimits().politeStopMs, 50};
};

void TstCPage3StopWait::initTestCase()
{
    setApplicationLook();
}

void TstCPage3StopWait::init()
{
    TestCase::init();
    fixture = std::make_unique<CreatePageFixture>();
    QVERIFY(fixture->waitUntilStaged());
    image = fixture->path("out.iso");
}

void TstCPage3StopWait::cleanup()
{
    held.reset();
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage3StopWait::addHeld(qint64 bytes)
{
    held = fixture->addHeld(bytes);
}

int TstCPage3StopWait::looksAtQueue()
{
    return debugLines().filter("CPage3::OnCreate ").size();
}

void TstCPage3StopWait::createAndStop(const std::function<void()>& afterStop)
{
    const Trigger trigger([this] { return fixture->progress()->isVisible(); },
                          [this, afterStop] {
                              fixture->pressStop();
                              afterStop();
                          });
    fixture->startCreating(image);
    QVERIFY(trigger.hasFired());
}

void TstCPage3StopWait::stopHidesTheDialogForGoodAndTheImageIsWritten()
{
    fixture->tool.setScript(
        {"err 50.00% done, estimate finish x\\n", fixture->tool.holding("tool")});
    addHeld();
    int looksAtStop = -1;
    // The wait goes on: it looks at the queue again.
    const Trigger release([&] { return looksAtStop >= 0 && looksAtQueue() > looksAtStop + 1; },
                          [this] {
                              QVERIFY(!fixture->progress()->isVisible());
                              QVERIFY(fixture->tool.calls().isEmpty());
                              held->release();
                          });
    createAndStop([&] {
        QVERIFY(!fixture->progress()->isVisible());
        looksAtStop = looksAtQueue();
    });
    QVERIFY(release.hasFired());
    QVERIFY(fixture->tool.isHeld("tool"));
    QVERIFY(!fixture->progress()->isVisible());
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 5000, patienceMs);
    QVERIFY(!fixture->progress()->isVisible());
    fixture->tool.release("tool");
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QVERIFY(fixture->isUsable());
}

void TstCPage3StopWait::stopOverAndOverIsHarmless()
{
    addHeld();
    createAndStop([this] {
        for (int press = 0; press < 20; ++press)
            QVERIFY(QMetaObject::invokeMethod(fixture->progress(), "OnBtnCancel"));
        held->release();
    });
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QCOMPARE(fixture->tool.calls().size(), 1);
}

void TstCPage3StopWait::filesAddedAfterStopAreWaitedForToo()
{
    addHeld();
    writeFile(fixture->path("late.txt"), "late");
    // The list itself rather than a dialog, which the driver of the save dialog would answer.
    createAndStop([this] {
        fixture->page->stagingQueue().AddTask(
            fixture->path("late.txt"), fixture->stagingFolder() + "/late.txt", CFileCopy::Copy);
        held->release();
    });
    QCOMPARE(readFile(fixture->stagingFolder() + "/late.txt"), QByteArray("late"));
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
}

void TstCPage3StopWait::createAgainAfterStopTheNewestWins()
{
    fixture->tool.setScript({fixture->tool.holding("tool")});
    addHeld();
    {
        ModalDriver driver;
        driver.typePath(image);
        driver.typePath(fixture->path("newer.iso"));
        const Trigger release(
            [&driver, this] { return driver.done() && fixture->progress()->isVisible(); },
            [this] { held->release(); });
        const Trigger again([this] { return fixture->progress()->isVisible(); },
                            [this] {
                                fixture->pressStop();
                                fixture->press("create");
                            });
        fixture->page->OnCreate();
        QVERIFY(release.hasFired());
    }
    QVERIFY(fixture->tool.isHeld("tool"));
    fixture->tool.release("tool");
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QVERIFY(PageFixture::waitUntilToolsGone());
    QCOMPARE(fixture->tool.calls().size(), 1);
    QCOMPARE(fixture->tool.calls().first().at(4), fixture->path("newer.iso"));
    QVERIFY(fixture->isUsable());
}

void TstCPage3StopWait::createAgainThriceTheNewestWins()
{
    fixture->tool.setScript({fixture->tool.holding("tool")});
    addHeld();
    {
        ModalDriver driver;
        for (int i = 0; i < 4; ++i)
            driver.typePath(fixture->path(QString("%1.iso").arg(i)));
        // Whether the wait shows that this press of Create ISO has led to.
        const auto isWait = [this, &driver](int press) {
            return fixture->progress()->isVisible() && driver.texts().size() == press;
        };
        const auto stopAndCreate = [this] {
            fixture->pressStop();
            fixture->press("create");
        };
        // Each from within the wait of the one before it.
        const Trigger second([&] { return isWait(1); }, stopAndCreate);
        const Trigger third([&] { return isWait(2); }, stopAndCreate);
        const Trigger fourth([&] { return isWait(3); }, stopAndCreate);
        const Trigger release([&] { return isWait(4); }, [this] { held->release(); });
        fixture->page->OnCreate();
        QVERIFY(driver.done());
        QVERIFY(release.hasFired());
    }
    QVERIFY(fixture->tool.isHeld("tool"));
    fixture->tool.release("tool");
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QVERIFY(PageFixture::waitUntilToolsGone());
    QCOMPARE(fixture->tool.calls().size(), 1);
    QCOMPARE(fixture->tool.calls().first().at(4), fixture->path("3.iso"));
}

void TstCPage3StopWait::createAgainAndCancelledLeavesTheFirst()
{
    fixture->tool.setScript({fixture->tool.holding("tool")});
    addHeld();
    {
        ModalDriver driver;
        driver.typePath(image);
        driver.key("QFileDialog", Qt::Key_Escape);
        const Trigger again([this] { return fixture->progress()->isVisible(); },
                            [this] {
                                fixture->pressStop();
                                fixture->press("create");
                                held->release();
                            });
        fixture->page->OnCreate();
        QVERIFY(driver.done());
    }
    QVERIFY(fixture->tool.isHeld("tool"));
    QCOMPARE(fixture->tool.calls().first().at(4), image);
    fixture->tool.release("tool");
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
}

void TstCPage3StopWait::createAgainWithoutTypeGivesUpTheFirst()
{
    addHeld();
    ModalDriver driver;
    driver.typePath(image);
    driver.typePath(fixture->path("newer.iso"));
    driver.press("CommDialog", "btnok");
    const Trigger release(
        [&driver, this] { return driver.texts().size() == 2 && fixture->progress()->isVisible(); },
        [this] {
            for (QRadioButton* const type : fixture->page->findChildren<QRadioButton*>()) {
                type->setAutoExclusive(false);
                type->setChecked(false);
            }
            held->release();
        });
    const Trigger again([this] { return fixture->progress()->isVisible(); },
                        [this] {
                            fixture->pressStop();
                            fixture->press("create");
                        });
    fixture->page->OnCreate();
    QCOMPARE(driver.texts().last(), QString("Please select one type"));
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(fixture->tool.calls().isEmpty());
    fixture->pressStop();
    QVERIFY(fixture->isUsable());
}

void TstCPage3StopWait::backAfterStopNeverStartsTheToolAndFreesThePage()
{
    addHeld();
    createAndStop([this] {
        fixture->press("back");
        QVERIFY(!fixture->page->isVisible());
    });
    // The wait has ended although the copy has not.
    QVERIFY(held->isHolding());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(fixture->page, "freed before its copy has ended");
    held->release();
    QVERIFY(QTest::qWaitFor([this] { return !fixture->page; }, patienceMs));
    QVERIFY(!fixture->progress());
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(fixture->tool.calls().isEmpty());
    QVERIFY(!QApplication::activeModalWidget());
}

void TstCPage3StopWait::backAfterStopAndTheEndOfTheCopyLeaveThePageToItsWait()
{
    addHeld();
    bool isWaiting = true;
    bool isFreedInTheWait = false;
    connect(fixture->page, &QObject::destroyed, [&] { isFreedInTheWait = isWaiting; });
    createAndStop([this] {
        fixture->press("back");
        held->release();
    });
    isWaiting = false;
    QVERIFY(!isFreedInTheWait);
    QVERIFY(QTest::qWaitFor([this] { return !fixture->page; }, patienceMs));
    QVERIFY(fixture->tool.calls().isEmpty());
}

void TstCPage3StopWait::backAfterStopWhileTheToolRunsEndsIt()
{
    fixture->tool.setScript({"sleep 600000"});
    addHeld();
    createAndStop([this] { held->release(); });
    QVERIFY(fixture->waitForCall(1));
    QVERIFY(!fixture->progress()->isVisible());
    fixture->press("back");
    QVERIFY(QTest::qWaitFor([this] { return !fixture->page; }, patienceMs));
    QVERIFY(QTest::qWaitFor([] { return CreatePageFixture::isToolGone(); }, patienceMs));
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(!QApplication::activeModalWidget());
}

KORVEX_TEST_MAIN(TstCPage3StopWait)
#include "tst_cpage3_stopwait.moc"
