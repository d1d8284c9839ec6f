// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "editcontentfixture.h"
#include "modaldriver.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>

// Adding files and folders to an image on the Edit page.
class TstCPage4Add : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void withoutAnImageNothingIsAsked();
    void cancelledDialogAddsNothing();
    void fileGetsARowAndIsCopied();
    void folderGetsARowANodeAndIsCopied();
    void fileIsAddedToTheFolderThatIsShown();
    void folderIsAddedBelowASubfolder();
    void addedFolderCanBeEntered();
    void fileIsAddedToAnAddedFolder();
    void severalAtOnceAreAddedInOrder();
    void takenNameIsSkipped_data();
    void takenNameIsSkipped();
    void othersAreAddedThoughOneIsSkipped();
    void nameOfADeletedEntryIsFreeAgain();
    void whileUnpackingTheCopiesAreMadeAfterwards();
    void folderWithATrailingSlashIsAddedAsItself();
    void hostileNamesAreAdded_data();
    void hostileNamesAreAdded();
    void folderOfHostileNamesIsAdded();
    void cursorIsBackAfterwards();

private:
    std::unique_ptr<EditContentFixture> fixture;
};

void TstCPage4Add::initTestCase()
{
    setApplicationLook();
}

void TstCPage4Add::init()
{
    TestCase::init();
    fixture = std::make_unique<EditContentFixture>();
}

void TstCPage4Add::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage4Add::withoutAnImageNothingIsAsked()
{
    ModalDriver driver; // fails when a dialog comes
    fixture->press("add");
    QCOMPARE(fixture->table()->rowCount(), 0);
    QVERIFY(!fixture->page->isWorking());
}

void TstCPage4Add::cancelledDialogAddsNothing()
{
    QVERIFY(fixture->open());
    ModalDriver driver;
    driver.key("QFileDialog", Qt::Key_Escape);
    fixture->press("add");
    QVERIFY(driver.done());
    QCOMPARE(fixture->root()->children.size(), 4);
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Add::fileGetsARowAndIsCopied()
{
    QVERIFY(fixture->open());
    const QString file = fixture->makeFile("song.mp3", QByteArray(2048, 'x'));
    fixture->add({file});
    QCOMPARE(fixture->shownNames(),
             QStringList({"boot", "docs", "readme.txt", "autorun.inf", "song.mp3"}));
    const QString time = Util::QT2String(QFileInfo(file).lastModified());
    QCOMPARE(fixture->rowTexts("song.mp3"),
             QStringList({"song.mp3", Util::SizeToString(2048),
                          Util::GetExtensionString("song.mp3"), time}));
    const QTableWidgetItem* const cell = fixture->table()->item(4, 0);
    QCOMPARE(cell->checkState(), Qt::Unchecked);
    QVERIFY(!cell->icon().isNull());
    const Item* const item = fixture->item("song.mp3");
    QVERIFY(item && !item->isDir);
    QCOMPARE(item->path, QString("song.mp3"));
    QCOMPARE(item->localPath, file);
    QCOMPARE(item->sizeText, QString("2048"));
    QCOMPARE(item->timeText, time);
    QCOMPARE(fixture->disagreement(), QString());
    QCOMPARE(readFile(fixture->workFolder() + "/song.mp3"), QByteArray(2048, 'x'));
}

void TstCPage4Add::folderGetsARowANodeAndIsCopied()
{
    QVERIFY(fixture->open());
    fixture->makeFile("album/one.mp3", "1");
    fixture->makeFile("album/disc 2/two.mp3", "22");
    fixture->add({fixture->path("album")});
    QStringList texts = fixture->rowTexts("album");
    QVERIFY(!texts.takeLast().isEmpty());
    QCOMPARE(texts, QStringList({"album", "", "Folder"}));
    QCOMPARE(fixture->table()->item(4, 0)->data(Qt::UserRole).toInt(), 1);
    QVERIFY(fixture->nodePaths().contains("album/disc 2/"));
    const Item* const item = fixture->item("album");
    QVERIFY(item && item->isDir);
    QCOMPARE(item->sizeText, QString());
    QCOMPARE(fixture->item("album/disc 2/two.mp3")->localPath,
             fixture->path("album/disc 2/two.mp3"));
    QCOMPARE(fixture->disagreement(), QString());
    QCOMPARE(readFile(fixture->workFolder() + "/album/disc 2/two.mp3"), QByteArray("22"));
}

void TstCPage4Add::fileIsAddedToTheFolderThatIsShown()
{
    QVERIFY(fixture->open());
    fixture->openFolder("boot");
    fixture->openFolder("grub");
    fixture->add({fixture->makeFile("theme.txt")});
    QCOMPARE(fixture->shownNames(), QStringList({"grub.cfg", "theme.txt"}));
    QVERIFY(fixture->item("boot/grub/theme.txt"));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Add::folderIsAddedBelowASubfolder()
{
    QVERIFY(fixture->open());
    fixture->openFolder("boot");
    fixture->makeFile("fonts/latin/a.pf2");
    fixture->makeFile("fonts/latin/bold/b.pf2");
    fixture->add({fixture->path("fonts")});
    QVERIFY(fixture->nodePaths().contains("boot/fonts/latin/bold/"));
    QCOMPARE(fixture->item("boot/fonts/latin/a.pf2")->path, QString("boot/fonts/latin/a.pf2"));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Add::addedFolderCanBeEntered()
{
    QVERIFY(fixture->open());
    fixture->makeFile("fonts/latin/a.pf2");
    fixture->add({fixture->path("fonts")});
    fixture->openFolder("fonts");
    fixture->openFolder("latin");
    QCOMPARE(fixture->shownNames(), QStringList("a.pf2"));
    QCOMPARE(fixture->tree()->selectedItems().first()->text(0), QString("latin"));
}

void TstCPage4Add::fileIsAddedToAnAddedFolder()
{
    QVERIFY(fixture->open());
    fixture->makeFile("fonts/latin/a.pf2");
    fixture->add({fixture->path("fonts")});
    fixture->openFolder("fonts");
    fixture->openFolder("latin");
    fixture->add({fixture->makeFile("b.pf2")});
    QCOMPARE(fixture->disagreement(), QString());
    QVERIFY(QFile::exists(fixture->workFolder() + "/fonts/latin/b.pf2"));
    QVERIFY(!QFile::exists(fixture->path("fonts/latin/b.pf2")));
}

void TstCPage4Add::severalAtOnceAreAddedInOrder()
{
    QVERIFY(fixture->open());
    fixture->makeFile("c/inside");
    fixture->add({fixture->makeFile("b"), fixture->path("c"), fixture->makeFile("a")});
    QCOMPARE(fixture->shownNames().mid(4), QStringList({"b", "c", "a"}));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Add::takenNameIsSkipped_data()
{
    QTest::addColumn<QString>("taken");
    QTest::addColumn<bool>("asFolder");
    QTest::newRow("file for file") << "readme.txt" << false;
    QTest::newRow("file for folder") << "boot" << false;
    QTest::newRow("folder for folder") << "boot" << true;
    QTest::newRow("folder for file") << "readme.txt" << true;
}

void TstCPage4Add::takenNameIsSkipped()
{
    QFETCH(QString, taken);
    QFETCH(bool, asFolder);
    QVERIFY(fixture->open());
    const QStringList before = fixture->modelPaths();
    fixture->makeFile(asFolder ? "from/" + taken + "/inside" : "from/" + taken);
    fixture->add({fixture->path("from/" + taken)});
    QCOMPARE(fixture->modelPaths(), before);
    QCOMPARE(fixture->disagreement(), QString());
    QCOMPARE(readFile(fixture->workFolder() + "/readme.txt"), QByteArray("readme.txt"));
}

void TstCPage4Add::othersAreAddedThoughOneIsSkipped()
{
    QVERIFY(fixture->open());
    fixture->add({fixture->makeFile("readme.txt"), fixture->makeFile("other.txt")});
    QCOMPARE(fixture->shownNames().mid(4), QStringList("other.txt"));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Add::nameOfADeletedEntryIsFreeAgain()
{
    QVERIFY(fixture->open());
    fixture->remove({"readme.txt"});
    fixture->add({fixture->makeFile("readme.txt", "another")});
    QCOMPARE(fixture->disagreement(), QString());
    QCOMPARE(readFile(fixture->workFolder() + "/readme.txt"), QByteArray("another"));
}

void TstCPage4Add::whileUnpackingTheCopiesAreMadeAfterwards()
{
    QVERIFY(fixture->startUnpacking());
    fixture->makeFile("album/one.mp3");
    fixture->add({fixture->path("album"), fixture->makeFile("song.mp3")});
    QCOMPARE(fixture->shownNames().mid(4), QStringList({"album", "song.mp3"}));
    EditContentFixture::unpack(EditContentFixture::usualEntries());
    QVERIFY(fixture->openGate());
    QCOMPARE(fixture->disagreement(), QString());
    QVERIFY(QFile::exists(fixture->workFolder() + "/album/one.mp3"));
}

void TstCPage4Add::folderWithATrailingSlashIsAddedAsItself()
{
    QVERIFY(fixture->open());
    fixture->makeFile("album/one.mp3");
    fixture->openFolder("docs");
    fixture->add({fixture->path("album") + '/'});
    QCOMPARE(fixture->shownNames(), QStringList({"manual.pdf", "album"}));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Add::hostileNamesAreAdded_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("leading dash") << "-rf";
    QTest::newRow("outer blanks") << " a b ";
    QTest::newRow("single quotes") << "the 'best'";
    QTest::newRow("shell") << "$(id);&|`x`";
    QTest::newRow("percent") << "100%1 % 2";
    QTest::newRow("backslash") << "a\\b";
    QTest::newRow("at") << "@list";
    QTest::newRow("Unicode") << QString::fromUtf8("日本語 é 😀.txt");
}

void TstCPage4Add::hostileNamesAreAdded()
{
    QFETCH(QString, name);
    QVERIFY(fixture->open());
    fixture->add({fixture->makeFile(name, name.toUtf8())});
    QCOMPARE(fixture->shownNames().mid(4), QStringList(name));
    QCOMPARE(fixture->disagreement(), QString());
    QCOMPARE(readFile(fixture->workFolder() + '/' + name), name.toUtf8());
}

void TstCPage4Add::folderOfHostileNamesIsAdded()
{
    QVERIFY(fixture->open());
    for (const char* const name : {"two\nlines", "\"quoted\"", " ", "-", "tab\there", "a\"b/c\nd"})
        fixture->makeFile(QString("odd/") + name);
    fixture->add({fixture->path("odd")});
    QVERIFY(fixture->item("odd/two\nlines"));
    QVERIFY(fixture->item("odd/a\"b/c\nd"));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Add::cursorIsBackAfterwards()
{
    QVERIFY(fixture->open());
    fixture->add({fixture->makeFile("song.mp3")});
    fixture->add({fixture->makeFile("song.mp3")}); // skipped
    QVERIFY(!QApplication::overrideCursor());
}

KORVEX_TEST_MAIN(TstCPage4Add)
#include "tst_cpage4_add.moc"
