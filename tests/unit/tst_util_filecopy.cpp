// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "foldertest.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <csignal>
#include <sys/resource.h>

// Copying one file. Broken-off copies and taken names are pinned as they are defined.
class TstUtilFileCopy : public FolderTest
{
    Q_OBJECT

private slots:
    void init();

    void contentIsCopied_data();
    void contentIsCopied();
    void nameIsCopied_data();
    void nameIsCopied();
    void counterGrowsByTheBytesCopied();
    void missingFoldersAreMade();
    void sameTextIsTrueAndLeavesTheFileUntouched();
    void theSameFileUnderAnotherSpellingIsEmptied();
    void missingSourceIsFalseAndLeavesTheDestination();
    void destinationIsReplacedEvenIfWriteProtected();
    void emptyFolderAtTheDestinationGivesWay();
    void fullFolderAtTheDestinationIsFalseAndLogged();
    void fileAmongTheDestinationsFoldersIsFalseAndLogged();
    void folderAsSourceIsFalseAndLoggedAndLeavesAnEmptyFile();
    void sourceThatBreaksOffIsFalse();
    void writeErrorsAreIgnoredAndCounted();
    void permissionsAndTimeAreNotCarriedOver();
    void linkIsCopiedAsTheFileItNames();
    void linkAtTheDestinationIsReplacedNotFollowed();
    void brokenLinkIsNoSource();
};

void TstUtilFileCopy::init()
{
    FolderTest::init();
    Util::copyedsize = 0;
}

void TstUtilFileCopy::contentIsCopied_data()
{
    QTest::addColumn<int>("size");

    for (const int size : {0, 1, 4095, 4096, 4097, 8192, 5'000'003})
        QTest::addRow("%d", size) << size;
}

void TstUtilFileCopy::contentIsCopied()
{
    QFETCH(int, size);
    QByteArray content(size, '\0');
    for (int i = 0; i < size; ++i)
        content[i] = static_cast<char>(i * 7 + i / 4096);
    writeFile(path("source"), content);
    QVERIFY(Util::FileCopy(path("source"), path("copy")));
    QVERIFY(QFile::exists(path("copy")));
    QVERIFY(readFile(path("copy")) == content);
    QVERIFY(readFile(path("source")) == content);
    QCOMPARE(Util::copyedsize.load(), qint64(size));
}

void TstUtilFileCopy::nameIsCopied_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("blanks") << " a  b ";
    QTest::newRow("quotes") << "a\"b'c`d";
    QTest::newRow("leading dash") << "-rf";
    QTest::newRow("wildcards") << "*?[a]";
    QTest::newRow("backslash") << "a\\b";
    QTest::newRow("percent") << "%1%20#?";
    QTest::newRow("line break") << "a\nb";
    QTest::newRow("CJK") << QString::fromUtf8("光盘 イメージ 이미지");
    QTest::newRow("composed") << QString::fromUtf8("\u00e9");
    QTest::newRow("combining") << QString::fromUtf8("e\u0301");
    QTest::newRow("beyond the base plane") << QString::fromUtf8("😀");
    QTest::newRow("255 bytes") << QString(255, 'n');
    QTest::newRow("hidden") << ".hidden";
}

void TstUtilFileCopy::nameIsCopied()
{
    QFETCH(QString, name);
    writeFile(folder->filePath("from/" + name), "content");
    QVERIFY(Util::FileCopy(folder->filePath("from/" + name), folder->filePath("to/" + name)));
    QCOMPARE(entriesOf(path("to")), QStringList(name));
    QCOMPARE(readFile(folder->filePath("to/" + name)), QByteArray("content"));
}

void TstUtilFileCopy::counterGrowsByTheBytesCopied()
{
    writeFile(path("a"), QByteArray(5000, 'a'));
    writeFile(path("b"), QByteArray(100, 'b'));
    Util::copyedsize = 7;
    QVERIFY(Util::FileCopy(path("a"), path("a2")));
    QVERIFY(Util::FileCopy(path("b"), path("b2")));
    QCOMPARE(Util::copyedsize.load(), qint64(7 + 5000 + 100));
}

void TstUtilFileCopy::missingFoldersAreMade()
{
    writeFile(path("source"), "content");
    QVERIFY(Util::FileCopy(path("source"), path("x/y/z/copy")));
    QCOMPARE(readFile(path("x/y/z/copy")), QByteArray("content"));
}

void TstUtilFileCopy::sameTextIsTrueAndLeavesTheFileUntouched()
{
    writeFile(path("source"), "content");
    QVERIFY(Util::FileCopy(path("source"), path("source")));
    QCOMPARE(readFile(path("source")), QByteArray("content"));
    QVERIFY(Util::FileCopy(path("missing"), path("missing")));
    QCOMPARE(entriesOf(folder->path()), QStringList("source"));
    QCOMPARE(Util::copyedsize.load(), qint64(0));
}

// The comparison is one of texts; a second name of the same file is a destination like any other.
void TstUtilFileCopy::theSameFileUnderAnotherSpellingIsEmptied()
{
    writeFile(path("source"), "content");
    QVERIFY(Util::FileCopy(path("source"), path("./source")));
    QVERIFY(QFile::exists(path("source")));
    QCOMPARE(readFile(path("source")), QByteArray());
}

void TstUtilFileCopy::missingSourceIsFalseAndLeavesTheDestination()
{
    const LogSwitch on;
    writeFile(path("copy"), "old");
    QVERIFY(!Util::FileCopy(path("missing"), path("copy")));
    QVERIFY(!Util::FileCopy(QString(), path("copy")));
    QVERIFY(!Util::FileCopy(path("missing"), path("new/copy")));
    QCOMPARE(readFile(path("copy")), QByteArray("old"));
    QCOMPARE(entriesOf(folder->path()), QStringList("copy"));
    QVERIFY(!QFile::exists(LogSwitch::logPath()));
}

void TstUtilFileCopy::destinationIsReplacedEvenIfWriteProtected()
{
    writeFile(path("source"), "new");
    writeFile(path("copy"), "a longer old content");
    QFile::setPermissions(path("copy"), QFile::ReadOwner);
    QVERIFY(Util::FileCopy(path("source"), path("copy")));
    QCOMPARE(readFile(path("copy")), QByteArray("new"));
}

void TstUtilFileCopy::emptyFolderAtTheDestinationGivesWay()
{
    writeFile(path("source"), "content");
    QVERIFY(QDir().mkpath(path("copy")));
    QVERIFY(Util::FileCopy(path("source"), path("copy")));
    QCOMPARE(readFile(path("copy")), QByteArray("content"));
}

void TstUtilFileCopy::fullFolderAtTheDestinationIsFalseAndLogged()
{
    const LogSwitch on;
    writeFile(path("source"), "content");
    writeFile(path("copy/inside"), "kept");
    QVERIFY(!Util::FileCopy(path("source"), path("copy")));
    QCOMPARE(LogSwitch::texts(), QStringList("Can not open file for write" + path("copy")));
    QFile::setPermissions(path("copy"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(readFile(path("copy/inside")), QByteArray("kept"));
}

void TstUtilFileCopy::fileAmongTheDestinationsFoldersIsFalseAndLogged()
{
    const LogSwitch on;
    writeFile(path("source"), "content");
    writeFile(path("file"), "kept");
    QVERIFY(!Util::FileCopy(path("source"), path("file/below/copy")));
    QCOMPARE(LogSwitch::texts(),
             QStringList("Can not open file for write" + path("file/below/copy")));
    QCOMPARE(readFile(path("file")), QByteArray("kept"));
}

void TstUtilFileCopy::folderAsSourceIsFalseAndLoggedAndLeavesAnEmptyFile()
{
    const LogSwitch on;
    writeFile(path("source/inside"), "content");
    writeFile(path("copy"), "old");
    QVERIFY(!Util::FileCopy(path("source"), path("copy")));
    QCOMPARE(LogSwitch::texts(), QStringList("Can not open file for read" + path("source")));
    QVERIFY(QFile::exists(path("copy")));
    QCOMPARE(readFile(path("copy")), QByteArray());
}

// A process may open its own memory but not read its first page.
void TstUtilFileCopy::sourceThatBreaksOffIsFalse()
{
    QVERIFY(!Util::FileCopy("/proc/self/mem", path("copy")));
    QCOMPARE(Util::copyedsize.load(), qint64(0));
}

void TstUtilFileCopy::writeErrorsAreIgnoredAndCounted()
{
    writeFile(path("source"), QByteArray(10'000, 'x'));
    // A limit on the size of files stands in for a full disk.
    rlimit before = {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small = {4096, before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool copied = Util::FileCopy(path("source"), path("copy"));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);

    QVERIFY(copied);
    QCOMPARE(readFile(path("copy")), QByteArray(4096, 'x'));
    QCOMPARE(Util::copyedsize.load(), qint64(10'000));
}

void TstUtilFileCopy::permissionsAndTimeAreNotCarriedOver()
{
    writeFile(path("source"), "content");
    QFile source(path("source"));
    QVERIFY(source.open(QIODevice::ReadWrite));
    const QDateTime old(QDate(2001, 2, 3), QTime(4, 5, 6));
    QVERIFY(source.setFileTime(old, QFileDevice::FileModificationTime));
    source.close();
    QVERIFY(source.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY(Util::FileCopy(path("source"), path("copy")));
    const QFileInfo copy(path("copy"));
    QVERIFY(copy.lastModified() > old.addDays(1));
    QVERIFY(!copy.permission(QFile::ExeOwner));
    QVERIFY(copy.permission(QFile::WriteOwner));
}

void TstUtilFileCopy::linkIsCopiedAsTheFileItNames()
{
    writeFile(path("file"), "content");
    QVERIFY(QFile::link(path("file"), path("link")));
    QVERIFY(Util::FileCopy(path("link"), path("copy")));
    QVERIFY(!QFileInfo(path("copy")).isSymLink());
    QCOMPARE(readFile(path("copy")), QByteArray("content"));
}

void TstUtilFileCopy::linkAtTheDestinationIsReplacedNotFollowed()
{
    writeFile(path("source"), "new");
    writeFile(path("file"), "kept");
    QVERIFY(QFile::link(path("file"), path("copy")));
    QVERIFY(Util::FileCopy(path("source"), path("copy")));
    QVERIFY(!QFileInfo(path("copy")).isSymLink());
    QCOMPARE(readFile(path("copy")), QByteArray("new"));
    QCOMPARE(readFile(path("file")), QByteArray("kept"));
}

void TstUtilFileCopy::brokenLinkIsNoSource()
{
    QVERIFY(QFile::link(path("missing"), path("link")));
    QVERIFY(!Util::FileCopy(path("link"), path("copy")));
    QVERIFY(!QFile::exists(path("copy")));
}

KORVEX_TEST_MAIN(TstUtilFileCopy)

#include "tst_util_filecopy.moc"
