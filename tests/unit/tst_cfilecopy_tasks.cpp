// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "filecopytest.h"
#include "testmain.h"
#include "util.h"

// What each kind of task does to files, folders and what is not there.
class TstCFileCopyTasks : public FileCopyTest
{
    Q_OBJECT

private slots:
    void fileIsCopiedToTheFullTargetPath();
    void folderIsCopiedIntoTheTarget();
    void copyOfWhatIsMissingMakesAnEmptyFolder();
    void copyMakesTheTargetsFolders();
    void copiedFileReplacesItsNamesake();
    void copiedFolderMergesWithItsNamesake();
    void pipeIsNoFileAndIsNeverReadFrom();
    void emptyFoldersAreCopied();
    void linkToItsOwnParentIsCopiedAsAnEmptyFolder();
    void fileIsDeleted();
    void folderIsDeletedWithEverythingInIt();
    void deletionOfWhatIsMissingDoesNothing();
    void deletionOfNothingLeavesTheCurrentFolder();
    void fileIsMoved();
    void folderIsMoved();
    void moveOfWhatIsMissingDoesNothing();
    void moveNeverReplaces();
    void moveMakesNoFolders();
    void unknownTypeIsRemovedWithoutEffect_data();
    void unknownTypeIsRemovedWithoutEffect();

private:
    // Carries out one task in a queue of its own.
    static bool carryOut(const QString& source, const QString& destination, int type);
};

bool TstCFileCopyTasks::carryOut(const QString& source, const QString& destination, int type)
{
    CFileCopy queue(nullptr);
    queue.AddTask(source, destination, type);
    return hasEmptied(queue);
}

void TstCFileCopyTasks::fileIsCopiedToTheFullTargetPath()
{
    const QByteArray content(10'000, 'x');
    writeFile(path("a"), content);
    QVERIFY(carryOut(path("a"), path("b"), CFileCopy::Copy));
    QCOMPARE(readFile(path("b")), content);
    QCOMPARE(readFile(path("a")), content);
    QCOMPARE(Util::copyedsize.load(), qint64(10'000));
}

void TstCFileCopyTasks::folderIsCopiedIntoTheTarget()
{
    writeFile(path("a/deep/er/file"), "1");
    QVERIFY(carryOut(path("a"), path("b"), CFileCopy::Copy));
    QCOMPARE(entriesOf(path("b")), QStringList("a"));
    QCOMPARE(readFile(path("b/a/deep/er/file")), QByteArray("1"));
    QCOMPARE(readFile(path("a/deep/er/file")), QByteArray("1"));
}

void TstCFileCopyTasks::copyOfWhatIsMissingMakesAnEmptyFolder()
{
    QVERIFY(carryOut(path("missing"), path("b"), CFileCopy::Copy));
    QCOMPARE(entriesOf(path("b")), QStringList("missing"));
    QVERIFY(QFileInfo(path("b/missing")).isDir());
    QVERIFY(entriesOf(path("b/missing")).isEmpty());
}

void TstCFileCopyTasks::copyMakesTheTargetsFolders()
{
    writeFile(path("a"), "1");
    writeFile(path("f/file"), "2");
    QVERIFY(carryOut(path("a"), path("new/one/a"), CFileCopy::Copy));
    QVERIFY(carryOut(path("f"), path("new/two"), CFileCopy::Copy));
    QCOMPARE(readFile(path("new/one/a")), QByteArray("1"));
    QCOMPARE(readFile(path("new/two/f/file")), QByteArray("2"));
}

void TstCFileCopyTasks::copiedFileReplacesItsNamesake()
{
    writeFile(path("a"), "new");
    writeFile(path("b"), "older and longer");
    QVERIFY(carryOut(path("a"), path("b"), CFileCopy::Copy));
    QCOMPARE(readFile(path("b")), QByteArray("new"));
}

void TstCFileCopyTasks::copiedFolderMergesWithItsNamesake()
{
    writeFile(path("a/new"), "1");
    writeFile(path("b/a/old"), "2");
    QVERIFY(carryOut(path("a"), path("b"), CFileCopy::Copy));
    QCOMPARE(entriesOf(path("b/a")), QStringList({"new", "old"}));
}

void TstCFileCopyTasks::pipeIsNoFileAndIsNeverReadFrom()
{
    const HeldCopy pipe(path(""));
    QVERIFY(carryOut(pipe.destination(), path("b"), CFileCopy::Copy));
    QVERIFY(QFileInfo(path("b/held.pipe")).isDir());
}

void TstCFileCopyTasks::emptyFoldersAreCopied()
{
    QVERIFY(QDir().mkpath(path("a/one")));
    QVERIFY(QDir().mkpath(path("a/two/three")));
    QVERIFY(carryOut(path("a"), path("b"), CFileCopy::Copy));
    QCOMPARE(entriesOf(path("b/a")), QStringList({"one", "two"}));
    QCOMPARE(entriesOf(path("b/a/two")), QStringList("three"));
}

void TstCFileCopyTasks::linkToItsOwnParentIsCopiedAsAnEmptyFolder()
{
    writeFile(path("a/sub/file"), "1");
    QVERIFY(QFile::link(path("a"), path("a/sub/link")));
    QVERIFY(carryOut(path("a"), path("b"), CFileCopy::Copy));
    QCOMPARE(entriesOf(path("b/a/sub")), QStringList({"file", "link"}));
    QVERIFY(entriesOf(path("b/a/sub/link")).isEmpty());
}

void TstCFileCopyTasks::fileIsDeleted()
{
    writeFile(path("a"), "1");
    writeFile(path("b"), "2");
    QVERIFY(carryOut(path("a"), QString(), CFileCopy::Delete));
    QCOMPARE(entriesOf(path("")), QStringList("b"));
}

void TstCFileCopyTasks::folderIsDeletedWithEverythingInIt()
{
    writeFile(path("a/deep/er/file"), "1");
    writeFile(path("a/.hidden"), "2");
    QVERIFY(QFile::link(path("missing"), path("a/broken")));
    QVERIFY(carryOut(path("a"), QString(), CFileCopy::Delete));
    QVERIFY(entriesOf(path("")).isEmpty());
}

void TstCFileCopyTasks::deletionOfWhatIsMissingDoesNothing()
{
    writeFile(path("a"), "1");
    QVERIFY(carryOut(path("missing"), QString(), CFileCopy::Delete));
    QCOMPARE(entriesOf(path("")), QStringList("a"));
}

void TstCFileCopyTasks::deletionOfNothingLeavesTheCurrentFolder()
{
    writeFile(path("a"), "1");
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(path("")));
    const bool done = carryOut(QString(), QString(), CFileCopy::Delete);
    QDir::setCurrent(before);
    QVERIFY(done);
    QCOMPARE(entriesOf(path("")), QStringList("a"));
}

void TstCFileCopyTasks::fileIsMoved()
{
    writeFile(path("a"), "1");
    QVERIFY(carryOut(path("a"), path("b"), CFileCopy::Move));
    QCOMPARE(entriesOf(path("")), QStringList("b"));
    QCOMPARE(readFile(path("b")), QByteArray("1"));
}

void TstCFileCopyTasks::folderIsMoved()
{
    writeFile(path("a/deep/file"), "1");
    QVERIFY(QDir().mkpath(path("sub")));
    QVERIFY(carryOut(path("a"), path("sub/b"), CFileCopy::Move));
    QCOMPARE(entriesOf(path("")), QStringList("sub"));
    QCOMPARE(readFile(path("sub/b/deep/file")), QByteArray("1"));
}

void TstCFileCopyTasks::moveOfWhatIsMissingDoesNothing()
{
    QVERIFY(carryOut(path("missing"), path("b"), CFileCopy::Move));
    QVERIFY(entriesOf(path("")).isEmpty());
}

void TstCFileCopyTasks::moveNeverReplaces()
{
    writeFile(path("a"), "1");
    writeFile(path("b"), "2");
    writeFile(path("f/file"), "3");
    writeFile(path("g/file"), "4");
    QVERIFY(carryOut(path("a"), path("b"), CFileCopy::Move));
    QVERIFY(carryOut(path("f"), path("g"), CFileCopy::Move));
    QVERIFY(carryOut(path("f"), path("b"), CFileCopy::Move));
    QCOMPARE(entriesOf(path("")), QStringList({"a", "b", "f", "g"}));
    QCOMPARE(readFile(path("b")), QByteArray("2"));
    QCOMPARE(readFile(path("g/file")), QByteArray("4"));
}

void TstCFileCopyTasks::moveMakesNoFolders()
{
    writeFile(path("a"), "1");
    writeFile(path("f/file"), "2");
    QVERIFY(carryOut(path("a"), path("new/a"), CFileCopy::Move));
    QVERIFY(carryOut(path("f"), path("new/f"), CFileCopy::Move));
    QCOMPARE(entriesOf(path("")), QStringList({"a", "f"}));
}

void TstCFileCopyTasks::unknownTypeIsRemovedWithoutEffect_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {-1, 3, 4, 256, INT_MIN, INT_MAX})
        QTest::addRow("%d", type) << type;
}

void TstCFileCopyTasks::unknownTypeIsRemovedWithoutEffect()
{
    QFETCH(int, type);
    writeFile(path("a"), "1");
    writeFile(path("f/file"), "2");
    Util::copyedsize = 7;
    QVERIFY(carryOut(path("a"), path("b"), type));
    QVERIFY(carryOut(path("f"), path("b"), type));
    QCOMPARE(entriesOf(path("")), QStringList({"a", "f"}));
    QCOMPARE(Util::copyedsize.load(), qint64(0));
}

KORVEX_TEST_MAIN(TstCFileCopyTasks)

#include "tst_cfilecopy_tasks.moc"
