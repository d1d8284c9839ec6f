// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "stagingpagefixture.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// Removing rows of the Create page, whatever has become of their copies. Each test says what that
// is: one in progress by chance would take another one along.
class TstCPage3Remove : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void nothingSelectedRemovesNothing();
    void rowWhoseCopyHasNotBegunIsNeverStaged();
    void rowWhoseCopyIsDoneIsTakenOutOfTheStagingFolder();
    void rowWhoseCopyIsInProgressDropsTheCopyThatComesNext();
    void rowWhoseCopyIsInProgressWithNothingBehindItStaysStaged();
    void folderWhoseDeletionWasDroppedLosesItsFilesWhenItIsAddedAgain();
    void folderGoesWithAllRowsBelowIt();
    void folderWhoseCopyHasNotBegunIsNeverStaged();
    void fileInAFolderGoesAlone();
    void fileInAFolderWhoseCopyHasNotBegunIsStagedAndDeletedAgain();
    void fileAddedByItselfInAFolderThatIsRemovedIsGoneAsWell();
    void removedFileCanBeAddedAgain();
    void removedFileCanBeAddedAgainBeforeItsCopyBegins();
    void removedFolderCanBeAddedAgain();
    void lastRowRemovedLeavesAnEmptyTotal();
    void failedRemovalLeavesTheTotalAlone();
    void sourceIsNeverTouched();

private:
    using Content = QMap<QString, QByteArray>;

    std::unique_ptr<StagingPageFixture> fixture;
};

void TstCPage3Remove::init()
{
    TestCase::init();
    fixture = std::make_unique<StagingPageFixture>();
}

void TstCPage3Remove::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
    QVERIFY(!QApplication::overrideCursor());
}

void TstCPage3Remove::nothingSelectedRemovesNothing()
{
    fixture->page->OnRemove();
    QCOMPARE(fixture->totalText(), QString("Total Size : 0 KB"));
    fixture->addFiles({fixture->makeFile("a.txt")});
    fixture->setSelected(nullptr);
    fixture->page->OnRemove();
    QCOMPARE(fixture->outline(), QStringList("a.txt"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList("a.txt"));
}

void TstCPage3Remove::rowWhoseCopyHasNotBegunIsNeverStaged()
{
    QVERIFY(fixture->holdQueue());
    fixture->addFiles({fixture->makeFile("a.txt", "12345"), fixture->makeFile("b.txt", "B")});
    fixture->remove({"a.txt"});
    QCOMPARE(fixture->outline(), QStringList("b.txt"));
    QCOMPARE(fixture->totalText(), QString("Total Size: 1 B"));
    // The copy is gone, and the deletion finds nothing to measure.
    QCOMPARE(fixture->page->stagingQueue().GetLeftTaskBytes(), qint64(1));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(), (Content{{"b.txt", "B"}}));
}

void TstCPage3Remove::rowWhoseCopyIsDoneIsTakenOutOfTheStagingFolder()
{
    fixture->addFiles({fixture->makeFile("a.txt"), fixture->makeFile("b.txt", "B")});
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().size(), 2);
    fixture->remove({"a.txt"});
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(), (Content{{"b.txt", "B"}}));
}

// The copy in progress ends, and what heads the queue by then is taken for it.
void TstCPage3Remove::rowWhoseCopyIsInProgressDropsTheCopyThatComesNext()
{
    CopyPlug plug(fixture->path("plug"));
    fixture->addFolders({plug.path()});
    QVERIFY(plug.waitUntilReached());
    fixture->addFiles({fixture->makeFile("a.txt"), fixture->makeFile("b.txt", "B")});
    fixture->remove({"plug"});
    QCOMPARE(fixture->outline(), QStringList({"a.txt", "b.txt"}));
    plug.release();
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(), (Content{{"b.txt", "B"}}));
}

// It is the deletion that is dropped.
void TstCPage3Remove::rowWhoseCopyIsInProgressWithNothingBehindItStaysStaged()
{
    CopyPlug plug(fixture->path("plug"));
    fixture->addFolders({plug.path()});
    QVERIFY(plug.waitUntilReached());
    fixture->remove({"plug"});
    QCOMPARE(fixture->outline(), QStringList());
    plug.release("content");
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(), (Content{{"plug/", {}}, {"plug/held", "content"}}));
}

// What is still staged meets what is copied, and such a clash deletes both.
void TstCPage3Remove::folderWhoseDeletionWasDroppedLosesItsFilesWhenItIsAddedAgain()
{
    const QString file = fixture->makeFile("folder/a.txt", "content");
    fixture->addFolders({fixture->path("folder")});
    QVERIFY(fixture->finish());
    CopyPlug plug(fixture->path("plug"));
    fixture->setSelected(nullptr);
    fixture->addFolders({plug.path()});
    QVERIFY(plug.waitUntilReached());
    fixture->remove({"folder"});
    fixture->remove({"plug"});
    plug.release();
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().value("folder/a.txt"), QByteArray("content"));
    fixture->addFolders({fixture->path("folder")});
    QVERIFY(fixture->finish());
    QVERIFY(!fixture->staged().contains("folder/a.txt"));
    QVERIFY(!QFile::exists(file));
}

void TstCPage3Remove::folderGoesWithAllRowsBelowIt()
{
    fixture->makeFile("folder/sub/a.txt");
    fixture->makeFile("folder/b.txt");
    fixture->addFolders({fixture->path("folder")});
    fixture->addFiles({fixture->makeFile("c.txt", "C")});
    QVERIFY(fixture->finish());
    fixture->remove({"folder"});
    QCOMPARE(fixture->outline(), QStringList("c.txt"));
    QCOMPARE(fixture->totalText(), QString("Total Size: 1 B"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(), (Content{{"c.txt", "C"}}));
}

void TstCPage3Remove::folderWhoseCopyHasNotBegunIsNeverStaged()
{
    QVERIFY(fixture->holdQueue());
    fixture->makeFile("folder/a.txt", "12345");
    fixture->addFolders({fixture->path("folder")});
    fixture->remove({"folder"});
    QCOMPARE(fixture->page->stagingQueue().GetLeftTaskBytes(), qint64(0));
    QVERIFY(fixture->finish());
    QVERIFY(fixture->staged().isEmpty());
}

void TstCPage3Remove::fileInAFolderGoesAlone()
{
    fixture->makeFile("folder/sub/a.txt", "A");
    fixture->makeFile("folder/sub/b.txt", "BB");
    fixture->addFolders({fixture->path("folder")});
    QVERIFY(fixture->finish());
    fixture->remove({"folder", "sub", "a.txt"});
    QCOMPARE(fixture->outline(), QStringList({"folder", "folder > sub", "folder > sub > b.txt"}));
    QCOMPARE(fixture->totalText(), QString("Total Size: 2 B"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList({"folder/", "folder/sub/", "folder/sub/b.txt"}));
}

void TstCPage3Remove::fileInAFolderWhoseCopyHasNotBegunIsStagedAndDeletedAgain()
{
    QVERIFY(fixture->holdQueue());
    fixture->makeFile("folder/a.txt", "AAA");
    fixture->makeFile("folder/b.txt", "BB");
    fixture->addFolders({fixture->path("folder")});
    fixture->remove({"folder", "a.txt"});
    // The one copy is of the whole folder still.
    QCOMPARE(fixture->page->stagingQueue().GetLeftTaskBytes(), qint64(5));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList({"folder/", "folder/b.txt"}));
}

// Its copy is still queued, but in front of the deletion.
void TstCPage3Remove::fileAddedByItselfInAFolderThatIsRemovedIsGoneAsWell()
{
    QVERIFY(fixture->holdQueue());
    fixture->makeFile("folder/a.txt");
    fixture->addFolders({fixture->path("folder")});
    fixture->setSelected(fixture->row({"folder", "a.txt"}));
    fixture->addFiles({fixture->makeFile("b.txt")});
    fixture->remove({"folder"});
    QCOMPARE(fixture->outline(), QStringList());
    QVERIFY(fixture->finish());
    QVERIFY(fixture->staged().isEmpty());
}

void TstCPage3Remove::removedFileCanBeAddedAgain()
{
    const QString file = fixture->makeFile("a.txt", "one");
    fixture->addFiles({file});
    QVERIFY(fixture->finish());
    fixture->remove({"a.txt"});
    fixture->makeFile("a.txt", "another");
    fixture->addFiles({file});
    QCOMPARE(fixture->outline(), QStringList("a.txt"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(), (Content{{"a.txt", "another"}}));
}

void TstCPage3Remove::removedFileCanBeAddedAgainBeforeItsCopyBegins()
{
    QVERIFY(fixture->holdQueue());
    const QString file = fixture->makeFile("a.txt", "content");
    fixture->addFiles({file});
    fixture->remove({"a.txt"});
    fixture->addFiles({file});
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(), (Content{{"a.txt", "content"}}));
}

void TstCPage3Remove::removedFolderCanBeAddedAgain()
{
    fixture->makeFile("folder/sub/a.txt", "content");
    for (int i = 0; i < 3; ++i) {
        fixture->addFolders({fixture->path("folder")});
        QVERIFY(fixture->finish());
        fixture->remove({"folder"});
    }
    QVERIFY(fixture->holdQueue());
    for (int i = 0; i < 3; ++i) {
        fixture->addFolders({fixture->path("folder")});
        fixture->remove({"folder"});
    }
    fixture->addFolders({fixture->path("folder")});
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().value("folder/sub/a.txt"), QByteArray("content"));
    QCOMPARE(readFile(fixture->path("folder/sub/a.txt")), QByteArray("content"));
}

void TstCPage3Remove::lastRowRemovedLeavesAnEmptyTotal()
{
    fixture->addFiles({fixture->makeFile("a.txt")});
    fixture->remove({"a.txt"});
    QCOMPARE(fixture->totalText(), QString("Total Size: 0 B"));
    QCOMPARE(fixture->gaugeValue(), 0);
    QVERIFY(!fixture->list()->currentItem());
}

void TstCPage3Remove::failedRemovalLeavesTheTotalAlone()
{
    fixture->addFiles({fixture->makeFile(" a.txt", "1")});
    fixture->makeFile(" a.txt", "12345");
    fixture->remove({" a.txt"});
    QCOMPARE(fixture->totalText(), QString("Total Size: 1 B"));
}

void TstCPage3Remove::sourceIsNeverTouched()
{
    fixture->makeFile("folder/a.txt", "A");
    fixture->addFolders({fixture->path("folder")});
    fixture->addFiles({fixture->makeFile("b.txt", "B")});
    QVERIFY(fixture->finish());
    fixture->remove({"folder", "a.txt"});
    fixture->remove({"folder"});
    fixture->remove({"b.txt"});
    QVERIFY(fixture->finish());
    QVERIFY(QFile::exists(fixture->path("folder/a.txt")));
    QVERIFY(QFile::exists(fixture->path("b.txt")));
}

KORVEX_TEST_MAIN(TstCPage3Remove)
#include "tst_cpage3_remove.moc"
