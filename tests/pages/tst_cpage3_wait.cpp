// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "createpagefixture.h"
#include "heldfolder.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"
#include "widgetrecorder.h"

#include <algorithm>
#include <vector>

namespace
{

const QString waitText = "Copy files and folders...";
const QString toolText = "Creating ISO file...";

} // namespace

// Create ISO while the copying is still under way: the wait.
class TstCPage3Wait : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void waitShowsItsTextAndRange();
    void barFollowsTheCopyingAndNeverFallsBack();
    void toolStartsWhenAllIsCopied();
    void emptyFilesAreWaitedFor();
    void pollIsLogged();
    void windowStaysAliveWhileAClosedPageEndsItsCopy();

private:
    // How often the wait has looked whether all is copied.
    static int looksAtQueue();
    // Adds a folder whose copying is held until held is released.
    void addHeld(qint64 bytes = 1 << 20);

    std::unique_ptr<CreatePageFixture> fixture;
    std::unique_ptr<HeldFolder> held;
    QString image;
};

void TstCPage3Wait::initTestCase()
{
    setApplicationLook();
}

void TstCPage3Wait::init()
{
    TestCase::init();
    fixture = std::make_unique<CreatePageFixture>();
    QVERIFY(fixture->waitUntilStaged());
    image = fixture->path("out.iso");
}

void TstCPage3Wait::cleanup()
{
    held.reset();
    fixture.reset();
    TestCase::cleanup();
}

int TstCPage3Wait::looksAtQueue()
{
    return debugLines().filter("CPage3::OnCreate ").size();
}

void TstCPage3Wait::addHeld(qint64 bytes)
{
    held = fixture->addHeld(bytes);
}

void TstCPage3Wait::waitShowsItsTextAndRange()
{
    addHeld(3 << 20);
    QString text;
    int maximum = 0;
    int value = -1;
    const Trigger trigger([] { return looksAtQueue() >= 2; },
                          [&] {
                              text = fixture->progressText();
                              maximum = fixture->progressMaximum();
                              value = fixture->progressValue();
                              QVERIFY(fixture->tool.calls().isEmpty());
                              held->release();
                          });
    fixture->startCreating(image);
    QCOMPARE(text, waitText);
    QCOMPARE(maximum, 3 << 10);
    QCOMPARE(value, 0);
    QCOMPARE(fixture->progressText(), toolText);
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
}

void TstCPage3Wait::barFollowsTheCopyingAndNeverFallsBack()
{
    addHeld(4 << 20);
    const WidgetRecorder recorder(fixture->progress());
    // Half a megabyte more whenever the bar has come to where the last one took it.
    std::vector<std::unique_ptr<Trigger>> steps;
    for (int step = 0; step < 5; ++step) {
        steps.push_back(std::make_unique<Trigger>(
            [this, step] {
                return fixture->progressText() == waitText &&
                       fixture->progressValue() == step * 512;
            },
            [this, step] { step < 4 ? held->pass(512 << 10) : held->release(); }));
    }
    fixture->startCreating(image);
    QVERIFY(steps.back()->hasFired());
    // Up to the first value of the tool's run, which is 0 again.
    QList<int> waiting = recorder.values();
    while (!waiting.isEmpty() && waiting.last() == 0)
        waiting.removeLast();
    QVERIFY(waiting.size() >= 4);
    QVERIFY(std::is_sorted(waiting.begin(), waiting.end()));
    QVERIFY(waiting.last() <= 4 << 10);
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
}

void TstCPage3Wait::toolStartsWhenAllIsCopied()
{
    addHeld();
    writeFile(fixture->path("last.txt"), "last");
    fixture->addFiles({fixture->path("last.txt")});
    const Trigger trigger([] { return looksAtQueue() >= 2; },
                          [this] {
                              QVERIFY(fixture->tool.calls().isEmpty());
                              held->release();
                          });
    fixture->startCreating(image);
    QVERIFY(!fixture->page->stagingQueue().HasTasks());
    QCOMPARE(readFile(fixture->stagingFolder() + "/last.txt"), QByteArray("last"));
    QCOMPARE(QFileInfo(fixture->stagingFolder() + "/held/rest.bin").size(), qint64(1 << 20));
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QCOMPARE(fixture->tool.calls().size(), 1);
}

// They have no bytes left to be copied, yet they would be missing in the image.
void TstCPage3Wait::emptyFilesAreWaitedFor()
{
    addHeld(0);
    QStringList files;
    for (int i = 0; i < 20; ++i) {
        files.append(fixture->path(QString("empty %1").arg(i)));
        writeFile(files.last(), {});
    }
    fixture->addFiles(files);
    QString text;
    const Trigger trigger([] { return looksAtQueue() >= 2; },
                          [&] {
                              text = fixture->progressText();
                              QVERIFY(fixture->tool.calls().isEmpty());
                              held->release();
                          });
    fixture->startCreating(image);
    QCOMPARE(text, waitText);
    QCOMPARE(entriesOf(fixture->stagingFolder()).size(), 21);
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
}

void TstCPage3Wait::pollIsLogged()
{
    addHeld();
    const Trigger trigger([] { return looksAtQueue() >= 2; }, [this] { held->release(); });
    fixture->startCreating(image);
    QVERIFY(debugLines().contains("1048576"));
    QVERIFY(debugLines().contains("CPage3::OnCreate 1048576 1048576"));
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
}

void TstCPage3Wait::windowStaysAliveWhileAClosedPageEndsItsCopy()
{
    addHeld();
    fixture->press("back");
    QVERIFY(!fixture->page->isVisible());
    // Back has returned, and nothing that is due already frees the page.
    QVERIFY(held->isHolding());
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(fixture->page);
    held->release();
    QVERIFY(QTest::qWaitFor([this] { return !fixture->page; }, patienceMs));
    // The copy in progress was finished.
    QCOMPARE(QFileInfo(CreatePageFixture::stagingFolder() + "/held/rest.bin").size(),
             qint64(1 << 20));
}

KORVEX_TEST_MAIN(TstCPage3Wait)
#include "tst_cpage3_wait.moc"
