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

#include <QDeadlineTimer>

#include <algorithm>

namespace
{

const QString extracting = "Extracting iso...";
const QString copying = "Copy files and directories...";
const QString writing = "Saving ISO file...";
const QString success = "Save ISO file successfully!";

} // namespace

// What the progress dialog says at the moment when this is noted in the debug stream.
class TextAtNote
{
public:
    TextAtNote(const PageFixture& page, const QString& note)
    {
        fixture = &page;
        awaited = note;
        seen.clear();
        next = qInstallMessageHandler(look);
    }
    ~TextAtNote() { qInstallMessageHandler(next); }
    TextAtNote(const TextAtNote&) = delete;
    TextAtNote& operator=(const TextAtNote&) = delete;

    QStringList texts() const { return seen; }

private:
    static void look(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        if (message == awaited)
            seen.append(fixture->progressText());
        next(type, context, message);
    }

    static const PageFixture* fixture;
    static QString awaited;
    static QStringList seen;
    static QtMessageHandler next;
};

const PageFixture* TextAtNote::fixture = nullptr;
QString TextAtNote::awaited;
QStringList TextAtNote::seen;
QtMessageHandler TextAtNote::next = nullptr;

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
    void load();

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

void TstCPage4SaveProgress::load()
{
    fixture->setArchiver(ExtractPageFixture::usualEntries());
    fixture->startLoading();
    QVERIFY(fixture->waitUntilListed());
}

void TstCPage4SaveProgress::
    savingRightAfterLoadingWaitsForTheExtractionThenForThePendingOperations()
{
    QVERIFY(fixture->loadHalfway());
    const QString work = EditPageFixture::workFolder();
    HeldFolder held(fixture->path("held"), 4096);
    fixture->remove({"autorun.inf"});
    fixture->rename("readme.txt", "renamed.txt");
    fixture->add({fixture->path("held")});
    const Trigger unpack([this] { return fixture->isShowing(extracting); },
                         [this, work] {
                             // What the archiver unpacks.
                             writeFile(work + "/autorun.inf", "");
                             writeFile(work + "/readme.txt", "read me");
                             fixture->letUnpack();
                         });
    const Trigger release([this] { return fixture->isShowing(copying); }, [&] { held.release(); });
    const WidgetRecorder recorder(fixture->progress());
    fixture->author.setScript({"sleep 60000"});
    fixture->startSaving(image);
    QVERIFY(release.hasFired());
    QVERIFY(unpack.hasFired());
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
    // From the end of one wait to the next text no event is processed: the dialog is looked at
    // where the page notes that the copies are made.
    fixture->author.setScript({"sleep 60000"});
    const TextAtNote atNote(*fixture, "file copy finished!!!");
    fixture->startSaving(image);
    QCOMPARE(atNote.texts(), QStringList(extracting));
    QVERIFY(fixture->isShowing(writing));
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
    const ScriptedCalls& archiver = fixture->archiver;
    QVERIFY(fixture->loadHalfway({"err  7% 1 - boot/kernel\\n", archiver.holding("7"),
                                  "err  42% 2 - readme.txt\\n", archiver.holding("42"),
                                  "err  5% 2 - backwards\\n", archiver.holding("5"),
                                  "err 900% 2 - far\\n", archiver.holding("900")}));
    fixture->author.setScript({"sleep 60000"});
    const auto value = [this] { return fixture->progressValue(); };
    const auto isWaiting = [this] { return fixture->isShowing(extracting); };
    int maximum = 0;
    const Trigger at0(isWaiting, [&] {
        maximum = fixture->progressMaximum();
        fixture->letUnpack();
    });
    const Trigger at7([&] { return isWaiting() && value() == 7; }, [&] { archiver.release("7"); });
    const Trigger at42([&] { return value() == 42; }, [&] { archiver.release("42"); });
    // Until the page sets the bar again, it stays where it is put here.
    constexpr int put = 99;
    const Trigger at5([] { return debugLines().contains("m_ExtractProgress: 5"); },
                      [this] { fixture->progress()->SetValue(put); });
    int afterBackwards = 0;
    const Trigger backwards([&] { return at5.hasFired() && value() != put; },
                            [&] {
                                afterBackwards = value();
                                archiver.release("5");
                            });
    const Trigger at900([&] { return backwards.hasFired() && value() == 100; },
                        [&] { archiver.release("900"); });
    // Else a value that does not come would leave the page waiting.
    const QDeadlineTimer limit(60000);
    const Trigger giveUp([&limit] { return limit.hasExpired(); },
                         [&archiver] {
                             for (const char* const gate : {"7", "42", "5", "900"})
                                 archiver.release(gate);
                         });
    fixture->startSaving(image);
    QVERIFY(at900.hasFired());
    QCOMPARE(maximum, 100);
    QCOMPARE(afterBackwards, 42);
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
    const ScriptedCalls& author = fixture->author;
    author.setScript({"err  0.29% done, estimate finish x\\n", author.holding("29"),
                      "err  64.71% done, estimate finish x\\n", author.holding("6471"),
                      "err 99.99% done, estimate finish x\\n", author.holding("9999")});
    QVERIFY(fixture->waitUntilWorked());
    fixture->startSaving(image);
    QVERIFY(fixture->isShowing(writing));
    QCOMPARE(fixture->progressMaximum(), 10000);
    QCOMPARE(fixture->progressValue(), 0);
    for (const int value : {29, 6471, 9999}) {
        QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), value, 60000);
        author.release(QString::number(value));
    }
    QCOMPARE(fixture->waitForMessage(), success);
}

KORVEX_TEST_MAIN(TstCPage4SaveProgress)
#include "tst_cpage4_saveprogress.moc"
