// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "foldertest.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

// Copying folders. A name that the destination already holds ends the copy and costs both files;
// that is deliberate and pinned here.
class TstUtilDirCopy : public FolderTest
{
    Q_OBJECT

private slots:
    void contentsAreCopiedAtEveryDepth();
    void emptyFoldersAreCopied();
    void contentsMergeIntoAnExistingFolder();
    void hiddenEntriesAreLeftOut();
    void oddNamesAreCopied();
    void namesThatBeginWithAColonAreCopied();
    void destinationWithinTheSourceIsNoPartOfTheCopy();
    void clashDeletesBothFilesAndEndsWithFalse();
    void clashLeavesWhatComesLaterByNameUncopied();
    void clashDeepInsideEndsTheWholeCopy();
    void fileClashingWithAFolderIsDeletedAndTheFolderKept();
    void folderClashingWithAFileEndsWithFalse();
    void missingSourceGivesAnEmptyFolder();
    void trailingSlashesDoNotMatter();
    void destinationThatCannotBeMadeIsFalse();
    void folderIsCopiedAsSubfolder();
    void folderItselfMergesWithItsNamesake();
    void folderItselfIntoAFileIsFalse();
};

void TstUtilDirCopy::contentsAreCopiedAtEveryDepth()
{
    writeFile(path("src/a"), "1");
    writeFile(path("src/sub/b"), "2");
    writeFile(path("src/sub/deep/er/c"), "3");
    Util::copyedsize = 0;
    QVERIFY(Util::DirCopy(path("src"), path("new/dst")));
    QCOMPARE(readFile(path("new/dst/a")), QByteArray("1"));
    QCOMPARE(readFile(path("new/dst/sub/b")), QByteArray("2"));
    QCOMPARE(readFile(path("new/dst/sub/deep/er/c")), QByteArray("3"));
    QCOMPARE(entriesOf(path("new/dst")), QStringList({"a", "sub"}));
    QCOMPARE(entriesOf(path("src")), QStringList({"a", "sub"}));
    QCOMPARE(Util::copyedsize.load(), qint64(3));
}

void TstUtilDirCopy::emptyFoldersAreCopied()
{
    QVERIFY(QDir().mkpath(path("src/empty")));
    QVERIFY(Util::DirCopy(path("src"), path("dst")));
    QVERIFY(QFileInfo(path("dst/empty")).isDir());
}

void TstUtilDirCopy::contentsMergeIntoAnExistingFolder()
{
    writeFile(path("src/sub/new"), "new");
    writeFile(path("dst/sub/old"), "old");
    QVERIFY(Util::DirCopy(path("src"), path("dst")));
    QCOMPARE(entriesOf(path("dst/sub")), QStringList({"new", "old"}));
    QCOMPARE(readFile(path("dst/sub/old")), QByteArray("old"));
}

void TstUtilDirCopy::hiddenEntriesAreLeftOut()
{
    writeFile(path("src/.hidden"), "1");
    writeFile(path("src/.folder/file"), "2");
    writeFile(path("src/seen"), "3");
    QVERIFY(Util::DirCopy(path("src"), path("dst")));
    QCOMPARE(entriesOf(path("dst")), QStringList("seen"));
}

void TstUtilDirCopy::oddNamesAreCopied()
{
    const QString name = QString::fromUtf8("-a \"b\" 'c' *? e\u0301 光盘 %1 \\");
    writeFile(folder->filePath("src/" + name + '/' + name), "content");
    QVERIFY(Util::DirCopy(path("src"), path("dst")));
    QCOMPARE(entriesOf(path("dst")), QStringList(name));
    QCOMPARE(readFile(folder->filePath("dst/" + name + '/' + name)), QByteArray("content"));
}

void TstUtilDirCopy::namesThatBeginWithAColonAreCopied()
{
    writeFile(path("src/:"), "1");
    writeFile(path("src/:a"), "2");
    writeFile(path("src/:f/:/:b"), "3");
    writeFile(path("src/z"), "4");
    QVERIFY(Util::DirCopy(path("src"), path("dst")));
    QCOMPARE(entriesOf(path("dst")), QStringList({":", ":a", ":f", "z"}));
    QCOMPARE(readFile(path("dst/:a")), QByteArray("2"));
    QCOMPARE(readFile(path("dst/:f/:/:b")), QByteArray("3"));
    QCOMPARE(Util::DirSize(path("src")), qint64(4));
    // Both sides of a clash go, as with any other name.
    QVERIFY(!Util::DirCopy(path("src"), path("dst")));
    QVERIFY(!QFile::exists(path("src/:")));
    QVERIFY(!QFile::exists(path("dst/:")));
}

void TstUtilDirCopy::clashDeletesBothFilesAndEndsWithFalse()
{
    writeFile(path("src/same"), "source");
    writeFile(path("dst/same"), "destination");
    QVERIFY(!Util::DirCopy(path("src"), path("dst")));
    QVERIFY(!QFile::exists(path("src/same")));
    QVERIFY(!QFile::exists(path("dst/same")));
}

void TstUtilDirCopy::clashLeavesWhatComesLaterByNameUncopied()
{
    for (const char* name : {"src/B", "src/a", "src/c", "src/D"})
        writeFile(path(name), name);
    writeFile(path("dst/c"), "destination");
    QVERIFY(!Util::DirCopy(path("src"), path("dst")));
    // By name whatever the case: a, B, c, D.
    QCOMPARE(entriesOf(path("dst")), QStringList({"B", "a"}));
    QCOMPARE(entriesOf(path("src")), QStringList({"B", "D", "a"}));
}

void TstUtilDirCopy::clashDeepInsideEndsTheWholeCopy()
{
    writeFile(path("src/a/b/same"), "source");
    writeFile(path("src/z"), "later");
    writeFile(path("dst/a/b/same"), "destination");
    QVERIFY(!Util::DirCopy(path("src"), path("dst")));
    QVERIFY(entriesOf(path("src/a/b")).isEmpty());
    QVERIFY(entriesOf(path("dst/a/b")).isEmpty());
    QVERIFY(!QFile::exists(path("dst/z")));
}

void TstUtilDirCopy::fileClashingWithAFolderIsDeletedAndTheFolderKept()
{
    writeFile(path("src/same"), "source");
    writeFile(path("dst/same/inside"), "kept");
    QVERIFY(!Util::DirCopy(path("src"), path("dst")));
    QVERIFY(!QFile::exists(path("src/same")));
    QCOMPARE(readFile(path("dst/same/inside")), QByteArray("kept"));
}

void TstUtilDirCopy::folderClashingWithAFileEndsWithFalse()
{
    writeFile(path("src/same/inside"), "kept");
    writeFile(path("dst/same"), "kept too");
    QVERIFY(!Util::DirCopy(path("src"), path("dst")));
    QCOMPARE(readFile(path("src/same/inside")), QByteArray("kept"));
    QCOMPARE(readFile(path("dst/same")), QByteArray("kept too"));
}

void TstUtilDirCopy::missingSourceGivesAnEmptyFolder()
{
    QVERIFY(Util::DirCopy(path("missing"), path("dst")));
    QVERIFY(QFileInfo(path("dst")).isDir());
    QVERIFY(entriesOf(path("dst")).isEmpty());
}

void TstUtilDirCopy::trailingSlashesDoNotMatter()
{
    writeFile(path("src/sub/a"), "1");
    QVERIFY(Util::DirCopy(path("src/"), path("dst/")));
    QCOMPARE(readFile(path("dst/sub/a")), QByteArray("1"));
    QVERIFY(Util::DirCopy2(path("src/"), path("dst2/")));
    QCOMPARE(readFile(path("dst2/src/sub/a")), QByteArray("1"));
}

void TstUtilDirCopy::destinationThatCannotBeMadeIsFalse()
{
    writeFile(path("src/a"), "1");
    writeFile(path("file"), "kept");
    QVERIFY(!Util::DirCopy(path("src"), path("file/dst")));
    QVERIFY(!Util::DirCopy(path("src"), path("file")));
    QCOMPARE(readFile(path("file")), QByteArray("kept"));
}

// Or the copy would find itself in the folder it copies, until no path gets longer.
void TstUtilDirCopy::destinationWithinTheSourceIsNoPartOfTheCopy()
{
    writeFile(path("a/file"), "1");
    writeFile(path("a/sub/beside"), "2");
    QVERIFY(Util::DirCopy2(path("a"), path("a/sub/deep")));
    QCOMPARE(entriesOf(path("a/sub/deep/a")), QStringList({"file", "sub"}));
    QCOMPARE(entriesOf(path("a/sub/deep/a/sub")), QStringList({"beside", "deep"}));
    QVERIFY(entriesOf(path("a/sub/deep/a/sub/deep")).isEmpty());
    QCOMPARE(readFile(path("a/sub/deep/a/sub/beside")), QByteArray("2"));

    writeFile(path("b/file"), "3");
    QVERIFY(Util::DirCopy2(path("b"), path("b")));
    QCOMPARE(entriesOf(path("b")), QStringList({"b", "file"}));
    QCOMPARE(entriesOf(path("b/b")), QStringList("file"));
}

void TstUtilDirCopy::folderIsCopiedAsSubfolder()
{
    writeFile(path("a/b/file"), "1");
    writeFile(path("a/b/sub/file"), "2");
    QVERIFY(Util::DirCopy2(path("a/b"), path("c")));
    QCOMPARE(entriesOf(path("c")), QStringList("b"));
    QCOMPARE(readFile(path("c/b/file")), QByteArray("1"));
    QCOMPARE(readFile(path("c/b/sub/file")), QByteArray("2"));
}

void TstUtilDirCopy::folderItselfMergesWithItsNamesake()
{
    writeFile(path("a/b/new"), "new");
    writeFile(path("c/b/old"), "old");
    QVERIFY(Util::DirCopy2(path("a/b"), path("c")));
    QCOMPARE(entriesOf(path("c/b")), QStringList({"new", "old"}));
}

void TstUtilDirCopy::folderItselfIntoAFileIsFalse()
{
    writeFile(path("a/b/new"), "new");
    writeFile(path("c"), "kept");
    QVERIFY(!Util::DirCopy2(path("a/b"), path("c")));
    QCOMPARE(readFile(path("c")), QByteArray("kept"));
}

KORVEX_TEST_MAIN(TstUtilDirCopy)

#include "tst_util_dircopy.moc"
