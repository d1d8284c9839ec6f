// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "editcontentfixture.h"
#include "modaldriver.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QDir>

// Copying entries of an image to the computer on the Edit page.
class TstCPage4Export : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void withoutATickAMessageAsksForOne();
    void cancelledDialogExportsNothing();
    void filesAndFoldersOfTheImageComeFromTheWorkFolder();
    void entriesOfASubfolder();
    void addedEntriesComeFromWhereTheyLie();
    void renamedEntriesGetTheirNewName();
    void renamedAddedFolderKeepsItsNameOnDisk();
    void fileThatIsThereIsReplaced();
    void toFolders_data();
    void toFolders();
    void toWhereAnAddedEntryLiesLeavesItThere();
    void renamedAddedFileIsCopiedBesideItself();
    void intoAnAddedFolderItselfCopiesNothing();

private:
    std::unique_ptr<EditContentFixture> fixture;
    QString target;
};

void TstCPage4Export::initTestCase()
{
    setApplicationLook();
}

void TstCPage4Export::init()
{
    TestCase::init();
    fixture = std::make_unique<EditContentFixture>();
    target = fixture->path("target");
    QVERIFY(QDir().mkpath(target));
}

void TstCPage4Export::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage4Export::withoutATickAMessageAsksForOne()
{
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    fixture->press("export_2");
    QCOMPARE(driver.texts(), QStringList("Please select files or folders in the list first."));
}

void TstCPage4Export::cancelledDialogExportsNothing()
{
    QVERIFY(fixture->open());
    fixture->tick({"boot"});
    ModalDriver driver;
    driver.key("QFileDialog", Qt::Key_Escape);
    fixture->press("export_2");
    QVERIFY(driver.done());
    QVERIFY(!fixture->page->isWorking());
    QVERIFY(!fixture->progress()->isVisible());
}

void TstCPage4Export::filesAndFoldersOfTheImageComeFromTheWorkFolder()
{
    QVERIFY(fixture->open());
    const QStringList texts = fixture->exportTo({"boot", "readme.txt"}, target);
    QCOMPARE(texts.value(1), QString("Export Successfully !"));
    QCOMPARE(
        EditContentFixture::pathsIn(target),
        QStringList({"boot/", "boot/grub/", "boot/grub/grub.cfg", "boot/kernel", "readme.txt"}));
    QCOMPARE(readFile(target + "/boot/kernel"), QByteArray("boot/kernel"));
    QCOMPARE(readFile(target + "/readme.txt"), QByteArray("readme.txt"));
    QVERIFY(!fixture->progress()->isVisible());
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Export::entriesOfASubfolder()
{
    QVERIFY(fixture->open());
    fixture->openFolder("boot");
    fixture->exportTo({"grub", "kernel"}, target);
    QCOMPARE(EditContentFixture::pathsIn(target),
             QStringList({"grub/", "grub/grub.cfg", "kernel"}));
}

void TstCPage4Export::addedEntriesComeFromWhereTheyLie()
{
    QVERIFY(fixture->open());
    const QString song = fixture->makeFile("song.mp3");
    fixture->makeFile("album/one.mp3");
    fixture->add({song, fixture->path("album")});
    QVERIFY(fixture->waitUntilWorked());
    writeFile(song, "changed since");
    writeFile(fixture->path("album/one.mp3"), "changed too");
    fixture->exportTo({"song.mp3", "album"}, target);
    QCOMPARE(readFile(target + "/song.mp3"), QByteArray("changed since"));
    QCOMPARE(readFile(target + "/album/one.mp3"), QByteArray("changed too"));
}

void TstCPage4Export::renamedEntriesGetTheirNewName()
{
    QVERIFY(fixture->open());
    fixture->add({fixture->makeFile("song.mp3", "la")});
    fixture->rename("song.mp3", "tune.mp3");
    fixture->rename("boot", "start");
    fixture->exportTo({"tune.mp3", "start"}, target);
    QCOMPARE(readFile(target + "/tune.mp3"), QByteArray("la"));
    QCOMPARE(readFile(target + "/start/kernel"), QByteArray("boot/kernel"));
    QCOMPARE(entriesOf(target), QStringList({"start", "tune.mp3"}));
}

// It is copied from there, as one.
void TstCPage4Export::renamedAddedFolderKeepsItsNameOnDisk()
{
    QVERIFY(fixture->open());
    fixture->makeFile("album/one.mp3");
    fixture->add({fixture->path("album")});
    fixture->rename("album", "record");
    fixture->exportTo({"record"}, target);
    QCOMPARE(entriesOf(target), QStringList("album"));
}

void TstCPage4Export::fileThatIsThereIsReplaced()
{
    QVERIFY(fixture->open());
    writeFile(target + "/readme.txt", "an older one, and longer");
    fixture->exportTo({"readme.txt"}, target);
    QCOMPARE(readFile(target + "/readme.txt"), QByteArray("readme.txt"));
}

void TstCPage4Export::toFolders_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << "a folder  with blanks";
    QTest::newRow("Unicode") << QString::fromUtf8("Папка 日本 é");
    QTest::newRow("quotes") << "the 'best'";
    QTest::newRow("leading dash") << "-rf";
    QTest::newRow("percent") << "100%1 %2";
}

void TstCPage4Export::toFolders()
{
    QFETCH(QString, name);
    QVERIFY(fixture->open());
    fixture->exportTo({"boot", "readme.txt"}, target + '/' + name);
    QCOMPARE(entriesOf(target + '/' + name), QStringList({"boot", "readme.txt"}));
}

void TstCPage4Export::toWhereAnAddedEntryLiesLeavesItThere()
{
    QVERIFY(fixture->open());
    const QString song = fixture->makeFile("music/song.mp3");
    fixture->makeFile("music/album/one.mp3");
    fixture->makeFile("music/album/two.mp3");
    fixture->add({song, fixture->path("music/album")});
    QVERIFY(QFile::link(fixture->path("music"), fixture->path("link")));
    const QStringList before = EditContentFixture::pathsIn(fixture->path("music"));
    for (const char* const folder : {"music", "link"}) {
        fixture->exportTo({"song.mp3", "album"}, fixture->path(folder));
        QCOMPARE(EditContentFixture::pathsIn(fixture->path("music")), before);
    }
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Export::renamedAddedFileIsCopiedBesideItself()
{
    QVERIFY(fixture->open());
    fixture->add({fixture->makeFile("music/song.mp3", "la")});
    fixture->rename("song.mp3", "tune.mp3");
    fixture->exportTo({"tune.mp3"}, fixture->path("music"));
    QCOMPARE(readFile(fixture->path("music/song.mp3")), QByteArray("la"));
    QCOMPARE(readFile(fixture->path("music/tune.mp3")), QByteArray("la"));
}

void TstCPage4Export::intoAnAddedFolderItselfCopiesNothing()
{
    QVERIFY(fixture->open());
    fixture->makeFile("album/disc/one.mp3");
    fixture->add({fixture->path("album")});
    const QStringList before = EditContentFixture::pathsIn(fixture->path("album"));
    fixture->exportTo({"album"}, fixture->path("album/disc"));
    QCOMPARE(EditContentFixture::pathsIn(fixture->path("album")), before);
}

KORVEX_TEST_MAIN(TstCPage4Export)
#include "tst_cpage4_export.moc"
