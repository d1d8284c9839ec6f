// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "stagingpagefixture.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QDateTime>
#include <QDir>

// Adding folders on the Create page: everything below them as rows, one copy for all of it.
class TstCPage3Folders : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void folderRowHasItsFiveColumns();
    void rowsBelowAFolderHaveTheirColumns();
    void entriesComeByNameWhateverTheirCase();
    void hiddenEntriesAreNeitherListedNorStaged();
    void emptyFolderIsARowAndAFolder();
    void severalFoldersAreAddedInOrder();
    void sameFolderTwiceIsAddedOnce();
    void secondFolderOfTheSameNameIsSkippedWithAllItHolds();
    void folderWithTheNameOfAFileIsSkipped();
    void underASelectedTopRowTheFolderShowsThereButGoesToTheRoot();
    void underASelectedNestedRowTheFolderGoesIntoTheFolderThatHoldsIt();
    void folderInsideAnAddedOneCanBeAddedByItself();
    void fiftyLevelsDeep();
    void tenThousandFilesInOneFolder();
    void folderFillsTopLevelRowsWhenAListIsGiven();
    void deleteOfARowTakesAllRowsBelowIt();

private:
    void addFolder(const QString& name) const { fixture->addFolders({fixture->path(name)}); }

    std::unique_ptr<StagingPageFixture> fixture;
};

void TstCPage3Folders::init()
{
    TestCase::init();
    fixture = std::make_unique<StagingPageFixture>();
}

void TstCPage3Folders::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
    QVERIFY(!QApplication::overrideCursor());
}

void TstCPage3Folders::folderRowHasItsFiveColumns()
{
    fixture->makeFile("folder/a.txt", "12345");
    const QDateTime time = QFileInfo(fixture->path("folder")).lastModified();
    addFolder("folder");
    const QTreeWidgetItem* const row = fixture->row({"folder"});
    QCOMPARE(fixture->texts(row), QStringList({"folder", "", "", "Folder", Util::QT2String(time)}));
    QCOMPARE(row->data(0, Qt::UserRole), QVariant(1));
    QCOMPARE(row->icon(0).name(), QFileIconProvider().icon(QFileIconProvider::Folder).name());
    QCOMPARE(fixture->totalText(), QString("Total Size: 5 B"));
}

void TstCPage3Folders::rowsBelowAFolderHaveTheirColumns()
{
    const QString file = fixture->makeFile("folder/sub/a.txt", QByteArray(2048, 'x'));
    addFolder("folder");
    const QTreeWidgetItem* const sub = fixture->row({"folder", "sub"});
    QCOMPARE(fixture->texts(sub).mid(0, 4), QStringList({"sub", "folder", "", "Folder"}));
    QCOMPARE(sub->data(0, Qt::UserRole), QVariant(1));
    const QTreeWidgetItem* const row = fixture->row({"folder", "sub", "a.txt"});
    const QString time = Util::QT2String(QFileInfo(file).lastModified());
    QCOMPARE(fixture->texts(row),
             QStringList({"a.txt", "folder/sub", "2 KB", QFileIconProvider().type({file}), time}));
    QVERIFY(!row->data(0, Qt::UserRole).isValid());
}

void TstCPage3Folders::entriesComeByNameWhateverTheirCase()
{
    for (const char* const name : {"b.txt", "C/x", "a.txt", "D.txt"})
        fixture->makeFile(QString("folder/") + name);
    addFolder("folder");
    QStringList names;
    for (int i = 0; i < fixture->row({"folder"})->childCount(); ++i)
        names.append(fixture->row({"folder"})->child(i)->text(0));
    QCOMPARE(names, QStringList({"a.txt", "b.txt", "C", "D.txt"}));
}

void TstCPage3Folders::hiddenEntriesAreNeitherListedNorStaged()
{
    for (const char* const name : {"a.txt", ".hidden", ".folder/b.txt", "sub/.hidden"})
        fixture->makeFile(QString("folder/") + name);
    addFolder("folder");
    QCOMPARE(fixture->outline(), QStringList({"folder", "folder > a.txt", "folder > sub"}));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList({"folder/", "folder/a.txt", "folder/sub/"}));
}

void TstCPage3Folders::emptyFolderIsARowAndAFolder()
{
    QVERIFY(QDir().mkpath(fixture->path("empty")));
    addFolder("empty");
    QCOMPARE(fixture->outline(), QStringList("empty"));
    QCOMPARE(fixture->totalText(), QString("Total Size: 0 B"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList("empty/"));
}

void TstCPage3Folders::severalFoldersAreAddedInOrder()
{
    fixture->makeFile("b/x");
    fixture->makeFile("a/y");
    fixture->addFolders({fixture->path("b"), fixture->path("a")});
    QCOMPARE(fixture->outline(), QStringList({"b", "b > x", "a", "a > y"}));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList({"a/", "a/y", "b/", "b/x"}));
}

void TstCPage3Folders::sameFolderTwiceIsAddedOnce()
{
    fixture->makeFile("folder/a.txt", "12345");
    QVERIFY(fixture->holdQueue());
    addFolder("folder");
    fixture->setSelected(fixture->row({"folder"}));
    addFolder("folder");
    QCOMPARE(fixture->outline(), QStringList({"folder", "folder > a.txt"}));
    // Every queued copy counts.
    QCOMPARE(fixture->page->stagingQueue().GetLeftTaskBytes(), qint64(5));
    QVERIFY(fixture->finish());
    // A second copy of a folder would have taken the file away on both sides.
    QCOMPARE(fixture->staged().value("folder/a.txt"), QByteArray("12345"));
    QCOMPARE(readFile(fixture->path("folder/a.txt")), QByteArray("12345"));
}

void TstCPage3Folders::secondFolderOfTheSameNameIsSkippedWithAllItHolds()
{
    fixture->makeFile("one/folder/a.txt", "first");
    fixture->makeFile("two/folder/b.txt", "second");
    addFolder("one/folder");
    addFolder("two/folder");
    QCOMPARE(fixture->outline(), QStringList({"folder", "folder > a.txt"}));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList({"folder/", "folder/a.txt"}));
}

void TstCPage3Folders::folderWithTheNameOfAFileIsSkipped()
{
    fixture->addFiles({fixture->makeFile("one/thing", "file")});
    fixture->makeFile("two/thing/a.txt");
    addFolder("two/thing");
    QCOMPARE(fixture->outline(), QStringList("thing"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(), (QMap<QString, QByteArray>{{"thing", "file"}}));
}

void TstCPage3Folders::underASelectedTopRowTheFolderShowsThereButGoesToTheRoot()
{
    fixture->makeFile("first/a.txt");
    fixture->makeFile("second/sub/b.txt");
    addFolder("first");
    fixture->setSelected(fixture->row({"first"}));
    addFolder("second");
    QCOMPARE(fixture->row({"first", "second"})->text(1), QString());
    QCOMPARE(fixture->row({"first", "second", "sub", "b.txt"})->text(1), QString("second/sub"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(),
             QStringList({"first/", "first/a.txt", "second/", "second/sub/", "second/sub/b.txt"}));
}

void TstCPage3Folders::underASelectedNestedRowTheFolderGoesIntoTheFolderThatHoldsIt()
{
    fixture->makeFile("a/b/c.txt");
    fixture->makeFile("new/d.txt");
    addFolder("a");
    fixture->setSelected(fixture->row({"a", "b", "c.txt"}));
    addFolder("new");
    QCOMPARE(fixture->row({"a", "b", "c.txt", "new"})->text(1), QString("a/b"));
    QCOMPARE(fixture->row({"a", "b", "c.txt", "new", "d.txt"})->text(1), QString("a/b/new"));
    QVERIFY(fixture->finish());
    QVERIFY(fixture->staged().contains("a/b/new/d.txt"));
}

void TstCPage3Folders::folderInsideAnAddedOneCanBeAddedByItself()
{
    fixture->makeFile("a/b/c.txt", "CC");
    addFolder("a");
    addFolder("a/b");
    QCOMPARE(fixture->outline(), QStringList({"a", "a > b", "a > b > c.txt", "b", "b > c.txt"}));
    QCOMPARE(fixture->totalText(), QString("Total Size: 4 B"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList({"a/", "a/b/", "a/b/c.txt", "b/", "b/c.txt"}));
}

void TstCPage3Folders::fiftyLevelsDeep()
{
    QStringList names;
    for (int level = 0; level < 50; ++level)
        names.append(QString("level %1").arg(level));
    const QString folder = names.join('/');
    fixture->makeFile(folder + "/deep.txt", "deep");
    addFolder(names.first());
    const QTreeWidgetItem* const row = fixture->row(names + QStringList("deep.txt"));
    QVERIFY(row);
    QCOMPARE(row->text(1), folder);
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().value(folder + "/deep.txt"), QByteArray("deep"));
    // A row at the bottom can be removed as well.
    fixture->remove(names + QStringList("deep.txt"));
    QVERIFY(fixture->finish());
    QVERIFY(!fixture->staged().contains(folder + "/deep.txt"));
    QVERIFY(fixture->staged().contains(folder + '/'));
}

void TstCPage3Folders::tenThousandFilesInOneFolder()
{
    constexpr int count = 10000;
    const auto nameOf = [](int i) { return QString("file %1").arg(i, 5, 10, QChar('0')); };
    for (int i = 0; i < count; ++i)
        fixture->makeFile("folder/" + nameOf(i));
    addFolder("folder");
    const QTreeWidgetItem* const folder = fixture->row({"folder"});
    QCOMPARE(folder->childCount(), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(fixture->texts(folder->child(i)).mid(0, 3),
                 QStringList({nameOf(i), "folder", "1 B"}));
    QCOMPARE(fixture->totalText(), QString("Total Size: 9.77 KB"));
    QVERIFY(fixture->finish());
    QCOMPARE(entriesOf(fixture->stagingFolder() + "/folder").size(), count);
    fixture->remove({"folder"});
    QCOMPARE(fixture->outline(), QStringList());
    QVERIFY(fixture->finish());
    QVERIFY(fixture->staged().isEmpty());
}

void TstCPage3Folders::folderFillsTopLevelRowsWhenAListIsGiven()
{
    fixture->makeFile("folder/sub/a.txt");
    fixture->makeFile("folder/b.txt");
    Item item;
    item.path = "in/image";
    fixture->page->InnerAddDir(&item, fixture->path("folder"), nullptr, fixture->list());
    QCOMPARE(fixture->outline(), QStringList({"b.txt", "sub", "sub > a.txt"}));
    QCOMPARE(item.children.size(), 2);
    QCOMPARE(item.children.at(1).children.first().path, QString("in/image/sub/a.txt"));
    QCOMPARE(item.children.at(0).sizeText, QString("1"));
    QCOMPARE(item.children.at(0).localPath, fixture->path("folder/b.txt"));
    QVERIFY(!item.children.at(0).isDir);
    QVERIFY(item.children.at(1).isDir);
    // It copies nothing.
    QVERIFY(!fixture->page->stagingQueue().HasTasks());
}

void TstCPage3Folders::deleteOfARowTakesAllRowsBelowIt()
{
    fixture->makeFile("a/b/c.txt");
    fixture->makeFile("a/d.txt");
    addFolder("a");
    fixture->page->del(fixture->row({"a", "b"}));
    QCOMPARE(fixture->outline(), QStringList({"a", "a > d.txt"}));
    fixture->page->del(fixture->row({"a"}));
    QCOMPARE(fixture->outline(), QStringList());
}

KORVEX_TEST_MAIN(TstCPage3Folders)
#include "tst_cpage3_folders.moc"
