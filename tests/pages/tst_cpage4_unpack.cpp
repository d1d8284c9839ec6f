// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "editcontentfixture.h"
#include "heldfolder.h"
#include "modaldriver.h"
#include "otherlimit.h"
#include "processcounts.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QApplication>
#include <QLineEdit>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

// Unpacking an image in the background on the Edit page, and what is held back meanwhile.
class TstCPage4Unpack : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void operationsAreCarriedOutAfterwardsInOrder();
    void operationsAreHeldBackMeanwhile();
    void operationsAfterwardsGoToTheQueueAtOnce();
    void secondLoadEndsTheFirstUnpackingAndDropsWhatWasHeldBack();
    void lateSignalsOfAnEndedUnpackingAreIgnored();
    void progressLinesAreRead_data();
    void progressLinesAreRead();
    void progressOfTheToolIsRead_data();
    void progressOfTheToolIsRead();
    void debugLinesTellTheEnd();
    void workFolderIsEmptyBeforeUnpackingBegins();
    void longCopyIsFinishedBeforeUnpackingBegins();
    void archiverOfAnotherPageIsWaitedFor();
    void failedUnpackingEndsLikeAnother_data();
    void failedUnpackingEndsLikeAnother();
    void nextLoadHelpsAgainstAnUnpackingThatHangs();
    void pageClosedWhileUnpackingIsFreedAndEndsTheTool();
    void busyCursorIsTakenBackOnce();
    void manyLoadsInARow();

private:
    QStringList progressLines() const;

    std::unique_ptr<EditContentFixture> fixture;
    // A stop is noticed at once, and a tool that does not heed it is not waited for.
    const OtherLimit quickSteps{toolLimits().stepMs, 10};
    const OtherLimit littlePatience{toolLimits().politeStopMs, 50};
};

void TstCPage4Unpack::initTestCase()
{
    setApplicationLook();
}

void TstCPage4Unpack::init()
{
    TestCase::init();
    fixture = std::make_unique<EditContentFixture>();
}

void TstCPage4Unpack::cleanup()
{
    fixture.reset();
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
    TestCase::cleanup();
}

QStringList TstCPage4Unpack::progressLines() const
{
    return debugLines().filter("m_ExtractProgress:");
}

void TstCPage4Unpack::operationsAreCarriedOutAfterwardsInOrder()
{
    QVERIFY(fixture->openHalfway());
    const QString work = fixture->workFolder();
    fixture->page->AddFileOpTasks(work + "/readme.txt", work + "/1", 2);
    fixture->page->AddFileOpTasks(work + "/1", work + "/2", 2);
    fixture->page->AddFileOpTasks(work + "/2", work + "/3", 0);
    fixture->page->AddFileOpTasks(work + "/2", QString(), 1);
    QVERIFY(fixture->openGate());
    QVERIFY(fixture->waitUntilWorked());
    QCOMPARE(entriesOf(work), QStringList({"3", "autorun.inf", "boot", "docs"}));
    QCOMPARE(readFile(work + "/3"), QByteArray("readme.txt"));
}

// The emptying of the work folder, with which a load begins, goes to the queue all the same: what
// the queue had been given before would have been carried out when that is.
void TstCPage4Unpack::operationsAreHeldBackMeanwhile()
{
    QVERIFY(fixture->openHalfway());
    const QString copied = fixture->path("copied");
    fixture->page->AddFileOpTasks(fixture->makeFile("file"), copied, 0);
    bool isEmptied = false;
    ModalDriver driver(90000);
    driver.run("QFileDialog", [&](QWidget* dialog) {
        isEmptied =
            QTest::qWaitFor([this] { return entriesOf(fixture->workFolder()).isEmpty(); }, 60000);
        dialog->close();
    });
    fixture->page->OnLoadISO();
    QVERIFY(isEmptied);
    QVERIFY(!QFile::exists(copied));
    QVERIFY(fixture->openGate());
    QVERIFY(fixture->waitUntilWorked());
    QVERIFY(QFile::exists(copied));
}

void TstCPage4Unpack::operationsAfterwardsGoToTheQueueAtOnce()
{
    QVERIFY(fixture->open());
    fixture->page->AddFileOpTasks(fixture->workFolder() + "/readme.txt", QString(), 1);
    QVERIFY(QTest::qWaitFor(
        [] { return !QFile::exists(EditPageFixture::workFolder() + "/readme.txt"); }, 60000));
}

void TstCPage4Unpack::secondLoadEndsTheFirstUnpackingAndDropsWhatWasHeldBack()
{
    QVERIFY(fixture->openHalfway());
    fixture->add({fixture->makeFile("song.mp3")});
    fixture->remove({"boot"});
    QCOMPARE(processesOf("scriptedtool").size(), 1);
    fixture->setImage({"boot/", "other.txt"});
    fixture->startLoading("other.iso");
    QVERIFY(fixture->waitUntilListed());
    QVERIFY(fixture->waitUntilWorked());
    QVERIFY(processesOf("scriptedtool").isEmpty());
    QCOMPARE(debugLines().filter("CPage4::OnExtractFinished() is called!!").size(), 1);
    EditContentFixture::unpack({"boot/", "other.txt"});
    fixture->add({fixture->makeFile("tune.mp3")}); // would carry out what is still held back
    QCOMPARE(fixture->shownNames(), QStringList({"boot", "other.txt", "tune.mp3"}));
    QCOMPARE(fixture->disagreement(), QString());
}

// They are sent between the choice of the second image and the end of the first one's archiver.
void TstCPage4Unpack::lateSignalsOfAnEndedUnpackingAreIgnored()
{
    const ScriptedCalls& archiver = fixture->archiver;
    fixture->setImage({"a"}, {archiver.holding("old"), "err  77% 1 - old\\n"});
    fixture->startLoading();
    QVERIFY(fixture->waitUntilListed());
    QVERIFY(archiver.isHeld("old"));
    fixture->setImage({"b"}, {fixture->gate()});
    bool isSent = false;
    const QString image = fixture->makeFile("other.iso");
    ModalDriver driver(90000);
    driver.run("QFileDialog", [&](QWidget* dialog) {
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(image);
        connect(static_cast<QDialog*>(dialog), &QDialog::finished, dialog, [&archiver, &isSent] {
            archiver.release("old");
            isSent = PageFixture::waitUntilAllIsSent();
        });
        QMetaObject::invokeMethod(dialog, "accept");
    });
    fixture->page->OnLoadISO();
    QVERIFY(isSent);
    QVERIFY(fixture->waitUntilListed());
    QVERIFY(archiver.isHeld("gate"));
    QCOMPARE(progressLines(), QStringList());
    QVERIFY(!debugLines().contains("CPage4::OnExtractFinished() is called!!"));
    QVERIFY(fixture->page->isWorking());
    QVERIFY(fixture->openGate());
    QVERIFY(fixture->waitUntilWorked());
}

void TstCPage4Unpack::progressLinesAreRead_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("told");
    QTest::newRow("number") << "42% 7 - boot/kernel"
                            << "m_ExtractProgress: 42";
    QTest::newRow("blanks around it") << "  42  % 7"
                                      << "m_ExtractProgress: 42";
    QTest::newRow("first mark counts") << "42% 43% "
                                       << "m_ExtractProgress: 42";
    QTest::newRow("no number") << "about half% "
                               << "m_ExtractProgress: 0";
    QTest::newRow("mark at the begin") << "% 42% "
                                       << "";
    QTest::newRow("no blank behind") << "42%"
                                     << "";
    QTest::newRow("blank before the mark") << " % "
                                           << "m_ExtractProgress: 0";
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("name") << "- boot/kernel"
                          << "";
}

void TstCPage4Unpack::progressLinesAreRead()
{
    QFETCH(QString, line);
    fixture->page->OnExtractOutput(line);
    QTEST(progressLines().join('|'), "told");
}

void TstCPage4Unpack::progressOfTheToolIsRead_data()
{
    QTest::addColumn<QString>("script");
    QTest::newRow("lines") << "err  10% 1 - a\\n 42% 7 - b\\n";
    QTest::newRow("backspaces") << "err  10% 1 - a\\b\\b\\b\\b\\b\\b\\b\\b\\b\\b          "
                                   "\\b\\b\\b\\b\\b\\b\\b\\b\\b\\b 42% 7 - b";
    QTest::newRow("carriage returns") << "err  10% 1 - a\\r 42% 7 - b\\r";
}

void TstCPage4Unpack::progressOfTheToolIsRead()
{
    QFETCH(QString, script);
    fixture->setImage({"a"}, {script});
    QVERIFY(fixture->load());
    QVERIFY(!progressLines().isEmpty());
    QCOMPARE(progressLines().last(), QString("m_ExtractProgress: 42"));
}

void TstCPage4Unpack::debugLinesTellTheEnd()
{
    QVERIFY(fixture->open());
    QVERIFY(debugLines().contains("CPage4::OnExtractFinished() is called!!"));
    QVERIFY(debugLines().contains("CPage4::InitializeUI() is called!!"));
}

void TstCPage4Unpack::workFolderIsEmptyBeforeUnpackingBegins()
{
    QVERIFY(fixture->open());
    QVERIFY(!entriesOf(fixture->workFolder()).isEmpty());
    fixture->setImage({"other.txt"}, {fixture->gate()});
    fixture->startLoading("other.iso");
    QVERIFY(fixture->archiver.isHeld("gate"));
    QVERIFY(entriesOf(fixture->workFolder()).isEmpty());
}

void TstCPage4Unpack::longCopyIsFinishedBeforeUnpackingBegins()
{
    QVERIFY(fixture->open());
    HeldFolder held(fixture->path("held"), 1000);
    fixture->add({fixture->path("held"), fixture->makeFile("small")});
    QVERIFY(QTest::qWaitFor([&held] { return held.isHolding(); }, 60000));
    fixture->setImage({"other.txt"}, {fixture->gate()});
    fixture->startLoading("other.iso");
    QVERIFY(fixture->waitUntilListed());
    QVERIFY(PageFixture::waitUntilToolsGone());
    // The page looks every few milliseconds whether it may unpack.
    QVERIFY(QMetaObject::invokeMethod(fixture->page, "unpackWhenClean", Qt::DirectConnection));
    QVERIFY(areRunnersGone());
    held.release();
    QVERIFY(fixture->archiver.isHeld("gate"));
    QVERIFY(entriesOf(fixture->workFolder()).isEmpty());
    QVERIFY(fixture->openGate());
    QVERIFY(fixture->waitUntilListed());
    EditContentFixture::unpack({"other.txt"});
    QCOMPARE(fixture->disagreement(), QString());
}

// It may be one of another start of the program.
void TstCPage4Unpack::archiverOfAnotherPageIsWaitedFor()
{
    const int lock = ::open(QFile::encodeName(Util::GetTempDir() + "/tmp.lock"),
                            O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    QVERIFY(lock >= 0 && ::flock(lock, LOCK_EX) == 0);
    fixture->setImage({"a"});
    fixture->startLoading();
    QVERIFY(fixture->waitUntilListed());
    QVERIFY(PageFixture::waitUntilToolsGone());
    writeFile(fixture->workFolder() + "/of the other's image", "");
    // The page looks every few milliseconds whether it may unpack.
    QVERIFY(QMetaObject::invokeMethod(fixture->page, "unpackWhenClean", Qt::DirectConnection));
    QVERIFY(areRunnersGone());
    QCOMPARE(fixture->archiver.calls().size(), 1);
    ::close(lock);
    QVERIFY(fixture->waitUntilWorked());
    QCOMPARE(fixture->archiver.calls().size(), 2);
    QCOMPARE(entriesOf(fixture->workFolder()), QStringList());
}

void TstCPage4Unpack::failedUnpackingEndsLikeAnother_data()
{
    QTest::addColumn<QStringList>("script");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("failure") << QStringList({"err ERROR: image.iso\\n", "exit 2"});
    QTest::newRow("crash") << QStringList("crash");
    QTest::newRow("flood") << QStringList("flood 1");
}

void TstCPage4Unpack::failedUnpackingEndsLikeAnother()
{
    QFETCH(QStringList, script);
    fixture->setImage(EditContentFixture::usualEntries(), script);
    fixture->startLoading();
    QVERIFY(fixture->waitUntilListed());
    fixture->add({fixture->makeFile("song.mp3")});
    QVERIFY(fixture->waitUntilWorked());
    QCOMPARE(entriesOf(fixture->workFolder()), QStringList("song.mp3"));
    QCOMPARE(debugLines().filter("CPage4::OnExtractFinished() is called!!").size(), 1);
}

void TstCPage4Unpack::nextLoadHelpsAgainstAnUnpackingThatHangs()
{
    fixture->setImage({"a"}, {"ignore-term", fixture->archiver.holding("deaf")});
    fixture->startLoading();
    QVERIFY(fixture->waitUntilListed());
    QVERIFY(fixture->archiver.isHeld("deaf"));
    fixture->setImage({"b"});
    fixture->startLoading();
    QVERIFY(fixture->waitUntilListed());
    QVERIFY(fixture->waitUntilWorked());
    QCOMPARE(fixture->shownNames(), QStringList("b"));
    QVERIFY(PageFixture::waitUntilToolsGone());
}

void TstCPage4Unpack::pageClosedWhileUnpackingIsFreedAndEndsTheTool()
{
    QVERIFY(fixture->openHalfway());
    fixture->remove({"boot"});
    fixture->page->close();
    QVERIFY(processesOf("scriptedtool").isEmpty());
    QVERIFY(!QApplication::overrideCursor());
    QVERIFY(QTest::qWaitFor([this] { return fixture->page.isNull(); }, 60000));
    QVERIFY(QFile::exists(fixture->workFolder() + "/boot/kernel"));
}

void TstCPage4Unpack::busyCursorIsTakenBackOnce()
{
    // Somebody else's, below it.
    QApplication::setOverrideCursor(Qt::CrossCursor);
    fixture->archiver.setScript({"sleep 60000"});
    fixture->startLoading();
    fixture->setImage({"a"});
    fixture->startLoading();
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QVERIFY(fixture->waitUntilListed());
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::CrossCursor);
    fixture->page->close();
    QVERIFY(QApplication::overrideCursor());
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::CrossCursor);
}

void TstCPage4Unpack::manyLoadsInARow()
{
    fixture->setImage(EditContentFixture::usualEntries());
    for (int i = 0; i < 10; ++i)
        fixture->startLoading();
    QVERIFY(fixture->waitUntilListed());
    QVERIFY(fixture->waitUntilWorked());
    EditContentFixture::unpack(EditContentFixture::usualEntries());
    QCOMPARE(fixture->disagreement(), QString());
    QVERIFY(!QApplication::overrideCursor());
    QVERIFY(PageFixture::waitUntilToolsGone());
}

KORVEX_TEST_MAIN(TstCPage4Unpack)
#include "tst_cpage4_unpack.moc"
