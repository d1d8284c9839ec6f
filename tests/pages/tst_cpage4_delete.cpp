// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "editcontentfixture.h"
#include "modaldriver.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QHeaderView>

// Deleting entries of an image on the Edit page, and what the "New" button does.
class TstCPage4Delete : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void withoutATickAMessageAsksForOne();
    void rowsOneAndThreeRemovesBoth();
    void allRowsAtOnce();
    void folderGoesWithItsNodeAndAllBelow();
    void entriesOfASubfolder();
    void entriesThatHaveSpecialNames();
    void noRowIsTickedAfterwards();
    void addedEntriesStayOnTheComputer();
    void whileUnpackingTheDeletionIsMadeAfterwards();
    void addedAndDeletedWhileUnpackingLeavesNothing();
    void folderDeletedAfterItsNodeWasSelected();
    void newChangesNothing();

private:
    std::unique_ptr<EditContentFixture> fixture;
};

void TstCPage4Delete::initTestCase()
{
    setApplicationLook();
}

void TstCPage4Delete::init()
{
    TestCase::init();
    fixture = std::make_unique<EditContentFixture>();
    QVERIFY(fixture->open());
}

void TstCPage4Delete::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage4Delete::withoutATickAMessageAsksForOne()
{
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    fixture->press("delete_2");
    QCOMPARE(driver.texts(), QStringList("Please select one row in the table list first"));
    QCOMPARE(fixture->root()->children.size(), 4);
}

void TstCPage4Delete::rowsOneAndThreeRemovesBoth()
{
    fixture->tick({"docs", "autorun.inf"}); // rows 1 and 3
    fixture->press("delete_2");
    QCOMPARE(fixture->shownNames(), QStringList({"boot", "readme.txt"}));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Delete::allRowsAtOnce()
{
    fixture->page->slotSelectAll(true);
    fixture->page->OnDelete();
    QCOMPARE(fixture->table()->rowCount(), 0);
    QCOMPARE(fixture->nodePaths(), QStringList());
    QCOMPARE(fixture->disagreement(), QString());
    QVERIFY(fixture->root()->children.isEmpty());
}

void TstCPage4Delete::folderGoesWithItsNodeAndAllBelow()
{
    fixture->remove({"boot"});
    QCOMPARE(fixture->nodePaths(), QStringList("docs/"));
    QCOMPARE(fixture->modelPaths(),
             QStringList({"autorun.inf", "docs/", "docs/manual.pdf", "readme.txt"}));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Delete::entriesOfASubfolder()
{
    fixture->openFolder("boot");
    fixture->remove({"grub"});
    QCOMPARE(fixture->shownNames(), QStringList("kernel"));
    QCOMPARE(fixture->disagreement(), QString());
    fixture->remove({"kernel"});
    QCOMPARE(fixture->disagreement(), QString());
    QVERIFY(fixture->item("boot"));
}

void TstCPage4Delete::entriesThatHaveSpecialNames()
{
    const QStringList names{"-rf", "the 'best'", "$(id)", "*", "a\\b", QString::fromUtf8("é 日本")};
    QVERIFY(fixture->open(QStringList("keep") + names));
    for (const QString& name : names)
        fixture->remove({name});
    QCOMPARE(fixture->shownNames(), QStringList("keep"));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Delete::noRowIsTickedAfterwards()
{
    fixture->remove({"docs"});
    QCOMPARE(fixture->ticked(), QStringList());
}

void TstCPage4Delete::addedEntriesStayOnTheComputer()
{
    fixture->makeFile("album/one.mp3");
    fixture->add({fixture->path("album"), fixture->makeFile("song.mp3")});
    fixture->remove({"album", "song.mp3"});
    QCOMPARE(fixture->disagreement(), QString());
    QVERIFY(QFile::exists(fixture->path("album/one.mp3")));
    QVERIFY(QFile::exists(fixture->path("song.mp3")));
}

void TstCPage4Delete::whileUnpackingTheDeletionIsMadeAfterwards()
{
    QVERIFY(fixture->startUnpacking());
    fixture->remove({"boot", "readme.txt"});
    QCOMPARE(fixture->shownNames(), QStringList({"docs", "autorun.inf"}));
    EditContentFixture::unpack(EditContentFixture::usualEntries());
    QVERIFY(fixture->openGate());
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Delete::addedAndDeletedWhileUnpackingLeavesNothing()
{
    QVERIFY(fixture->openHalfway());
    fixture->add({fixture->makeFile("song.mp3")});
    fixture->remove({"song.mp3"});
    QVERIFY(fixture->openGate());
    QCOMPARE(fixture->disagreement(), QString());
    QVERIFY(!QFile::exists(fixture->workFolder() + "/song.mp3"));
}

void TstCPage4Delete::folderDeletedAfterItsNodeWasSelected()
{
    QTreeWidgetItem* const top = fixture->tree()->topLevelItem(0);
    fixture->tree()->setCurrentItem(top->child(0)->child(0)); // boot/grub
    fixture->page->OnTreeCurrentChanged();
    QCOMPARE(fixture->shownNames(), QStringList("grub.cfg"));
    fixture->tree()->setCurrentItem(top);
    fixture->page->OnTreeCurrentChanged();
    fixture->remove({"boot"});
    fixture->page->OnTreeCurrentChanged();
    QCOMPARE(fixture->shownNames(), QStringList({"docs", "readme.txt", "autorun.inf"}));
    QCOMPARE(fixture->disagreement(), QString());
}

void TstCPage4Delete::newChangesNothing()
{
    fixture->tick({"docs"});
    const QStringList before = fixture->modelPaths();
    ModalDriver driver; // fails when a dialog comes
    fixture->press("new_2");
    fixture->page->OnNew();
    QCOMPARE(fixture->modelPaths(), before);
    QCOMPARE(fixture->ticked(), QStringList("docs"));
    QVERIFY(!fixture->page->isWorking());
    QCOMPARE(fixture->disagreement(), QString());
}

KORVEX_TEST_MAIN(TstCPage4Delete)
#include "tst_cpage4_delete.moc"
