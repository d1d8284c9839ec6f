// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "foldertest.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <cerrno>

// Deleting, measuring and finding files.
class TstUtilRemove : public FolderTest
{
    Q_OBJECT

private slots:
    void fileIsDeleted_data();
    void fileIsDeleted();
    void emptyFolderIsDeletedAsAFile();
    void fullFolderStaysWithADebugLineButLosesItsPermissions();
    void missingFileIsSilence();
    void linkIsDeletedAndItsFileLosesItsPermissions();
    void linkToAFolderStaysWithADebugLine();
    void folderIsDeletedWithEverythingInIt();
    void flagOfRemoveDirIsIgnored();
    void emptyPathDoesNotDeleteTheCurrentFolder();
    void missingFolderAndFileAreNoFoldersToDelete();
    void linkInsideADeletedFolderIsNotFollowed();
    void linkToAFolderLosesWhatIsInTheFolder();
    void fileOrFolderExists();

    void sizeOfAFolder();
    void sizeIgnoresHiddenFilesAndFolders();
    void sizeTakesOneTrailingSlash();
    void sizeOfNothingIsZero();
    void sizeFollowsLinks();
    void sizeBeyond32Bits();
};

void TstUtilRemove::fileIsDeleted_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << "file";
    QTest::newRow("odd") << QString::fromUtf8("-rf \"b\" 'c' *? e\u0301 光盘 \\");
    QTest::newRow("hidden") << ".hidden";
}

void TstUtilRemove::fileIsDeleted()
{
    QFETCH(QString, name);
    writeFile(folder->filePath(name), "content");
    writeFile(path("other"), "kept");
    QVERIFY(QFile::setPermissions(folder->filePath(name), QFile::ReadOther));
    Util::RemoveFile(folder->filePath(name));
    QCOMPARE(entriesOf(folder->path()), QStringList("other"));
    QCOMPARE(debugLines(), QStringList());
}

void TstUtilRemove::emptyFolderIsDeletedAsAFile()
{
    QVERIFY(QDir().mkpath(path("empty")));
    Util::RemoveFile(path("empty"));
    QVERIFY(!QFile::exists(path("empty")));
    QCOMPARE(debugLines(), QStringList());
}

void TstUtilRemove::fullFolderStaysWithADebugLineButLosesItsPermissions()
{
    writeFile(path("full/file"), "kept");
    Util::RemoveFile(path("full"));
    QCOMPARE(debugLines().size(), 1);
    QVERIFY(debugLines().first().contains(' ' + QString::number(ENOTEMPTY) + ' '));
    QVERIFY(debugLines().first().contains(qt_error_string(ENOTEMPTY)));
    QVERIFY(!QFileInfo(path("full")).permission(QFile::ExeOwner));
    QVERIFY(QFile::setPermissions(path("full"),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QCOMPARE(readFile(path("full/file")), QByteArray("kept"));
}

void TstUtilRemove::missingFileIsSilence()
{
    Util::RemoveFile(path("missing"));
    Util::RemoveFile(QString());
    QCOMPARE(debugLines(), QStringList());
}

void TstUtilRemove::linkIsDeletedAndItsFileLosesItsPermissions()
{
    writeFile(path("file"), "kept");
    QVERIFY(QFile::setPermissions(path("file"), QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY(QFile::link(path("file"), path("link")));
    Util::RemoveFile(path("link"));
    QCOMPARE(entriesOf(folder->path()), QStringList("file"));
    QCOMPARE(readFile(path("file")), QByteArray("kept"));
    QVERIFY(!QFileInfo(path("file")).permission(QFile::ExeOwner));
}

void TstUtilRemove::linkToAFolderStaysWithADebugLine()
{
    QVERIFY(QDir().mkpath(path("folder")));
    QVERIFY(QFile::link(path("folder"), path("link")));
    Util::RemoveFile(path("link"));
    QCOMPARE(entriesOf(folder->path()), QStringList({"folder", "link"}));
    QCOMPARE(debugLines().size(), 1);
    QVERIFY(debugLines().first().contains(qt_error_string(ENOTDIR)));
}

void TstUtilRemove::folderIsDeletedWithEverythingInIt()
{
    writeFile(path("gone/a"), "1");
    writeFile(path("gone/.hidden/b"), "2");
    writeFile(path("gone/sub/-c \"d\" 光"), "3");
    QVERIFY(QFile::setPermissions(path("gone/a"), QFile::ReadOwner));
    writeFile(path("other"), "kept");
    Util::RemoveDir(path("gone/"), true);
    QCOMPARE(entriesOf(folder->path()), QStringList("other"));
}

void TstUtilRemove::flagOfRemoveDirIsIgnored()
{
    writeFile(path("gone/sub/a"), "1");
    Util::RemoveDir(path("gone"), false);
    QVERIFY(!QFile::exists(path("gone")));
}

void TstUtilRemove::emptyPathDoesNotDeleteTheCurrentFolder()
{
    writeFile(path("file"), "kept");
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder->path()));
    Util::RemoveDir(QString(), true);
    Util::RemoveDir("", false);
    QDir::setCurrent(before);
    QCOMPARE(entriesOf(folder->path()), QStringList("file"));
}

void TstUtilRemove::missingFolderAndFileAreNoFoldersToDelete()
{
    writeFile(path("file"), "kept");
    Util::RemoveDir(path("missing"), true);
    Util::RemoveDir(path("file"), true);
    QCOMPARE(entriesOf(folder->path()), QStringList("file"));
}

void TstUtilRemove::linkInsideADeletedFolderIsNotFollowed()
{
    writeFile(path("elsewhere/file"), "kept");
    QVERIFY(QDir().mkpath(path("gone")));
    QVERIFY(QFile::link(path("elsewhere"), path("gone/link")));
    Util::RemoveDir(path("gone"), true);
    QCOMPARE(entriesOf(folder->path()), QStringList("elsewhere"));
    QCOMPARE(readFile(path("elsewhere/file")), QByteArray("kept"));
}

void TstUtilRemove::linkToAFolderLosesWhatIsInTheFolder()
{
    writeFile(path("elsewhere/file"), "gone");
    QVERIFY(QFile::link(path("elsewhere"), path("link")));
    Util::RemoveDir(path("link"), true);
    QVERIFY(entriesOf(path("elsewhere")).isEmpty());
    QVERIFY(QFileInfo(path("link")).isSymLink());
}

void TstUtilRemove::fileOrFolderExists()
{
    writeFile(path("file"), "");
    QVERIFY(QFile::link(path("missing"), path("broken")));
    QVERIFY(Util::IsFileExists(path("file")));
    QVERIFY(Util::IsFileExists(folder->path()));
    QVERIFY(Util::IsFileExists(folder->path() + '/'));
    QVERIFY(!Util::IsFileExists(path("missing")));
    QVERIFY(!Util::IsFileExists(path("FILE")));
    QVERIFY(!Util::IsFileExists(path("file/below")));
    QVERIFY(!Util::IsFileExists(path("broken")));
    QVERIFY(!Util::IsFileExists(QString()));
}

void TstUtilRemove::sizeOfAFolder()
{
    writeFile(path("a"), QByteArray(10, 'a'));
    writeFile(path("sub/b"), QByteArray(200, 'b'));
    writeFile(path("sub/deep/-c \"d\" 光"), QByteArray(3000, 'c'));
    QVERIFY(QDir().mkpath(path("empty")));
    QCOMPARE(Util::DirSize(folder->path()), qint64(3210));
}

void TstUtilRemove::sizeIgnoresHiddenFilesAndFolders()
{
    writeFile(path("seen"), "1");
    writeFile(path(".hidden"), "22");
    writeFile(path(".folder/file"), "333");
    QCOMPARE(Util::DirSize(folder->path()), qint64(1));
}

void TstUtilRemove::sizeTakesOneTrailingSlash()
{
    writeFile(path("sub/a"), "123");
    QCOMPARE(Util::DirSize(path("sub/")), qint64(3));
}

void TstUtilRemove::sizeOfNothingIsZero()
{
    writeFile(path("file"), "123");
    QVERIFY(QDir().mkpath(path("empty")));
    QCOMPARE(Util::DirSize(path("empty")), qint64(0));
    QCOMPARE(Util::DirSize(path("missing")), qint64(0));
    QCOMPARE(Util::DirSize(path("file")), qint64(0));
    // The current folder holds a file, but an empty path is no folder.
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder->path()));
    const qint64 size = Util::DirSize(QString());
    QDir::setCurrent(before);
    QCOMPARE(size, qint64(0));
}

void TstUtilRemove::sizeFollowsLinks()
{
    writeFile(path("elsewhere/file"), "12345");
    QVERIFY(QDir().mkpath(path("links")));
    QVERIFY(QFile::link(path("elsewhere"), path("links/folder")));
    QVERIFY(QFile::link(path("elsewhere/file"), path("links/file")));
    QVERIFY(QFile::link(path("missing"), path("links/broken")));
    QCOMPARE(Util::DirSize(path("links")), qint64(10));
}

void TstUtilRemove::sizeBeyond32Bits()
{
    // Files of holes: their size is there, their bytes are not.
    for (const char* name : {"a", "sub/b"}) {
        writeFile(path(name), {});
        QVERIFY(QFile::resize(path(name), 5'000'000'000));
    }
    QCOMPARE(Util::DirSize(folder->path()), qint64(10'000'000'000));
}

KORVEX_TEST_MAIN(TstUtilRemove)

#include "tst_util_remove.moc"
