// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "editsavefixture.h"
#include "extractpagefixture.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"
#include "widgetrecorder.h"

#include <algorithm>

namespace
{

const QString extracting = "Extracting iso...";
const QString copying = "Copy files and directories...";
const QString writing = "Saving ISO file...";
const QString success = "Save ISO file successfully!";

} // namespace

// What a save waits for, and what the progress dialog shows meanwhile.
class TstCPage4SaveProgress : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void savingRightAfterLoadingWaitsForTheExtractionThenForThePendingOperations();
    void noPendingWorkSkipsTheCopyText();
    void emptyFilesAreWaitedForToo();
    void extractionWaitShowsTheProgressOfTheExtraction();
    void copyWaitShowsWhatIsCopied();
    void writingShowsTheProgressOfTheTool();

private:
    void load(const QStringList& unpacking = {});

    std::unique_ptr<EditSaveFixture> fixture;
    QString image;
};

void TstCPage4SaveProgress::initTestCase()
{
    setApplicationLook();
}

void TstCPage4SaveProgress::init()
{
    TestCase::init();
    fixture = std::make_unique<EditSaveFixture>();
    image = fixture->path("out.iso");
}

void TstCPage4SaveProgress::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage4SaveProgress::load(const QStringList& unpacking)
{
    fixture->setArchiver(ExtractPageFixture::usualEntries(), unpacking);
    fixture->startLoading();
    QVERIFY(fixture->waitUntilListed());
}

void TstCPage4SaveProgress::
    savingRightAfterLoadingWaitsForTheExtractionThenForThePendingOperations()
{
    load({"sleep 1000"});
    const QString work = EditPageFixture::workFolder();
    HeldFolder held(fixture->path("held"), 4096);
    fixture->remove({"autorun.inf"});
    fixture->rename("readme.txt", "renamed.txt");
    fixture->add({fixture->path("held")});
    // What the archiver unpacks.
    const Trigger unpacked([this] { return fixture->archiver.calls().size() == 2; },
                           [work] {
                               writeFile(work + "/autorun.inf", "");
                               writeFile(work + "/readme.txt", "read me");
                           });
    QStringList beforeTheEnd;
    const Trigger nearTheEnd([&] { return unpacked.hasFired() && !held.isHolding(); },
                             [&] { beforeTheEnd = entriesOf(work); });
    const Trigger release([this] { return fixture->isShowing(copying); }, [&] { held.release(); });
    const WidgetRecorder recorder(fixture->progress());
    fixture->author.setScript({"sleep 60000"});
    fixture->startSaving(image);
    QVERIFY(release.hasFired());
    // Nothing is changed while it is being unpacked, everything is by the time it is written.
    QCOMPARE(beforeTheEnd, QStringList({"autorun.inf", "readme.txt"}));
    QCOMPARE(recorder.texts(), QStringList({extracting, copying, writing}));
    QCOMPARE(entriesOf(work), QStringList({"held", "renamed.txt"}));
    QCOMPARE(readFile(work + "/renamed.txt"), QByteArray("read me"));
    QCOMPARE(QFileInfo(work + "/held/rest.bin").size(), 4096);
    QVERIFY(fixture->waitForCall(1));
}

void TstCPage4SaveProgress::noPendingWorkSkipsTheCopyText()
{
    load();
    QVERIFY(fixture->waitUntilWorked());
    const WidgetRecorder recorder(fixture->progress());
    QCOMPARE(fixture->save(image), success);
    QVERIFY(recorder.texts().contains(writing));
    QVERIFY(!recorder.texts().contains(copying));
}

void TstCPage4SaveProgress::emptyFilesAreWaitedForToo()
{
    load();
    QVERIFY(fixture->waitUntilWorked());
    QStringList paths;
    for (int i = 0; i < 200; ++i) {
        paths.append(fixture->path(QString("empty %1").arg(i)));
        writeFile(paths.last(), {});
    }
    const auto held = fixture->addHeld(0);
    fixture->add(paths);
    QVERIFY(fixture->saveAnd(
        image, [this] { return fixture->isShowing(copying); }, [&held] { held->release(); }));
    QVERIFY(QFile::exists(EditPageFixture::workFolder() + "/empty 199"));
    QCOMPARE(fixture->waitForMessage(), success);
}

void TstCPage4SaveProgress::extractionWaitShowsTheProgressOfTheExtraction()
{
    load({"sleep 300", "err  7% 1 - boot/kernel\\n", "sleep 500", "err  42% 2 - readme.txt\\n",
          "sleep 500", "err  5% 2 - backwards\\n", "sleep 500", "err 900% 2 - far\\n",
          "sleep 500"});
    const WidgetRecorder recorder(fixture->progress());
    int maximum = 0;
    fixture->author.setScript({"sleep 60000"});
    QVERIFY(fixture->saveAnd(
        image, [this] { return fixture->isShowing(extracting) && fixture->progressValue() == 42; },
        [&] { maximum = fixture->progressMaximum(); }));
    QCOMPARE(maximum, 100);
    // At the end, the bar of the writing begins.
    QList<int> values = recorder.values();
    values.removeAll(0);
    QCOMPARE(values.mid(0, 3), QList<int>({7, 42, 100}));
}

void TstCPage4SaveProgress::copyWaitShowsWhatIsCopied()
{
    load();
    QVERIFY(fixture->waitUntilWorked());
    const auto held = fixture->addHeld(4 << 20);
    const WidgetRecorder recorder(fixture->progress());
    int maximum = -1;
    const Trigger pass([this] { return fixture->isShowing(copying); },
                       [&] {
                           maximum = fixture->progressMaximum();
                           held->pass(52 << 10);
                       });
    fixture->author.setScript({"sleep 60000"});
    QVERIFY(fixture->saveAnd(
        image, [this] { return fixture->isShowing(copying) && fixture->progressValue() >= 52; },
        [&] { held->release(); }));
    QCOMPARE(maximum, 4 << 10);
    QList<int> values = recorder.values();
    values.removeAll(0);
    QVERIFY(values.contains(52));
    QVERIFY(std::is_sorted(values.cbegin(), values.cend()));
    QVERIFY(debugLines().join('\n').contains("CPage3::OnCreate 4194304 "));
    QVERIFY(debugLines().contains("file copy finished!!!"));
}

void TstCPage4SaveProgress::writingShowsTheProgressOfTheTool()
{
    load();
    fixture->author.setScript({"err  0.29% done, estimate finish x\\n", "sleep 200",
                               "err  64.71% done, estimate finish x\\n", "sleep 200",
                               "err 99.99% done, estimate finish x\\n", "sleep 200"});
    QVERIFY(fixture->waitUntilWorked());
    fixture->startSaving(image);
    QVERIFY(fixture->isShowing(writing));
    QCOMPARE(fixture->progressMaximum(), 10000);
    QCOMPARE(fixture->progressValue(), 0);
    const WidgetRecorder recorder(fixture->progress());
    QCOMPARE(fixture->waitForMessage(), success);
    QCOMPARE(recorder.values(), QList<int>({29, 6471, 9999}));
}

KORVEX_TEST_MAIN(TstCPage4SaveProgress)
#include "tst_cpage4_saveprogress.moc"
