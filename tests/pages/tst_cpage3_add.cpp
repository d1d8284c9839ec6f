// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "receiver.h"
#include "stagingpagefixture.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QDateTime>
#include <QFile>

// Adding files on the Create page: rows, places in the image, copies.
class TstCPage3Add : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fileRowHasItsFiveColumns();
    void fileRowHasAnIconAndIsNoFolder();
    void withNothingSelectedFilesGoToTheTopAndTheRoot();
    void severalFilesKeepTheOrderOfTheDialog();
    void underASelectedTopFolderTheRowShowsThereButTheFileGoesToTheRoot();
    void underASelectedNestedRowTheFileGoesIntoTheFolderThatHoldsThatRow();
    void underASelectedFileTheRowShowsThereButTheFileGoesBesideIt();
    void aFileBelowARowThatIsShownUnderAFileIsInTheImageButNotStaged();
    void sameFileTwiceIsOneRowAndOneCopy();
    void sameFileTwiceInOneChoiceIsOneRow();
    void sameFileUnderAnotherRowOfTheSameFolderIsRefused();
    void sameFileInAnotherFolderIsAddedAgain();
    void secondFileOfTheSameNameFromElsewhereIsSkippedSilently();
    void namesThatDifferInCaseAreTwoFiles();
    void refusedFilesDoNotStopTheOthers();
    void cancelChangesNothing();
    void changedFileIsStagedAsItIsWhenItsTurnComes();
    void cursorIsBusyWhileFilesAreAddedAndNoLonger();
    void addedFileIsStagedWithItsContent();

private:
    std::unique_ptr<StagingPageFixture> fixture;
};

void TstCPage3Add::init()
{
    TestCase::init();
    fixture = std::make_unique<StagingPageFixture>();
}

void TstCPage3Add::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
    QVERIFY(!QApplication::overrideCursor());
}

void TstCPage3Add::fileRowHasItsFiveColumns()
{
    const QString file = fixture->makeFile("notes.txt", QByteArray(1536, 'n'));
    QFile handle(file);
    QVERIFY(handle.open(QIODevice::ReadWrite));
    QVERIFY(
        handle.setFileTime(QDateTime({2021, 3, 4}, {5, 6, 7}), QFileDevice::FileModificationTime));
    handle.close();
    fixture->addFiles({file});
    QCOMPARE(fixture->list()->topLevelItemCount(), 1);
    const QStringList texts = fixture->texts(fixture->row({"notes.txt"}));
    QCOMPARE(texts, QStringList({"notes.txt", "", "1.50 KB", QFileIconProvider().type({file}),
                                 "2021-03-04 05:06:07"}));
    QVERIFY(!texts.at(3).isEmpty());
}

void TstCPage3Add::fileRowHasAnIconAndIsNoFolder()
{
    fixture->addFiles({fixture->makeFile("notes.txt")});
    const QTreeWidgetItem* const row = fixture->row({"notes.txt"});
    QVERIFY(!row->data(0, Qt::UserRole).isValid());
    QCOMPARE(row->icon(0).name(), QFileIconProvider().icon({fixture->path("notes.txt")}).name());
}

void TstCPage3Add::withNothingSelectedFilesGoToTheTopAndTheRoot()
{
    fixture->addFiles({fixture->makeFile("a.txt", "A"), fixture->makeFile("b.txt", "B")});
    QCOMPARE(fixture->outline(), QStringList({"a.txt", "b.txt"}));
    QCOMPARE(fixture->page->GetCurrSelectDir(), QString());
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(), (QMap<QString, QByteArray>{{"a.txt", "A"}, {"b.txt", "B"}}));
}

void TstCPage3Add::severalFilesKeepTheOrderOfTheDialog()
{
    const QStringList names{"z.txt", "A.txt", "m.txt", "b.txt"};
    QStringList paths;
    for (const QString& name : names)
        paths.append(fixture->makeFile(name));
    fixture->addFiles(paths);
    QCOMPARE(fixture->outline(), names);
}

void TstCPage3Add::underASelectedTopFolderTheRowShowsThereButTheFileGoesToTheRoot()
{
    fixture->makeFile("folder/inside.txt");
    fixture->addFolders({fixture->path("folder")});
    fixture->setSelected(fixture->row({"folder"}));
    QCOMPARE(fixture->page->GetCurrSelectDir(), QString());
    fixture->addFiles({fixture->makeFile("a.txt", "A")});
    QCOMPARE(fixture->outline(), QStringList({"folder", "folder > inside.txt", "folder > a.txt"}));
    // The path of the containing folder: the root's.
    QCOMPARE(fixture->row({"folder", "a.txt"})->text(1), QString());
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList({"a.txt", "folder/", "folder/inside.txt"}));
}

void TstCPage3Add::underASelectedNestedRowTheFileGoesIntoTheFolderThatHoldsThatRow()
{
    fixture->makeFile("a/b/c/d.txt");
    fixture->addFolders({fixture->path("a")});
    fixture->setSelected(fixture->row({"a", "b", "c"}));
    QCOMPARE(fixture->page->GetCurrSelectDir(), QString("a/b/"));
    fixture->addFiles({fixture->makeFile("new.txt", "N")});
    QCOMPARE(fixture->texts(fixture->row({"a", "b", "c", "new.txt"})).mid(0, 2),
             QStringList({"new.txt", "a/b"}));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().value("a/b/new.txt"), QByteArray("N"));
    QVERIFY(!fixture->staged().contains("a/b/c/new.txt"));
}

void TstCPage3Add::underASelectedFileTheRowShowsThereButTheFileGoesBesideIt()
{
    fixture->addFiles({fixture->makeFile("a.txt")});
    fixture->setSelected(fixture->row({"a.txt"}));
    fixture->addFiles({fixture->makeFile("b.txt")});
    QCOMPARE(fixture->outline(), QStringList({"a.txt", "a.txt > b.txt"}));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList({"a.txt", "b.txt"}));
}

// Its folder would be one with the name of a file that is staged already. What lies below a file
// does not count either.
void TstCPage3Add::aFileBelowARowThatIsShownUnderAFileIsInTheImageButNotStaged()
{
    underASelectedFileTheRowShowsThereButTheFileGoesBesideIt();
    fixture->setSelected(fixture->row({"a.txt", "b.txt"}));
    QCOMPARE(fixture->page->GetCurrSelectDir(), QString("a.txt/"));
    fixture->addFiles({fixture->makeFile("c.txt", "CCC")});
    QCOMPARE(fixture->row({"a.txt", "b.txt", "c.txt"})->text(1), QString("a.txt"));
    QCOMPARE(fixture->totalText(), QString("Total Size: 2 B"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList({"a.txt", "b.txt"}));
}

void TstCPage3Add::sameFileTwiceIsOneRowAndOneCopy()
{
    const QString file = fixture->makeFile("a.txt", "12345");
    QVERIFY(fixture->holdQueue());
    fixture->addFiles({file});
    fixture->addFiles({file});
    QCOMPARE(fixture->outline(), QStringList("a.txt"));
    QCOMPARE(fixture->totalText(), QString("Total Size: 5 B"));
    // Every queued copy counts.
    QCOMPARE(fixture->page->stagingQueue().GetLeftTaskBytes(), qint64(5));
    // One removal takes the one item out, and there is nothing left to remove.
    fixture->remove({"a.txt"});
    QCOMPARE(fixture->totalText(), QString("Total Size: 0 B"));
    QVERIFY(fixture->finish());
    QVERIFY(fixture->staged().isEmpty());
}

void TstCPage3Add::sameFileTwiceInOneChoiceIsOneRow()
{
    const QString file = fixture->makeFile("a.txt");
    fixture->addFiles({file, file});
    QCOMPARE(fixture->outline(), QStringList("a.txt"));
}

void TstCPage3Add::sameFileUnderAnotherRowOfTheSameFolderIsRefused()
{
    const QString file = fixture->makeFile("a.txt");
    fixture->addFiles({file, fixture->makeFile("b.txt")});
    fixture->setSelected(fixture->row({"b.txt"}));
    fixture->addFiles({file});
    QCOMPARE(fixture->outline(), QStringList({"a.txt", "b.txt"}));
}

void TstCPage3Add::sameFileInAnotherFolderIsAddedAgain()
{
    const QString file = fixture->makeFile("a.txt", "12345");
    fixture->makeFile("folder/inside.txt");
    fixture->addFolders({fixture->path("folder")});
    fixture->addFiles({file});
    fixture->setSelected(fixture->row({"folder", "inside.txt"}));
    fixture->addFiles({file});
    QCOMPARE(fixture->totalText(), QString("Total Size: 11 B"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().value("a.txt"), QByteArray("12345"));
    QCOMPARE(fixture->staged().value("folder/a.txt"), QByteArray("12345"));
}

void TstCPage3Add::secondFileOfTheSameNameFromElsewhereIsSkippedSilently()
{
    fixture->addFiles({fixture->makeFile("one/a.txt", "first")});
    fixture->addFiles({fixture->makeFile("two/a.txt", "the second")});
    QCOMPARE(fixture->outline(), QStringList("a.txt"));
    QCOMPARE(fixture->row({"a.txt"})->text(2), QString("5 B"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().value("a.txt"), QByteArray("first"));
    QCOMPARE(readFile(fixture->path("two/a.txt")), QByteArray("the second"));
}

void TstCPage3Add::namesThatDifferInCaseAreTwoFiles()
{
    fixture->addFiles({fixture->makeFile("a.txt", "small"), fixture->makeFile("A.txt", "large")});
    QCOMPARE(fixture->outline(), QStringList({"a.txt", "A.txt"}));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(),
             (QMap<QString, QByteArray>{{"A.txt", "large"}, {"a.txt", "small"}}));
}

void TstCPage3Add::refusedFilesDoNotStopTheOthers()
{
    fixture->addFiles({fixture->makeFile("b.txt")});
    fixture->addFiles({fixture->makeFile("a.txt"), fixture->path("b.txt"), //
                       fixture->makeFile("c.txt")});
    QCOMPARE(fixture->outline(), QStringList({"b.txt", "a.txt", "c.txt"}));
}

void TstCPage3Add::cancelChangesNothing()
{
    fixture->addFiles({});
    fixture->addFolders({});
    QCOMPARE(fixture->outline(), QStringList());
    QCOMPARE(fixture->totalText(), QString("Total Size : 0 KB"));
    QVERIFY(!fixture->page->stagingQueue().HasTasks());
    QVERIFY(!QApplication::overrideCursor());
}

void TstCPage3Add::changedFileIsStagedAsItIsWhenItsTurnComes()
{
    QVERIFY(fixture->holdQueue());
    fixture->addFiles({fixture->makeFile("a.txt", "old")});
    fixture->makeFile("a.txt", "new content");
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().value("a.txt"), QByteArray("new content"));
    QCOMPARE(fixture->row({"a.txt"})->text(2), QString("3 B"));
}

void TstCPage3Add::cursorIsBusyWhileFilesAreAddedAndNoLonger()
{
    QList<int> shapes;
    Receiver receiver([&shapes] {
        const QCursor* const cursor = QApplication::overrideCursor();
        shapes.append(cursor ? int(cursor->shape()) : -1);
    });
    connect(fixture->list()->model(), SIGNAL(rowsInserted(QModelIndex, int, int)), &receiver,
            SLOT(call()));
    fixture->addFiles({fixture->makeFile("folder/a.txt")});
    QVERIFY(!QApplication::overrideCursor());
    fixture->addFolders({fixture->path("folder")});
    QVERIFY(!QApplication::overrideCursor());
    // The file's, the folder's and that of what it holds.
    QCOMPARE(shapes, QList<int>({Qt::WaitCursor, Qt::WaitCursor, Qt::WaitCursor}));
    // All refused.
    fixture->addFiles({fixture->path("folder/a.txt")});
    QVERIFY(!QApplication::overrideCursor());
    fixture->addFolders({fixture->path("folder")});
    QVERIFY(!QApplication::overrideCursor());
}

void TstCPage3Add::addedFileIsStagedWithItsContent()
{
    QByteArray content;
    for (int i = 0; i < 100000; ++i)
        content.append(char(i * 7));
    fixture->addFiles({fixture->makeFile("a.bin", content), fixture->makeFile("empty", {})});
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(), (QMap<QString, QByteArray>{{"a.bin", content}, {"empty", {}}}));
}

KORVEX_TEST_MAIN(TstCPage3Add)
#include "tst_cpage3_add.moc"
