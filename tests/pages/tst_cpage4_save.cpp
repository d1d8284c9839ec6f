// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "editsavefixture.h"
#include "extractpagefixture.h"
#include "modaldriver.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QDesktopServices>

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
    void bootFileReplacesTheImagesOwn();
    void bootFileBesideTheProgramIsNotTheOneThatCounts();
    void messageComesWithTheFolderOfTheImage_data();
    void messageComesWithTheFolderOfTheImage();
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
    QTest::qWait(200);
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
    fixture->author.setScript(
        {"file 100 " + EditPageFixture::workFolder() + "/boot.bin", "sleep 1000"});
    fixture->startSaving(image);
    QTRY_COMPARE(fixture->progressValue(), 1250);
    QCOMPARE(fixture->waitForMessage(), success);
    QCOMPARE(fixture->author.calls(), QList<QStringList>({{"-udf", "-R", "-o", "-b", "boot.bin",
                                                           image, Util::GetTempDir() + "/tmp"}}));
    QVERIFY(QFile::exists(bootFile()));
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
    ModalDriver driver;
    driver.press("CommDialog", "btncancel"); // opens the folder
    QVERIFY(QTest::qWaitFor([this] { return !openedAddress.isEmpty(); }, 10000));
    QVERIFY(driver.texts().first().split('\n').contains(success));
    QCOMPARE(QDir::cleanPath(openedAddress.path(QUrl::FullyDecoded)), fixture->path(folder));
    QVERIFY(QTest::qWaitFor([this] { return fixture->isUsable(); }));
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
