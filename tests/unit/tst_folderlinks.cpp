// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "folderlinks.h"
#include "foldertest.h"
#include "testfiles.h"
#include "testmain.h"

#include <QFileInfo>

// One tree for all rows: a/b/c and other/deep, besides what the row lays into it.
class TstFolderLinks : public FolderTest
{
    Q_OBJECT

private slots:
    void init();

    void linkLeadsBack_data();
    void linkLeadsBack();
    void linkOutAndInAgainLeadsBackOnlyWhenWalked();
    void linkIntoAFolderOnTheWayLeadsBack();
    void relativeEntryIsJudgedFromTheCurrentFolder();
    void whatIsNoLinkNeverLeadsBack();

private:
    bool judge(const QString& name) const { return leadsBack(QFileInfo(path(name))); }
};

void TstFolderLinks::init()
{
    FolderTest::init();
    writeFile(path("a/b/c/file"), "1");
    writeFile(path("other/deep/file"), "2");
}

void TstFolderLinks::linkLeadsBack_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("target"); // from the link's folder; %1 is the folder of the test
    QTest::addColumn<bool>("back");
    const auto row = [](const char* name, const QString& link, const QString& target, bool back) {
        QTest::newRow(name) << link << target << back;
    };
    row("its own folder", "a/b/link", ".", true);
    row("its parent", "a/b/link", "..", true);
    row("far above", "a/b/c/link", "../../..", true);
    row("the root", "a/b/link", "/", true);
    row("folder above, spelled in a roundabout way", "a/b/link", "../../other/../a", true);
    row("folder above by its full path", "a/b/c/link", "%1/a", true);
    row("above, name with blanks and Unicode", "a/ -x \"光\" ", "..", true);
    row("a folder below", "a/link", "b", false);
    row("a neighbour", "a/b/link", "../../other", false);
    row("a neighbour whose name begins alike", "a/b/link", "../../a2", false);
    row("a file", "a/b/link", "c/file", false);
    row("nothing", "a/b/link", "missing", false);
    row("itself", "a/b/link", "link", false);
}

void TstFolderLinks::linkLeadsBack()
{
    QFETCH(QString, link);
    QFETCH(QString, target);
    QVERIFY(QDir().mkpath(path("a2")));
    QVERIFY(QFile::link(target.replace("%1", folder->path()), path(link)));
    QTEST(judge(link), "back");
}

void TstFolderLinks::linkOutAndInAgainLeadsBackOnlyWhenWalked()
{
    QVERIFY(QFile::link(path("other/deep"), path("a/out")));
    QVERIFY(QFile::link(path("a"), path("other/deep/in")));
    QVERIFY(!judge("a/out"));
    QVERIFY(!judge("other/deep/in"));
    QVERIFY(judge("a/out/in"));
    QVERIFY(judge("other/deep/in/out"));
}

void TstFolderLinks::linkIntoAFolderOnTheWayLeadsBack()
{
    QVERIFY(QFile::link(path("other"), path("a/b/out")));
    QVERIFY(QFile::link(path("a"), path("other/deep/in")));
    QVERIFY(QFile::link(path("a/b/c"), path("other/deep/beside")));
    QVERIFY(judge("a/b/out/deep/in"));
    QVERIFY(!judge("a/b/out/deep/beside"));
}

void TstFolderLinks::relativeEntryIsJudgedFromTheCurrentFolder()
{
    QVERIFY(QFile::link("..", path("a/b/link")));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(path("a/b")));
    const bool back = leadsBack(QFileInfo("link"));
    QDir::setCurrent(before);
    QVERIFY(back);
}

void TstFolderLinks::whatIsNoLinkNeverLeadsBack()
{
    QVERIFY(!judge("a"));
    QVERIFY(!judge("a/b/c/file"));
    QVERIFY(!judge("missing"));
    QVERIFY(!leadsBack(QFileInfo("/")));
    QVERIFY(!leadsBack(QFileInfo()));
}

KORVEX_TEST_MAIN(TstFolderLinks)

#include "tst_folderlinks.moc"
