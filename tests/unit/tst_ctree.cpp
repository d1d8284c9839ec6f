// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "ctree.h"
#include "testcase.h"
#include "testmain.h"

#include <QTemporaryDir>

namespace
{

Item fileItem(const QString& path, const QString& size = "1")
{
    Item item;
    item.path = path;
    item.isDir = false;
    item.sizeText = size;
    item.timeText = "2026-11-21 06:50:51";
    return item;
}

bool add(CTree& tree, const QString& path)
{
    Item item = fileItem(path);
    return tree.AddItem(item);
}

QStringList childPaths(const Item& folder)
{
    QStringList paths;
    for (const Item& child : folder.children)
        paths.append(child.path);
    return paths;
}

} // namespace

class TstCTree : public TestCase
{
    Q_OBJECT

private slots:
    void renameOfAFolderLeavesTheChildrensPaths();
    void copyOfAnItemHasASubtreeOfItsOwn();
    void assignmentOfASubtreeToItsOwnParent();
    void emptyPathIsNotAdded();
    void missingFoldersAreCreatedOnTheWay();
    void folderLineAfterItsFilesIsDroppedAndTheFolderStaysWithoutTime();
    void samePathTwiceKeepsTheFirst();
    void fileAndFolderOfOneNameClash();
    void namesDifferByCase();
    void entriesStayInInsertionOrder();
    void getItemFindsFoldersCreatedOnTheWay();
    void getItemGoesOnAfterAMiss();
    void leadingSlashMakesAFolderWithoutName();
    void trailingSlashMakesAnEntryWithoutName();
    void innerAddDirCreatesTheLastLevelToo();
    void innerAddDirEntersAFileAsIfItWereAFolder();
    void removeItemTakesTheSubtree();
    void removeItemKeepsTheOrderOfTheOthers();
    void pointersSurviveAddingAndRemovingOthers();
    void totalSizeOfAListingIsZero();
    void totalSizeMeasuresAddedFilesOnDisk();
    void clearEmptiesEverything();
    void fiftyThousandEntries();
};

void TstCTree::renameOfAFolderLeavesTheChildrensPaths()
{
    CTree tree;
    add(tree, "a/b/c.txt");
    Item* const folder = tree.GetItem("a/b");
    folder->Rename("renamed");
    QCOMPARE(folder->path, QString("a/renamed"));
    QCOMPARE(childPaths(*folder), QStringList("a/b/c.txt"));
}

void TstCTree::copyOfAnItemHasASubtreeOfItsOwn()
{
    CTree tree;
    add(tree, "a/b.txt");
    Item* const inTree = tree.GetItem("a/b.txt");
    const Item copy = *tree.GetItem("a");
    // Changing the tree must not move its entries to a new list because the copy shares them.
    add(tree, "a/c.txt");
    QCOMPARE(tree.GetItem("a/b.txt"), inTree);
    QCOMPARE(childPaths(copy), QStringList("a/b.txt"));
}

void TstCTree::assignmentOfASubtreeToItsOwnParent()
{
    CTree tree;
    add(tree, "a/b/c.txt");
    tree.root = *tree.GetItem("a");
    QCOMPARE(childPaths(tree.root), QStringList("a/b"));
    QCOMPARE(childPaths(tree.root.children.first()), QStringList("a/b/c.txt"));
}

void TstCTree::emptyPathIsNotAdded()
{
    CTree tree;
    QVERIFY(!add(tree, ""));
    tree.InnerAddDir("");
    tree.RemoveItem("");
    QVERIFY(tree.root.children.isEmpty());
    QVERIFY(!tree.GetItem(""));
}

void TstCTree::missingFoldersAreCreatedOnTheWay()
{
    CTree tree;
    QVERIFY(add(tree, "x/y/z"));
    for (const char* const path : {"x", "x/y"}) {
        const Item* const folder = tree.GetItem(path);
        QVERIFY(folder && folder->isDir);
        QVERIFY(folder->sizeText.isEmpty() && folder->timeText.isEmpty());
    }
    QVERIFY(!tree.GetItem("x/y/z")->isDir);
    QVERIFY(!add(tree, "x"));
}

void TstCTree::folderLineAfterItsFilesIsDroppedAndTheFolderStaysWithoutTime()
{
    CTree tree;
    add(tree, "a/f");
    Item line;
    line.path = "a";
    line.timeText = "2026-11-21 06:50:51";
    QVERIFY(!tree.AddItem(line));
    QVERIFY(tree.GetItem("a")->timeText.isEmpty());
}

void TstCTree::samePathTwiceKeepsTheFirst()
{
    CTree tree;
    Item first = fileItem("a/f", "10");
    Item second = fileItem("a/f", "20");
    QVERIFY(tree.AddItem(first));
    QVERIFY(!tree.AddItem(second));
    QCOMPARE(tree.GetItem("a/f")->sizeText, QString("10"));
    QCOMPARE(tree.GetItem("a")->children.size(), 1);
}

void TstCTree::fileAndFolderOfOneNameClash()
{
    CTree tree;
    QVERIFY(add(tree, "n"));
    Item folder;
    folder.path = "n";
    QVERIFY(!tree.AddItem(folder));
    QVERIFY(!tree.GetItem("n")->isDir);
    // An entry below is hung into the file: nothing looks at what it is.
    QVERIFY(add(tree, "n/below"));
    QCOMPARE(tree.GetItem("n")->children.size(), 1);
}

void TstCTree::namesDifferByCase()
{
    CTree tree;
    QVERIFY(add(tree, "Docs"));
    QVERIFY(add(tree, "docs"));
    QCOMPARE(childPaths(tree.root), QStringList({"Docs", "docs"}));
}

void TstCTree::entriesStayInInsertionOrder()
{
    CTree tree;
    for (const char* const path : {"z", "a/1", "m", "B", "a/0"})
        add(tree, path);
    QCOMPARE(childPaths(tree.root), QStringList({"z", "a", "m", "B"}));
    QCOMPARE(childPaths(*tree.GetItem("a")), QStringList({"a/1", "a/0"}));
}

void TstCTree::getItemFindsFoldersCreatedOnTheWay()
{
    CTree tree;
    add(tree, "x/y/z");
    QVERIFY(tree.GetItem("x/y"));
    QVERIFY(!tree.GetItem("q"));
    QVERIFY(!tree.GetItem("x/q/z"));
    QVERIFY(!tree.GetItem("x/y/z/deeper"));
    QVERIFY(!tree.GetItem("X"));
}

void TstCTree::getItemGoesOnAfterAMiss()
{
    CTree tree;
    // An entry whose folder does not exist, as a rename of a folder leaves them.
    tree.root.children.append(fileItem("gone/file"));
    QVERIFY(tree.GetItem("gone/file"));
    tree.RemoveItem("gone/file");
    QVERIFY(tree.root.children.isEmpty());
}

void TstCTree::leadingSlashMakesAFolderWithoutName()
{
    CTree tree;
    QVERIFY(add(tree, "/a"));
    QCOMPARE(childPaths(tree.root), QStringList(""));
    QVERIFY(tree.root.children.first().isDir);
    QCOMPARE(childPaths(tree.root.children.first()), QStringList("/a"));
    QVERIFY(add(tree, "/b"));
    QCOMPARE(tree.root.children.size(), 1);
}

void TstCTree::trailingSlashMakesAnEntryWithoutName()
{
    CTree tree;
    QVERIFY(add(tree, "a/"));
    QCOMPARE(childPaths(*tree.GetItem("a")), QStringList("a/"));
    QVERIFY(!add(tree, "a/"));
}

void TstCTree::innerAddDirCreatesTheLastLevelToo()
{
    CTree tree;
    tree.InnerAddDir("a/b/c");
    tree.InnerAddDir("a/b/d");
    QVERIFY(tree.GetItem("a/b/c")->isDir);
    QCOMPARE(childPaths(*tree.GetItem("a/b")), QStringList({"a/b/c", "a/b/d"}));
    QCOMPARE(childPaths(tree.root), QStringList("a"));
}

void TstCTree::innerAddDirEntersAFileAsIfItWereAFolder()
{
    CTree tree;
    add(tree, "file");
    tree.InnerAddDir("file/sub");
    QVERIFY(!tree.GetItem("file")->isDir);
    QCOMPARE(childPaths(*tree.GetItem("file")), QStringList("file/sub"));
}

void TstCTree::removeItemTakesTheSubtree()
{
    CTree tree;
    add(tree, "x/y/z");
    tree.RemoveItem("x");
    QVERIFY(!tree.GetItem("x/y/z"));
    QVERIFY(!tree.GetItem("x"));
    tree.RemoveItem("x");
    QVERIFY(tree.root.children.isEmpty());
}

void TstCTree::removeItemKeepsTheOrderOfTheOthers()
{
    CTree tree;
    for (const char* const path : {"a", "b", "c", "d"})
        add(tree, path);
    tree.RemoveItem("b");
    QCOMPARE(childPaths(tree.root), QStringList({"a", "c", "d"}));
}

void TstCTree::pointersSurviveAddingAndRemovingOthers()
{
    CTree tree;
    add(tree, "folder/kept");
    Item* const folder = tree.GetItem("folder");
    Item* const kept = tree.GetItem("folder/kept");
    for (int i = 0; i < 1000; ++i) {
        add(tree, QString("other %1").arg(i));
        add(tree, QString("folder/other %1").arg(i));
    }
    tree.RemoveItem("other 0");
    tree.RemoveItem("folder/other 0");
    QCOMPARE(tree.GetItem("folder"), folder);
    QCOMPARE(tree.GetItem("folder/kept"), kept);
}

void TstCTree::totalSizeOfAListingIsZero()
{
    CTree tree;
    Item item = fileItem("a/big", "123456789");
    tree.AddItem(item);
    QCOMPARE(tree.TotalSize(), qint64(0));
}

void TstCTree::totalSizeMeasuresAddedFilesOnDisk()
{
    const QTemporaryDir folder;
    const QString onDisk = folder.filePath("added");
    QFile file(onDisk);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(1234, 'x'));
    file.close();
    CTree tree;
    Item added = fileItem("a/b/added", "7");
    added.localPath = onDisk;
    tree.AddItem(added);
    Item top = fileItem("top");
    top.localPath = onDisk;
    tree.AddItem(top);
    Item addedFolder;
    addedFolder.path = "folder";
    addedFolder.localPath = folder.path();
    tree.AddItem(addedFolder);
    QCOMPARE(tree.TotalSize(), qint64(2 * 1234));
    QCOMPARE(tree.InnerDirSize(*tree.GetItem("a")), qint64(1234));
    QVERIFY(QFile::remove(onDisk));
    QCOMPARE(tree.TotalSize(), qint64(0));
}

void TstCTree::clearEmptiesEverything()
{
    CTree tree;
    tree.name = "image.iso";
    tree.extra = "extra";
    tree.root.path = "p";
    tree.root.localPath = "/l";
    tree.root.sizeText = "1";
    tree.root.timeText = "t";
    tree.root.isDir = false;
    tree.root.children.append(fileItem("a"));
    tree.Clear();
    QVERIFY(tree.name.isEmpty() && tree.extra.isEmpty());
    QVERIFY(tree.root.path.isEmpty() && tree.root.localPath.isEmpty());
    QVERIFY(tree.root.sizeText.isEmpty() && tree.root.timeText.isEmpty());
    QVERIFY(tree.root.isDir && tree.root.children.isEmpty());
    QCOMPARE(tree.TotalSize(), qint64(0));
}

void TstCTree::fiftyThousandEntries()
{
    CTree tree;
    for (int folder = 0; folder < 500; ++folder) {
        for (int file = 0; file < 100; ++file)
            QVERIFY(add(tree, QString("folder %1/file %2").arg(folder).arg(file)));
    }
    QCOMPARE(tree.root.children.size(), 500);
    for (const Item& folder : qAsConst(tree.root.children))
        QCOMPARE(folder.children.size(), 100);
    QVERIFY(tree.GetItem("folder 499/file 99"));
}

KORVEX_TEST_MAIN(TstCTree)
#include "tst_ctree.moc"
