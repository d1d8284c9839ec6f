// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "extractpagefixture.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QDesktopServices>
#include <QDir>

// The end of an extraction: what the archiver has written goes up into the chosen folder. The
// stand-in writes nothing, so the tests lay the files there while it runs.
class TstCPage2Finish : public TestCase
{
    Q_OBJECT

public slots:
    void opened(const QUrl& address) { openedAddress = address; }

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void successIsTold();
    void allIsDoneWhenTheSuccessIsTold();
    void openFolderOpensTheChosenFolder_data();
    void openFolderOpensTheChosenFolder();
    void successIsLogged();
    void failureOfTheArchiverIsToldAsSuccess_data();
    void failureOfTheArchiverIsToldAsSuccess();
    void missingArchiverIsToldAsSuccess();
    void entriesOfTheRootStayWhereTheyAre();
    void entriesOfANestedFolderLieFlatAndItsTopIsGone();
    void foldersGoUpWithTheirContents();
    void olderFolderOfTheUsersIsDeletedWithTheTop();
    void entryWhoseNameIsTakenIsLostWithTheTop();
    void folderNamedLikeItsTopIsLostWithIt();
    void entryThatWasNotWrittenIsNoTrouble();
    void otherFilesOfTheUsersStay();
    void secondExtractionFromAnotherFolderWorks();
    void namelessFirstFolderCostsTheUserNothing();

private:
    // Extracts the ticked entries of the current folder while the archiver writes these files.
    bool extractWriting(const QStringList& files);

    std::unique_ptr<ExtractPageFixture> fixture;
    QString outputDir;
    QUrl openedAddress;
};

void TstCPage2Finish::initTestCase()
{
    setApplicationLook();
    QDesktopServices::setUrlHandler("file", this, "opened");
}

void TstCPage2Finish::init()
{
    TestCase::init();
    fixture = std::make_unique<ExtractPageFixture>();
    outputDir = fixture->path("out");
    QVERIFY(QDir().mkpath(outputDir));
    QVERIFY(fixture->load());
    fixture->tool.setScript({});
    openedAddress.clear();
}

void TstCPage2Finish::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

bool TstCPage2Finish::extractWriting(const QStringList& files)
{
    return fixture->extractTo(outputDir, [this, &files] {
        for (const QString& file : files)
            writeFile(outputDir + '/' + file, file.toUtf8());
    });
}

void TstCPage2Finish::successIsTold()
{
    fixture->tick({"readme.txt"});
    QVERIFY(extractWriting({"readme.txt"}));
    QCOMPARE(fixture->successText, QString("Extract files successfully."));
    QVERIFY(fixture->page->isEnabled());
    QVERIFY(!fixture->progress()->isVisible());
    QVERIFY(openedAddress.isEmpty());
    // The ticks stay, so that the same can go into another folder.
    QCOMPARE(fixture->ticked(), QStringList("readme.txt"));
}

// The message waits for the user: whatever came after it would wait as well.
void TstCPage2Finish::allIsDoneWhenTheSuccessIsTold()
{
    const LogSwitch log;
    fixture->enter("boot/grub");
    fixture->tick({"font.pf2"});
    fixture->startExtractingTo(outputDir);
    writeFile(outputDir + "/boot/grub/font.pf2", "font");
    QStringList found;
    const auto look = [this, &found] {
        found = entriesOf(outputDir);
        found.append(fixture->page->isEnabled() ? "enabled" : "disabled");
        found.append(fixture->progress()->isVisible() ? "progress" : "no progress");
        if (LogSwitch::texts().contains("Extract files successfully :" + outputDir))
            found.append("logged");
    };
    QVERIFY(!fixture->answerMessage([] {}, "btnok", look).isNull());
    QCOMPARE(found, QStringList({"font.pf2", "enabled", "no progress", "logged"}));
}

void TstCPage2Finish::openFolderOpensTheChosenFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "out";
    QTest::newRow("hostile") << QString::fromUtf8("Ümlaut #1 ?a=b 100%25 'x'");
}

void TstCPage2Finish::openFolderOpensTheChosenFolder()
{
    QFETCH(QString, name);
    outputDir = fixture->path(name);
    QVERIFY(QDir().mkpath(outputDir));
    fixture->tick({"readme.txt"});
    QVERIFY(fixture->extractTo(outputDir, {}, "btncancel"));
    QCOMPARE(QDir::cleanPath(openedAddress.path(QUrl::FullyDecoded)), outputDir);
    QCOMPARE(openedAddress.scheme(), QString("file"));
}

void TstCPage2Finish::successIsLogged()
{
    const LogSwitch log;
    fixture->tick({"readme.txt"});
    QVERIFY(extractWriting({}));
    QVERIFY(LogSwitch::texts().contains("Extract files successfully :" + outputDir));
}

void TstCPage2Finish::failureOfTheArchiverIsToldAsSuccess_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("exit status") << "exit 2";
    QTest::newRow("crash") << "crash";
}

void TstCPage2Finish::failureOfTheArchiverIsToldAsSuccess()
{
    QFETCH(QString, end);
    fixture->tool.setScript({"err ERROR: disk full\\n", end});
    fixture->tick({"readme.txt"});
    QVERIFY(extractWriting({}));
    QCOMPARE(fixture->successText, QString("Extract files successfully."));
}

void TstCPage2Finish::missingArchiverIsToldAsSuccess()
{
    const QString away = ExtractPageFixture::toolPath() + ".away";
    QVERIFY(QFile::rename(ExtractPageFixture::toolPath(), away));
    fixture->tick({"readme.txt"});
    const bool done = extractWriting({});
    QVERIFY(QFile::rename(away, ExtractPageFixture::toolPath()));
    QVERIFY(done);
    QCOMPARE(fixture->successText, QString("Extract files successfully."));
}

void TstCPage2Finish::entriesOfTheRootStayWhereTheyAre()
{
    fixture->tick({"readme.txt", "docs"});
    QVERIFY(extractWriting({"readme.txt", "docs/manual.pdf"}));
    QCOMPARE(entriesOf(outputDir), QStringList({"docs", "readme.txt"}));
    QCOMPARE(readFile(outputDir + "/readme.txt"), QByteArray("readme.txt"));
    QCOMPARE(readFile(outputDir + "/docs/manual.pdf"), QByteArray("docs/manual.pdf"));
}

void TstCPage2Finish::entriesOfANestedFolderLieFlatAndItsTopIsGone()
{
    fixture->enter("boot/grub");
    fixture->tick({"font.pf2", "grub.cfg"});
    QVERIFY(extractWriting({"boot/grub/font.pf2", "boot/grub/grub.cfg"}));
    QCOMPARE(entriesOf(outputDir), QStringList({"font.pf2", "grub.cfg"}));
    QCOMPARE(readFile(outputDir + "/font.pf2"), QByteArray("boot/grub/font.pf2"));
}

void TstCPage2Finish::foldersGoUpWithTheirContents()
{
    fixture->enter("boot");
    fixture->tick({"grub"});
    QVERIFY(extractWriting({"boot/grub/font.pf2", "boot/grub/a/b/c.txt"}));
    QCOMPARE(entriesOf(outputDir), QStringList("grub"));
    QCOMPARE(readFile(outputDir + "/grub/a/b/c.txt"), QByteArray("boot/grub/a/b/c.txt"));
}

void TstCPage2Finish::olderFolderOfTheUsersIsDeletedWithTheTop()
{
    writeFile(outputDir + "/boot/my notes.txt", "mine");
    fixture->enter("boot");
    fixture->tick({"kernel"});
    QVERIFY(extractWriting({"boot/kernel"}));
    QCOMPARE(entriesOf(outputDir), QStringList("kernel"));
}

void TstCPage2Finish::entryWhoseNameIsTakenIsLostWithTheTop()
{
    writeFile(outputDir + "/kernel", "older");
    fixture->enter("boot");
    fixture->tick({"kernel"});
    QVERIFY(extractWriting({"boot/kernel"}));
    QCOMPARE(entriesOf(outputDir), QStringList("kernel"));
    QCOMPARE(readFile(outputDir + "/kernel"), QByteArray("older"));
}

void TstCPage2Finish::folderNamedLikeItsTopIsLostWithIt()
{
    QVERIFY(fixture->load({ExtractPageFixture::fileLine("boot/boot/inner.txt")}));
    fixture->tool.setScript({});
    fixture->enter("boot");
    fixture->tick({"boot"});
    QVERIFY(extractWriting({"boot/boot/inner.txt"}));
    QCOMPARE(entriesOf(outputDir), QStringList());
}

void TstCPage2Finish::entryThatWasNotWrittenIsNoTrouble()
{
    fixture->enter("boot");
    fixture->tick({"grub", "kernel"});
    QVERIFY(extractWriting({"boot/kernel"}));
    QCOMPARE(entriesOf(outputDir), QStringList("kernel"));
}

void TstCPage2Finish::otherFilesOfTheUsersStay()
{
    writeFile(outputDir + "/letter.txt", "mine");
    writeFile(outputDir + "/booty/treasure.txt", "mine");
    fixture->enter("boot");
    fixture->tick({"kernel"});
    QVERIFY(extractWriting({"boot/kernel"}));
    QCOMPARE(entriesOf(outputDir), QStringList({"booty", "kernel", "letter.txt"}));
    QCOMPARE(readFile(outputDir + "/booty/treasure.txt"), QByteArray("mine"));
}

void TstCPage2Finish::secondExtractionFromAnotherFolderWorks()
{
    fixture->enter("boot");
    fixture->tick({"kernel"});
    QVERIFY(extractWriting({"boot/kernel"}));
    fixture->clickNode(fixture->topNode()->child(1));
    fixture->tick({"manual.pdf"});
    QVERIFY(extractWriting({"docs/manual.pdf"}));
    QCOMPARE(entriesOf(outputDir), QStringList({"kernel", "manual.pdf"}));
}

// An image may list absolute paths. The folder that such a one begins with has no name, and what
// would be deleted under it is the chosen folder.
void TstCPage2Finish::namelessFirstFolderCostsTheUserNothing()
{
    QVERIFY(fixture->load({ExtractPageFixture::fileLine("/etc/hosts")}));
    fixture->tool.setScript({});
    writeFile(outputDir + "/letter.txt", "mine");
    fixture->doubleClickRow(0);
    fixture->enter("etc");
    fixture->tick({"hosts"});
    QVERIFY(extractWriting({"etc/hosts"}));
    QCOMPARE(fixture->tool.calls().last().mid(6), QStringList({"/etc/hosts", "-r"}));
    QCOMPARE(entriesOf(outputDir), QStringList({"etc", "hosts", "letter.txt"}));
}

KORVEX_TEST_MAIN(TstCPage2Finish)
#include "tst_cpage2_finish.moc"
