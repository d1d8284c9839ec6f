// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <unistd.h>

// The program's own folders, and where the log lands when there is none.
class TstUtilFolders : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void executablesFolder();
    void currentFolderBecomesTheExecutables();
    void dataFolderIsCreatedAndHasNoTrailingSlash();
    void dataFolderMayHoldAnyCharacter();
    void superuserHasNoDataFolder_data();
    void superuserHasNoDataFolder();
    void superusersFolderIsToldByItsCase_data();
    void superusersFolderIsToldByItsCase();
    void superuserLogGoesToTheFileSystemRoot();

private:
    QByteArray dataHome;
    QString currentFolder;
};

void TstUtilFolders::init()
{
    TestCase::init();
    dataHome = qgetenv("XDG_DATA_HOME");
    currentFolder = QDir::currentPath();
}

void TstUtilFolders::cleanup()
{
    qputenv("XDG_DATA_HOME", dataHome);
    QDir::setCurrent(currentFolder);
    TestCase::cleanup();
}

void TstUtilFolders::executablesFolder()
{
    QCOMPARE(Util::GetCurrentExePath(), QCoreApplication::applicationDirPath());
    QVERIFY(QFile::exists(Util::GetCurrentExePath() + "/tst_util_folders"));
}

void TstUtilFolders::currentFolderBecomesTheExecutables()
{
    const QTemporaryDir folder;
    QVERIFY(QDir::setCurrent(folder.path()));
    QCOMPARE(QFileInfo(Util::GetCurrentWorkPath()).canonicalFilePath(),
             QFileInfo(folder.path()).canonicalFilePath());
    Util::SetCurrentWorkPath();
    QCOMPARE(QFileInfo(Util::GetCurrentWorkPath()).canonicalFilePath(),
             QFileInfo(Util::GetCurrentExePath()).canonicalFilePath());
}

void TstUtilFolders::dataFolderIsCreatedAndHasNoTrailingSlash()
{
    const QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.filePath("missing/data")));
    const QString path = Util::GetTempDir();
    QCOMPARE(path, folder.filePath("missing/data/tst_util_folders"));
    QVERIFY(QFileInfo(path).isDir());
    QCOMPARE(Util::GetTempDir(), path);
}

void TstUtilFolders::dataFolderMayHoldAnyCharacter()
{
    const QTemporaryDir folder;
    const QString odd = folder.filePath("- a  \"b\" #%20");
    qputenv("XDG_DATA_HOME", QFile::encodeName(odd));
    QCOMPARE(Util::GetTempDir(), odd + "/tst_util_folders");
    QVERIFY(QFileInfo(odd + "/tst_util_folders").isDir());
}

void TstUtilFolders::superuserHasNoDataFolder_data()
{
    QTest::addColumn<QByteArray>("home");

    QTest::newRow("superuser") << QByteArray("/var/root/Library/Application Support");
    QTest::newRow("superuser's folder itself") << QByteArray("/var/root");
    QTest::newRow("a folder whose name only begins so") << QByteArray("/var/rootless/data");
}

void TstUtilFolders::superuserHasNoDataFolder()
{
    QFETCH(QByteArray, home);
    qputenv("XDG_DATA_HOME", home);
    QCOMPARE(Util::GetTempDir(), QString());
    QVERIFY(!QFile::exists(QFile::decodeName(home) + "/tst_util_folders"));
}

void TstUtilFolders::superusersFolderIsToldByItsCase_data()
{
    QTest::addColumn<QByteArray>("home");
    QTest::newRow("all capitals") << QByteArray("/VAR/ROOT");
    QTest::newRow("first letter") << QByteArray("/Var/root");
    QTest::newRow("last letter") << QByteArray("/var/rooT");
}

void TstUtilFolders::superusersFolderIsToldByItsCase()
{
    QFETCH(QByteArray, home);
    // Really where nobody can make one, so that none is left behind.
    home += "/../../proc/none";
    qputenv("XDG_DATA_HOME", home);
    QCOMPARE(Util::GetTempDir(), QFile::decodeName(home) + "/tst_util_folders");
}

void TstUtilFolders::superuserLogGoesToTheFileSystemRoot()
{
    const QString path = "/log.txt";
    const bool existed = QFile::exists(path);
    const QByteArray before = readFile(path);
    const bool writable = access(existed ? "/log.txt" : "/", W_OK) == 0;

    const LogSwitch on;
    qputenv("XDG_DATA_HOME", "/var/root/Library");
    Util::WriteLog("from the superuser");

    // An ordinary account cannot write there and loses the line without a word.
    const QByteArray added = readFile(path).mid(before.size());
    QCOMPARE(QFile::exists(path), existed || writable);
    QCOMPARE(added.endsWith(" from the superuser\n"), writable);
    QCOMPARE(debugLines(), QStringList());

    if (!existed)
        QFile::remove(path);
    else if (writable)
        writeFile(path, before);
}

KORVEX_TEST_MAIN(TstUtilFolders)

#include "tst_util_folders.moc"
