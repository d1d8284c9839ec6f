// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "stagingpagefixture.h"
#include "testcase.h"
#include "testmain.h"

// Removing on the Create page where rows show in one place and their entries lie in another: what
// is removed is the entry that the rows' names lead to.
class TstCPage3Misplaced : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void sameSourceInTwoPlacesDropsTheFirstCopyWhicheverIsRemoved();
    void rowShownBelowAnotherButLyingElsewhereCannotBeRemoved();
    void rowShownBelowAnotherRemovesTheEntryOfThatNameThere();
    void fileShownBelowARemovedFolderLosesItsRowButStaysInTheImage();

private:
    using Content = QMap<QString, QByteArray>;

    std::unique_ptr<StagingPageFixture> fixture;
};

void TstCPage3Misplaced::init()
{
    TestCase::init();
    fixture = std::make_unique<StagingPageFixture>();
}

void TstCPage3Misplaced::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
    QVERIFY(!QApplication::overrideCursor());
}

// Queued copies are told apart by their source alone.
void TstCPage3Misplaced::sameSourceInTwoPlacesDropsTheFirstCopyWhicheverIsRemoved()
{
    QVERIFY(fixture->holdQueue());
    fixture->makeFile("folder/a.txt");
    const QString folder = fixture->path("folder");
    fixture->addFiles({fixture->makeFile("b.txt", "B")});
    fixture->addFolders({folder});
    // The second copy of b.txt goes into the folder. As its row shows one level too deep, it
    // is removed through one beside a.txt whose name is the same once it is trimmed.
    fixture->setSelected(fixture->row({"folder", "a.txt"}));
    fixture->addFiles({fixture->path("b.txt")});
    fixture->setSelected(fixture->row({"folder"}));
    fixture->addFiles({fixture->makeFile("b.txt ")});
    fixture->remove({"folder", "b.txt "});
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList({"b.txt ", "folder/", "folder/a.txt"}));
}

void TstCPage3Misplaced::rowShownBelowAnotherButLyingElsewhereCannotBeRemoved()
{
    fixture->makeFile("folder/inside.txt");
    fixture->addFolders({fixture->path("folder")});
    fixture->setSelected(fixture->row({"folder"}));
    fixture->addFiles({fixture->makeFile("a.txt", "A")});
    fixture->remove({"folder", "a.txt"});
    QCOMPARE(fixture->outline(), QStringList({"folder", "folder > inside.txt", "folder > a.txt"}));
    QCOMPARE(fixture->totalText(), QString("Total Size: 2 B"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().value("a.txt"), QByteArray("A"));
}

void TstCPage3Misplaced::rowShownBelowAnotherRemovesTheEntryOfThatNameThere()
{
    fixture->makeFile("folder/a.txt", "inside");
    fixture->addFolders({fixture->path("folder")});
    fixture->setSelected(fixture->row({"folder"}));
    fixture->addFiles({fixture->makeFile("a.txt", "at the root")});
    QVERIFY(fixture->finish());
    QTreeWidgetItem* const shown = fixture->row({"folder"})->child(1);
    QCOMPARE(fixture->texts(shown).mid(0, 2), QStringList({"a.txt", ""}));
    fixture->setSelected(shown);
    fixture->page->OnRemove();
    QCOMPARE(fixture->row({"folder"})->childCount(), 1);
    QCOMPARE(fixture->row({"folder", "a.txt"})->text(1), QString("folder"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(), (Content{{"a.txt", "at the root"}, {"folder/", {}}}));
}

void TstCPage3Misplaced::fileShownBelowARemovedFolderLosesItsRowButStaysInTheImage()
{
    QVERIFY(fixture->holdQueue());
    fixture->makeFile("folder/inside.txt");
    fixture->addFolders({fixture->path("folder")});
    fixture->setSelected(fixture->row({"folder"}));
    fixture->addFiles({fixture->makeFile("a.txt", "AAA")});
    fixture->remove({"folder"});
    QCOMPARE(fixture->outline(), QStringList());
    QCOMPARE(fixture->totalText(), QString("Total Size: 3 B"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(), (Content{{"a.txt", "AAA"}}));
    // It is still there to be refused.
    fixture->setSelected(nullptr);
    fixture->addFiles({fixture->path("a.txt")});
    QCOMPARE(fixture->outline(), QStringList());
}

KORVEX_TEST_MAIN(TstCPage3Misplaced)
#include "tst_cpage3_misplaced.moc"
