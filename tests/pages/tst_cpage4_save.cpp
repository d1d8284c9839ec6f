// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "cprogressdialog.h"
#include "editsavefixture.h"
#include "extractpagefixture.h"
#include "modaldriver.h"
#include "processcounts.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QDesktopServices>

#include <atomic>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace
{

const QString success = "Save ISO file successfully!";
const QString nothing = "Please add files or folders first!";

QString bootFile()
{
    return Util::GetTempDir() + "/boot.bin";
}

} // namespace

// Saving as far as it goes well: the messages and what the tool is told.
class TstCPage4Save : public TestCase
{
    Q_OBJECT

public slots:
    void opened(const QUrl& address) { openedAddress = address; }

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void nothingInTheImageIsAMessage();
    void emptyImageIsAMessage();
    void imageFromWhichEverythingWasDeletedIsAMessage();
    void cancelledDialogIsSilent();
    void argumentsWithoutBootFile();
    void argumentsWithBootFileWhichIsInTheRootBeforeTheToolStarts();
    void bootFileIsCopiedBeforeTheToolIsStarted();
    void bootFileReplacesTheImagesOwn();
    void bootFileBesideTheProgramIsNotTheOneThatCounts();
    void messageComesWithTheFolderOfTheImage_data();
    void messageComesWithTheFolderOfTheImage();
    void allIsDoneWhenTheSuccessIsTold();
    void secondSaveWritesTheSameFolder();

private:
    void load(const QStringList& unpacking = {});

    std::unique_ptr<EditSaveFixture> fixture;
    QString image;
    QUrl openedAddress;
};

void TstCPage4Save::initTestCase()
{
    setApplicationLook();
    QDesktopServices::setUrlHandler("file", this, "opened");
}

void TstCPage4Save::init()
{
    TestCase::init();
    fixture = std::make_unique<EditSaveFixture>();
    image = fixture->path("out.iso");
    openedAddress.clear();
}

void TstCPage4Save::cleanup()
{
    fixture.reset();
    QFile::remove(bootFile());
    TestCase::cleanup();
}

void TstCPage4Save::load(const QStringList& unpacking)
{
    fixture->setArchiver(ExtractPageFixture::usualEntries(), unpacking);
    fixture->startLoading();
    QVERIFY(fixture->waitUntilListed());
}

void TstCPage4Save::nothingInTheImageIsAMessage()
{
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    fixture->press("save");
    QCOMPARE(driver.texts(), QStringList(nothing));
    QVERIFY(fixture->author.calls().isEmpty());
    QVERIFY(fixture->isUsable());
}

void TstCPage4Save::emptyImageIsAMessage()
{
    fixture->setArchiver({});
    QVERIFY(fixture->load());
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    fixture->press("save");
    QCOMPARE(driver.texts(), QStringList(nothing));
    QVERIFY(fixture->author.calls().isEmpty());
}

void TstCPage4Save::imageFromWhichEverythingWasDeletedIsAMessage()
{
    load();
    fixture->remove(fixture->shownNames());
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    fixture->press("save");
    QCOMPARE(driver.texts(), QStringList(nothing));
    QVERIFY(fixture->author.calls().isEmpty());
}

void TstCPage4Save::cancelledDialogIsSilent()
{
    load();
    QVERIFY(fixture->waitUntilWorked());
    ModalDriver driver;
    driver.key("QFileDialog", Qt::Key_Escape);
    fixture->press("save");
    QVERIFY(driver.done());
    QVERIFY(fixture->isUsable());
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(fixture->author.calls().isEmpty());
}

void TstCPage4Save::argumentsWithoutBootFile()
{
    load();
    QCOMPARE(fixture->save(image), success);
    QCOMPARE(fixture->author.calls(),
             QList<QStringList>({{"-udf", "-R", "-o", image, Util::GetTempDir() + "/tmp"}}));
    QVERIFY(!QFile::exists(EditPageFixture::workFolder() + "/boot.bin"));
}

void TstCPage4Save::argumentsWithBootFileWhichIsInTheRootBeforeTheToolStarts()
{
    load();
    writeFile(bootFile(), "12.50% done, estimate finish x\n");
    // The tool prints the file as the first thing it does.
    fixture->author.setScript({"file 100 " + EditPageFixture::workFolder() + "/boot.bin",
                               fixture->author.holding("read")});
    fixture->startSaving(image);
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 1250, 60000);
    fixture->author.release("read");
    QCOMPARE(fixture->waitForMessage(), success);
    QCOMPARE(fixture->author.calls(), QList<QStringList>({{"-udf", "-R", "-o", "-b", "boot.bin",
                                                           image, Util::GetTempDir() + "/tmp"}}));
    QVERIFY(QFile::exists(bootFile()));
}

// The file is a pipe, so that the copy waits in the middle until it has been looked around.
void TstCPage4Save::bootFileIsCopiedBeforeTheToolIsStarted()
{
    load();
    QVERIFY(fixture->waitUntilWorked());
    QVERIFY(PageFixture::waitUntilToolsGone());
    QCOMPARE(::mkfifo(QFile::encodeName(bootFile()), 0600), 0);
    std::atomic<bool> isSaving{true};
    int runners = -1;
    std::thread writer([&isSaving, &runners] {
        int pipe = -1;
        // It can be opened once the copy reads.
        while (isSaving && (pipe = ::open(QFile::encodeName(bootFile()),
                                          O_WRONLY | O_NONBLOCK | O_CLOEXEC)) < 0)
            QThread::msleep(1);
        if (pipe < 0)
            return;
        runners = runnerThreadCount();
        const bool written = ::write(pipe, "boot", 4) == 4;
        runners = written ? runners : -2;
        ::close(pipe);
    });
    fixture->startSaving(image);
    isSaving = false;
    writer.join();
    QCOMPARE(runners, 0);
    QCOMPARE(fixture->waitForMessage(), success);
    QCOMPARE(readFile(EditPageFixture::workFolder() + "/boot.bin"), QByteArray("boot"));
}

void TstCPage4Save::bootFileReplacesTheImagesOwn()
{
    load();
    QVERIFY(fixture->waitUntilWorked());
    writeFile(EditPageFixture::workFolder() + "/boot.bin", "a longer one from the image");
    writeFile(bootFile(), "ours");
    QCOMPARE(fixture->save(image), success);
    QCOMPARE(readFile(EditPageFixture::workFolder() + "/boot.bin"), QByteArray("ours"));
}

void TstCPage4Save::bootFileBesideTheProgramIsNotTheOneThatCounts()
{
    load();
    const QString other = Util::GetCurrentExePath() + "/boot.bin";
    writeFile(other, "boot image of the loaded image");
    QCOMPARE(fixture->save(image), success);
    QVERIFY(QFile::remove(other));
    QCOMPARE(fixture->author.calls().last().size(), 5);
    QVERIFY(!QFile::exists(EditPageFixture::workFolder() + "/boot.bin"));
}

void TstCPage4Save::messageComesWithTheFolderOfTheImage_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("plain") << "out";
    QTest::newRow("hostile") << QString::fromUtf8("Ümlaut #1 ?a=b 100%25 'x'");
}

void TstCPage4Save::messageComesWithTheFolderOfTheImage()
{
    QFETCH(QString, folder);
    QVERIFY(QDir().mkpath(fixture->path(folder)));
    load();
    fixture->startSaving(fixture->path(folder) + "/out.iso");
    ModalDriver driver(60000);
    driver.press("CommDialog", "btncancel"); // opens the folder
    QVERIFY(QTest::qWaitFor([this] { return !openedAddress.isEmpty(); }, 60000));
    QVERIFY(driver.texts().first().split('\n').contains(success));
    QCOMPARE(QDir::cleanPath(openedAddress.path(QUrl::FullyDecoded)), fixture->path(folder));
    QVERIFY(QTest::qWaitFor([this] { return fixture->isUsable(); }, 60000));
}

// The message waits for the user: whatever came after it would wait as well.
void TstCPage4Save::allIsDoneWhenTheSuccessIsTold()
{
    load();
    fixture->startSaving(image);
    bool isEnabled = false;
    bool isProgressShown = true;
    const auto look = [&] {
        isEnabled = fixture->page->isEnabled() && fixture->button("save")->isEnabled();
        isProgressShown = fixture->progress()->isVisible();
    };
    QCOMPARE(fixture->answerMessage([] {}, "btnok", look), success);
    QVERIFY(isEnabled);
    QVERIFY(!isProgressShown);
}

void TstCPage4Save::secondSaveWritesTheSameFolder()
{
    load();
    QCOMPARE(fixture->save(image), success);
    QCOMPARE(fixture->save(fixture->path("second.iso")), success);
    QCOMPARE(fixture->author.calls().size(), 2);
    QCOMPARE(fixture->author.calls().last().at(3), fixture->path("second.iso"));
    QCOMPARE(fixture->author.calls().last().at(4), EditPageFixture::workFolder());
    QVERIFY(fixture->isUsable());
}

KORVEX_TEST_MAIN(TstCPage4Save)
#include "tst_cpage4_save.moc"
