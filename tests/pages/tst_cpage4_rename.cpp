// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "editcontentfixture.h"
#include "modaldriver.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QLineEdit>

// Renaming an entry of an image on the Edit page.
class TstCPage4Rename : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void withoutATickAMessageAsksForOne();
    void fileGetsTheNewName();
    void folderGetsTheNewNameWithItsNodeAndAllBelow();
    void entryOfASubfolderStaysThere();
    void dialogShowsTheOldName();
    void onlyTheFirstTickedRowIsRenamed();
    void sameOrEmptyNameQueuesNothing_data();
    void sameOrEmptyNameQueuesNothing();
    void cancelledDialogQueuesNothing();
    void takenNameIsRefusedWithAMessage_data();
    void takenNameIsRefusedWithAMessage();
    void nameThatIsAPathIsRefusedWithAMessage_data();
    void nameThatIsAPathIsRefusedWithAMessage();
    void nameOfAnotherFolderMayBeUsed();
    void hostileNamesAreTaken_data();
    void hostileNamesAreTaken();
    void outerBlanksOfTheNewNameAreDropped();
    void whileUnpackingTheRenameIsMadeAfterwards();
    void addedEntriesAreRenamedInTheWorkFolderOnly();
    void renamedTwiceAndDeletedWhileUnpacking();
    void filesAreAddedBelowTheNewName();

private:
    void expectRefusal(const QString& newName, const QString& message);

    std::unique_ptr<EditContentFixture> fixture;
};

void TstCPage4Rename::initTestCase()
{
    setApplicationLook();
}

void TstCPage4Rename::init()
{
    TestCase::init();
    fixture = std::make_unique<EditContentFixture>();
    QVERIFY(fixture->open());
}

void TstCPage4Rename::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage4Rename::withoutATickAMessageAsksForOne()
{
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    fixture->press("rename");
    QCOMPARE(driver.texts(), QStringList("Please select one row in the table list first"));
}

void TstCPage4Rename::fileGetsTheNewName()
{
    fixture->rename("readme.txt", "liesmich.txt");
    QCOMPARE(fixture->shownNames(), QStringList({"boot", "docs", "liesmich.txt", "autorun.inf"}));
    QCOMPARE(fixture->item("liesmich.txt")->path, QString("liesmich.txt"));
    QCOMPARE(fixture->disagreement(), QString());
    QCOMPARE(readFile(fixture->workFolder() + "/liesmich.txt"), QByteArray("readme.txt"));
}

void TstCPage4Rename::folderGetsTheNewNameWithItsNodeAndAllBelow()
{
    fixture->rename("boot", "start");
    QCOMPARE(fixture->nodePaths(), QStringList({"docs/", "start/", "start/grub/"}));
    QCOMPARE(fixture->item("start/grub/grub.cfg")->path, QString("start/grub/grub.cfg"));
    QCOMPARE(fixture->disagreement(), QString());
    fixture->openFolder("start");
    fixture->remove({"kernel"});
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Rename::entryOfASubfolderStaysThere()
{
    fixture->openFolder("boot");
    fixture->rename("kernel", "vmlinuz");
    fixture->rename("grub", "grub2");
    QCOMPARE(fixture->shownNames(), QStringList({"grub2", "vmlinuz"}));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Rename::dialogShowsTheOldName()
{
    fixture->tick({"readme.txt"});
    QString shown;
    ModalDriver driver;
    driver.run("CInputDialog", [&shown](QWidget* dialog) {
        shown = dialog->findChild<QLineEdit*>()->text();
        dialog->close();
    });
    fixture->press("rename");
    QCOMPARE(shown, QString("readme.txt"));
}

void TstCPage4Rename::onlyTheFirstTickedRowIsRenamed()
{
    fixture->tick({"readme.txt", "docs"});
    ModalDriver driver;
    driver.run("CInputDialog", [](QWidget* dialog) {
        dialog->findChild<QLineEdit*>()->setText("texts");
        QMetaObject::invokeMethod(dialog->findChild<QWidget*>("btnok"), "click");
    });
    fixture->press("rename");
    QCOMPARE(fixture->shownNames(), QStringList({"boot", "texts", "readme.txt", "autorun.inf"}));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Rename::sameOrEmptyNameQueuesNothing_data()
{
    QTest::addColumn<QString>("newName");
    QTest::newRow("same") << "readme.txt";
    QTest::newRow("same with blanks") << " readme.txt ";
    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << "   ";
}

void TstCPage4Rename::sameOrEmptyNameQueuesNothing()
{
    QFETCH(QString, newName);
    fixture->rename("readme.txt", newName);
    QVERIFY(!fixture->page->isWorking());
    QVERIFY(fixture->item("readme.txt"));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Rename::cancelledDialogQueuesNothing()
{
    fixture->tick({"readme.txt"});
    ModalDriver driver;
    driver.run("CInputDialog", [](QWidget* dialog) {
        dialog->findChild<QLineEdit*>()->setText("other");
        dialog->close();
    });
    fixture->press("rename");
    QVERIFY(!fixture->page->isWorking());
    QVERIFY(fixture->item("readme.txt"));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Rename::expectRefusal(const QString& newName, const QString& message)
{
    fixture->tick({"readme.txt"});
    ModalDriver driver;
    driver.run("CInputDialog", [&newName](QWidget* dialog) {
        dialog->findChild<QLineEdit*>()->setText(newName);
        QMetaObject::invokeMethod(dialog->findChild<QWidget*>("btnok"), "click");
    });
    driver.press("CommDialog", "btnok");
    fixture->press("rename");
    QCOMPARE(driver.texts().value(1), message);
    QVERIFY(!fixture->page->isWorking());
    QVERIFY(fixture->item("readme.txt"));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Rename::takenNameIsRefusedWithAMessage_data()
{
    QTest::addColumn<QString>("newName");
    QTest::newRow("file") << "autorun.inf";
    QTest::newRow("folder") << "boot";
}

void TstCPage4Rename::takenNameIsRefusedWithAMessage()
{
    QFETCH(QString, newName);
    expectRefusal(newName, "A file or folder with this name already exists");
}

void TstCPage4Rename::nameThatIsAPathIsRefusedWithAMessage_data()
{
    QTest::addColumn<QString>("newName");
    QTest::newRow("into a folder") << "boot/readme.txt";
    QTest::newRow("absolute") << "/readme.txt";
    QTest::newRow("upwards") << "../readme.txt";
    QTest::newRow("slash at the end") << "other/";
    QTest::newRow("this folder") << ".";
    QTest::newRow("folder above") << "..";
}

void TstCPage4Rename::nameThatIsAPathIsRefusedWithAMessage()
{
    QFETCH(QString, newName);
    expectRefusal(newName, "This name cannot be used");
}

void TstCPage4Rename::nameOfAnotherFolderMayBeUsed()
{
    fixture->rename("readme.txt", "kernel");
    QCOMPARE(fixture->disagreement(), QString());
    fixture->openFolder("boot");
    fixture->rename("grub", "boot");
    QCOMPARE(fixture->disagreement(), QString());
    QVERIFY(fixture->item("boot/boot/grub.cfg"));
}

void TstCPage4Rename::hostileNamesAreTaken_data()
{
    QTest::addColumn<QString>("newName");
    QTest::newRow("leading dash") << "-rf";
    QTest::newRow("quotes") << "the \"best\" 'one'";
    QTest::newRow("shell") << "$(id);&|`x`";
    QTest::newRow("backslash") << "a\\b";
    QTest::newRow("hidden") << ".hidden";
    QTest::newRow("Unicode") << QString::fromUtf8("日本語 é 😀");
}

void TstCPage4Rename::hostileNamesAreTaken()
{
    QFETCH(QString, newName);
    fixture->rename("readme.txt", newName);
    QCOMPARE(fixture->shownNames().value(2), newName);
    fixture->rename("boot", newName + '2');
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Rename::outerBlanksOfTheNewNameAreDropped()
{
    fixture->rename("readme.txt", "  a b  ");
    QVERIFY(fixture->item("a b"));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Rename::whileUnpackingTheRenameIsMadeAfterwards()
{
    QVERIFY(fixture->startUnpacking());
    fixture->rename("boot", "start");
    QCOMPARE(fixture->shownNames().first(), QString("start"));
    EditContentFixture::unpack(EditContentFixture::usualEntries());
    QVERIFY(fixture->openGate());
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Rename::addedEntriesAreRenamedInTheWorkFolderOnly()
{
    fixture->makeFile("album/one.mp3");
    fixture->add({fixture->path("album"), fixture->makeFile("song.mp3")});
    fixture->rename("album", "record");
    fixture->rename("song.mp3", "tune.mp3");
    QCOMPARE(fixture->disagreement(), QString());
    QVERIFY(QFile::exists(fixture->path("album/one.mp3")));
    QVERIFY(QFile::exists(fixture->path("song.mp3")));
    QCOMPARE(fixture->item("record/one.mp3")->localPath, fixture->path("album/one.mp3"));
}

void TstCPage4Rename::renamedTwiceAndDeletedWhileUnpacking()
{
    QVERIFY(fixture->openHalfway());
    fixture->rename("boot", "one");
    fixture->rename("docs", "boot");
    fixture->rename("one", "two");
    fixture->remove({"two"});
    fixture->rename("boot", "two");
    QVERIFY(fixture->openGate());
    QCOMPARE(fixture->disagreement(), QString());
    QCOMPARE(readFile(fixture->workFolder() + "/two/manual.pdf"), QByteArray("docs/manual.pdf"));
}

void TstCPage4Rename::filesAreAddedBelowTheNewName()
{
    fixture->rename("boot", "start");
    fixture->openFolder("start");
    fixture->openFolder("grub");
    fixture->add({fixture->makeFile("theme.txt")});
    QCOMPARE(fixture->item("start/grub/theme.txt")->path, QString("start/grub/theme.txt"));
    QCOMPARE(fixture->disagreement(), QString());
}

KORVEX_TEST_MAIN(TstCPage4Rename)
#include "tst_cpage4_rename.moc"
