// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "filecopytest.h"
#include "testmain.h"
#include "util.h"

// How a queue goes through its tasks, whatever their names are and whether they succeed.
class TstCFileCopyOrder : public FileCopyTest
{
    Q_OBJECT

private slots:
    void tasksAreCarriedOutInTheOrderOfQueueing();
    void whetherTheSourceIsAFileIsSeenWhenItsTurnComes();
    void failedTaskIsSilentAndTheNextOneFollows_data();
    void failedTaskIsSilentAndTheNextOneFollows();
    void nameIsKept_data();
    void nameIsKept();
};

void TstCFileCopyOrder::tasksAreCarriedOutInTheOrderOfQueueing()
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

void TstCFileCopyOrder::whetherTheSourceIsAFileIsSeenWhenItsTurnComes()
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

void TstCFileCopyOrder::failedTaskIsSilentAndTheNextOneFollows_data()
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

void TstCFileCopyOrder::failedTaskIsSilentAndTheNextOneFollows()
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

void TstCFileCopyOrder::nameIsKept_data()
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

void TstCFileCopyOrder::nameIsKept()
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

KORVEX_TEST_MAIN(TstCFileCopyOrder)

#include "tst_cfilecopy_order.moc"
