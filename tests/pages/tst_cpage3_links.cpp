// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "stagingpagefixture.h"
#include "testcase.h"
#include "testmain.h"

#include <QDir>

// Adding what is a link, holds links or is not there any more.
class TstCPage3Links : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void linkToAFileIsStagedAsTheFileItLeadsTo();
    void missingFileIsListedWithZeroBytesAndNothingIsStaged();
    void linkToAFolderIsFollowed();
    void linkBackToAFolderAboveIsARowWithoutRows();
    void folderThatIsALinkItselfIsAdded();
    void brokenLinkInAFolderIsNeitherListedNorStaged();
    void missingFolderShowsAsAFileOfNothing();

private:
    void addFolder(const QString& name) const { fixture->addFolders({fixture->path(name)}); }

    std::unique_ptr<StagingPageFixture> fixture;
};

void TstCPage3Links::init()
{
    TestCase::init();
    fixture = std::make_unique<StagingPageFixture>();
}

void TstCPage3Links::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
    QVERIFY(!QApplication::overrideCursor());
}

void TstCPage3Links::linkToAFileIsStagedAsTheFileItLeadsTo()
{
    QVERIFY(QFile::link(fixture->makeFile("target.txt", "target"), fixture->path("link.txt")));
    fixture->addFiles({fixture->path("link.txt")});
    QCOMPARE(fixture->row({"link.txt"})->text(2), QString("6 B"));
    QVERIFY(fixture->finish());
    QVERIFY(!QFileInfo(fixture->stagingFolder() + "/link.txt").isSymLink());
    QCOMPARE(fixture->staged().value("link.txt"), QByteArray("target"));
}

// One that another program has deleted since it was chosen.
void TstCPage3Links::missingFileIsListedWithZeroBytesAndNothingIsStaged()
{
    fixture->addFiles({fixture->path("gone.txt")});
    QCOMPARE(fixture->row({"gone.txt"})->text(2), QString("0 B"));
    QCOMPARE(fixture->totalText(), QString("Total Size: 0 B"));
    QVERIFY(fixture->finish());
    QVERIFY(!fixture->staged().contains("gone.txt"));
    fixture->remove({"gone.txt"});
    QCOMPARE(fixture->outline(), QStringList());
}

void TstCPage3Links::linkToAFolderIsFollowed()
{
    fixture->makeFile("target/a.txt", "A");
    QVERIFY(QDir().mkpath(fixture->path("folder")));
    QVERIFY(QFile::link(fixture->path("target"), fixture->path("folder/link")));
    addFolder("folder");
    QCOMPARE(fixture->outline(), QStringList({"folder", "folder > link", "folder > link > a.txt"}));
    QCOMPARE(fixture->row({"folder", "link"})->text(3), QString("Folder"));
    QVERIFY(fixture->finish());
    QVERIFY(!QFileInfo(fixture->stagingFolder() + "/folder/link").isSymLink());
    QCOMPARE(fixture->staged().value("folder/link/a.txt"), QByteArray("A"));
}

void TstCPage3Links::linkBackToAFolderAboveIsARowWithoutRows()
{
    fixture->makeFile("folder/sub/a.txt");
    QVERIFY(QFile::link(fixture->path("folder"), fixture->path("folder/sub/up")));
    QVERIFY(QFile::link(".", fixture->path("folder/here")));
    QVERIFY(QFile::link("/", fixture->path("folder/top")));
    addFolder("folder");
    QCOMPARE(fixture->outline(),
             QStringList({"folder", "folder > here", "folder > sub", "folder > sub > a.txt",
                          "folder > sub > up", "folder > top"}));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(),
             QStringList({"folder/", "folder/here/", "folder/sub/", "folder/sub/a.txt",
                          "folder/sub/up/", "folder/top/"}));
}

void TstCPage3Links::folderThatIsALinkItselfIsAdded()
{
    fixture->makeFile("target/a.txt", "A");
    QVERIFY(QFile::link(fixture->path("target"), fixture->path("link")));
    addFolder("link");
    QCOMPARE(fixture->outline(), QStringList({"link", "link > a.txt"}));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().value("link/a.txt"), QByteArray("A"));
}

void TstCPage3Links::brokenLinkInAFolderIsNeitherListedNorStaged()
{
    fixture->makeFile("folder/a.txt");
    fixture->makeFile("folder/z.txt");
    QVERIFY(QFile::link(fixture->path("nowhere"), fixture->path("folder/broken")));
    addFolder("folder");
    QCOMPARE(fixture->outline(), QStringList({"folder", "folder > a.txt", "folder > z.txt"}));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList({"folder/", "folder/a.txt", "folder/z.txt"}));
}

// One that another program has deleted since it was chosen.
void TstCPage3Links::missingFolderShowsAsAFileOfNothing()
{
    addFolder("gone");
    QCOMPARE(fixture->outline(), QStringList("gone"));
    QVERIFY(fixture->finish());
    fixture->remove({"gone"});
    QCOMPARE(fixture->outline(), QStringList());
}

KORVEX_TEST_MAIN(TstCPage3Links)
#include "tst_cpage3_links.moc"
