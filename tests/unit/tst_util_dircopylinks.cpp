// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "foldertest.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

// Symbolic links within a folder that is copied.
class TstUtilDirCopyLinks : public FolderTest
{
    Q_OBJECT

private slots:
    void linkToAFolderIsCopiedAsAFolder();
    void linkThatLeadsBackBecomesAnEmptyFolder_data();
    void linkThatLeadsBackBecomesAnEmptyFolder();
    void linkThatLeadsBackFromElsewhereBecomesAnEmptyFolder();
    void linkThatLeadsBackClashingWithAFileEndsWithFalse();
    void brokenLinkIsLeftOut();
};

void TstUtilDirCopyLinks::linkToAFolderIsCopiedAsAFolder()
{
    writeFile(path("elsewhere/a"), "1");
    QVERIFY(QDir().mkpath(path("src")));
    QVERIFY(QFile::link(path("elsewhere"), path("src/link")));
    QVERIFY(Util::DirCopy(path("src"), path("dst")));
    QVERIFY(!QFileInfo(path("dst/link")).isSymLink());
    QCOMPARE(readFile(path("dst/link/a")), QByteArray("1"));
}

void TstUtilDirCopyLinks::linkThatLeadsBackBecomesAnEmptyFolder_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("its own folder") << ".";
    QTest::newRow("its parent") << "..";
    QTest::newRow("the root") << "/";
    QTest::newRow("a link to its folder") << "../../mirror";
}

void TstUtilDirCopyLinks::linkThatLeadsBackBecomesAnEmptyFolder()
{
    QFETCH(QString, target);
    writeFile(path("src/sub/file"), "12345");
    QVERIFY(QFile::link(path("src/sub"), path("mirror")));
    QVERIFY(QFile::link(target, path("src/sub/link")));
    QVERIFY(Util::DirCopy(path("src"), path("dst")));
    QCOMPARE(entriesOf(path("dst/sub")), QStringList({"file", "link"}));
    QVERIFY(!QFileInfo(path("dst/sub/link")).isSymLink());
    QVERIFY(QFileInfo(path("dst/sub/link")).isDir());
    QVERIFY(entriesOf(path("dst/sub/link")).isEmpty());
    QCOMPARE(Util::DirSize(path("src")), qint64(5));
}

void TstUtilDirCopyLinks::linkThatLeadsBackFromElsewhereBecomesAnEmptyFolder()
{
    writeFile(path("src/file"), "12345");
    writeFile(path("elsewhere/file"), "123");
    QVERIFY(QFile::link(path("elsewhere"), path("src/out")));
    QVERIFY(QFile::link(path("src"), path("elsewhere/in")));
    QVERIFY(Util::DirCopy(path("src"), path("dst")));
    QCOMPARE(entriesOf(path("dst")), QStringList({"file", "out"}));
    QCOMPARE(entriesOf(path("dst/out")), QStringList({"file", "in"}));
    QVERIFY(entriesOf(path("dst/out/in")).isEmpty());
    QCOMPARE(Util::DirSize(path("src")), qint64(8));
}

void TstUtilDirCopyLinks::linkThatLeadsBackClashingWithAFileEndsWithFalse()
{
    QVERIFY(QDir().mkpath(path("src")));
    QVERIFY(QFile::link(".", path("src/link")));
    writeFile(path("dst/link"), "kept");
    QVERIFY(!Util::DirCopy(path("src"), path("dst")));
    QCOMPARE(readFile(path("dst/link")), QByteArray("kept"));
    QVERIFY(QFileInfo(path("src/link")).isSymLink());
}

void TstUtilDirCopyLinks::brokenLinkIsLeftOut()
{
    writeFile(path("src/z"), "1");
    QVERIFY(QFile::link(path("missing"), path("src/link")));
    QVERIFY(Util::DirCopy(path("src"), path("dst")));
    QCOMPARE(entriesOf(path("dst")), QStringList("z"));
}

KORVEX_TEST_MAIN(TstUtilDirCopyLinks)
#include "tst_util_dircopylinks.moc"
