// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "filecopytest.h"
#include "testmain.h"
#include "util.h"

// What each kind of task does to files, folders and what is not there. Tasks that fail are silent
// and count as done.
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
    void tasksAreCarriedOutInTheOrderOfQueueing();
    void whetherTheSourceIsAFileIsSeenWhenItsTurnComes();
    void failedTaskIsSilentAndTheNextOneFollows_data();
    void failedTaskIsSilentAndTheNextOneFollows();
    void nameIsKept_data();
    void nameIsKept();

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

void TstCFileCopyTasks::tasksAreCarriedOutInTheOrderOfQueueing()
{
    writeFile(path("a"), "1");
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    // Any other order leaves other files.
    queue.AddTask(path("a"), path("b"), CFileCopy::Move);
    queue.AddTask(path("b"), path("c"), CFileCopy::Copy);
    queue.AddTask(path("b"), path("a"), CFileCopy::Move);
    queue.AddTask(path("c"), path("f/d"), CFileCopy::Copy);
    queue.AddTask(path("f"), path("g"), CFileCopy::Copy);
    queue.AddTask(path("c"), QString(), CFileCopy::Delete);
    queue.AddTask(path("f"), QString(), CFileCopy::Delete);
    QCOMPARE(entriesOf(path("")), QStringList({"a", "held.pipe", "held.source"}));
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("")), QStringList({"a", "g", "held.pipe", "held.source"}));
    QCOMPARE(readFile(path("g/f/d")), QByteArray("1"));
}

void TstCFileCopyTasks::whetherTheSourceIsAFileIsSeenWhenItsTurnComes()
{
    CFileCopy queue(nullptr);
    HeldCopy first(path(""));
    QVERIFY(hold(queue, first));
    queue.AddTask(path("a"), path("b"), CFileCopy::Copy);
    writeFile(path("a"), "1");
    QVERIFY(first.finish());
    QVERIFY(hasEmptied(queue));
    QCOMPARE(readFile(path("b")), QByteArray("1"));
}

void TstCFileCopyTasks::failedTaskIsSilentAndTheNextOneFollows_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("destination");
    QTest::addColumn<int>("type");
    const auto row = [](const char* name, const QString& source, const QString& destination,
                        int type) { QTest::newRow(name) << source << destination << type; };
    // Reading its beginning fails for everyone, while a mode does not stop everyone.
    row("source that cannot be read", "/proc/self/mem", "new", CFileCopy::Copy);
    row("source without permissions", "locked", "new", CFileCopy::Copy);
    row("file to below a file", "file", "file2/new", CFileCopy::Copy);
    row("file onto a full folder", "file", "folder", CFileCopy::Copy);
    row("folder into a file", "folder", "file", CFileCopy::Copy);
    row("folder to below a file", "folder", "file/new", CFileCopy::Copy);
    row("missing source to below a file", "missing", "file/new", CFileCopy::Copy);
    row("nothing to nowhere", "/proc/self/mem", "/proc/none", CFileCopy::Copy);
    row("deletion of what stays", "/proc/self/mem", "", CFileCopy::Delete);
    row("file moved to below a file", "file", "file2/new", CFileCopy::Move);
    row("folder moved into itself", "folder", "folder/new", CFileCopy::Move);
    row("file moved to another file system", "file", "/proc/new", CFileCopy::Move);
}

void TstCFileCopyTasks::failedTaskIsSilentAndTheNextOneFollows()
{
    QFETCH(QString, source);
    QFETCH(QString, destination);
    QFETCH(int, type);
    writeFile(path("file"), "1");
    writeFile(path("file2"), "2");
    writeFile(path("folder/file"), "3");
    writeFile(path("locked"), "4");
    QVERIFY(QFile::setPermissions(path("locked"), {}));
    CFileCopy queue(nullptr);
    queue.AddTask(path(source), path(destination), type);
    queue.AddTask(path("file2"), path("next"), CFileCopy::Copy);
    QVERIFY(hasEmptied(queue));
    // A folder that did not give way to a file has lost the permission to enter it.
    QVERIFY(QFile::setPermissions(path("folder"), QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                                      QFileDevice::ExeOwner));
    QCOMPARE(readFile(path("next")), QByteArray("2"));
    QCOMPARE(readFile(path("file")), QByteArray("1"));
    QCOMPARE(readFile(path("folder/file")), QByteArray("3"));
    // The copy has set the counter anew; what failed before it is not in it.
    QCOMPARE(Util::copyedsize.load(), qint64(1));
}

void TstCFileCopyTasks::nameIsKept_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << "  a  b ";
    QTest::newRow("quotes") << "\"a\" 'b' `c`";
    QTest::newRow("leading dash") << "-rf";
    QTest::newRow("two dashes") << "--";
    QTest::newRow("unicode") << QString::fromUtf8("光盘 e\u0301 é 😀");
    QTest::newRow("trailing backslash") << "a\\";
    QTest::newRow("line end") << "a\nb";
    QTest::newRow("patterns") << "*?[a]";
    QTest::newRow("shell characters") << "$HOME;&|~#!";
    QTest::newRow("place markers") << "%1 %20 100%";
    QTest::newRow("leading colon") << ":a";
    QTest::newRow("tab and bell") << "a\tb\a";
    QTest::newRow("longest") << QString(255, 'n');
}

void TstCFileCopyTasks::nameIsKept()
{
    QFETCH(QString, name);
    writeFile(path("in/" + name), "1");
    writeFile(path("folder/" + name + '/' + name), "2");
    CFileCopy queue(nullptr);
    queue.AddTask(path("in/" + name), path("copied/" + name), CFileCopy::Copy);
    queue.AddTask(path("folder/" + name), path("copied/folders"), CFileCopy::Copy);
    queue.AddTask(path("in/" + name), path("copied/in " + name.left(100)), CFileCopy::Move);
    queue.AddTask(path("folder/" + name), path("in/" + name), CFileCopy::Move);
    QVERIFY(hasEmptied(queue));
    QCOMPARE(readFile(path("copied/" + name)), QByteArray("1"));
    QCOMPARE(readFile(path("copied/folders/" + name + '/' + name)), QByteArray("2"));
    QCOMPARE(readFile(path("copied/in " + name.left(100))), QByteArray("1"));
    QCOMPARE(readFile(path("in/" + name + '/' + name)), QByteArray("2"));
    QVERIFY(entriesOf(path("folder")).isEmpty());

    queue.AddTask(path("copied/" + name), QString(), CFileCopy::Delete);
    queue.AddTask(path("in/" + name), QString(), CFileCopy::Delete);
    QVERIFY(hasEmptied(queue));
    QCOMPARE(entriesOf(path("copied")), QStringList({"folders", "in " + name.left(100)}));
    QVERIFY(entriesOf(path("in")).isEmpty());
}

KORVEX_TEST_MAIN(TstCFileCopyTasks)

#include "tst_cfilecopy_tasks.moc"
