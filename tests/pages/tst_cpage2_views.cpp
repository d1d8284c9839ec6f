// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "extractpagefixture.h"
#include "markedtranslator.h"
#include "nofocusdelegate.h"
#include "picture.h"
#include "scheckboxheaderview.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "textfit.h"
#include "viewlook.h"

#include <QAction>
#include <QLabel>
#include <QMenu>

// What the Extract page shows without the contents of an image: its form and its texts.
class TstCPage2Views : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void pageHasItsTitleAndSize();
    void buttonsLieWhereTheyShould_data();
    void buttonsLieWhereTheyShould();
    void labelsReadAsTheyShould_data();
    void labelsReadAsTheyShould();
    void descriptionFitsBesideTheLoadButton();
    void viewsLieWhereTheyShould();
    void tableHasFourColumnsOfTheseWidths();
    void sizeHeaderKeepsItsLeadingBlank();
    void tableSelectsWholeRowsAndIsNotEdited();
    void viewsHaveTheirColoursAndLetters();
    void longNamesStayInOneLine();
    void treeAllowsOneSelection();
    void viewsAreEmptyBeforeALoad();
    void languageChangeReachesEveryText();
    void clearAllAndAddOneItemWorkOnTheTree();
    void dateIsShownAsInTheTable();

private:
    std::unique_ptr<ExtractPageFixture> fixture;
};

void TstCPage2Views::initTestCase()
{
    setApplicationLook();
}

void TstCPage2Views::init()
{
    TestCase::init();
    fixture = std::make_unique<ExtractPageFixture>();
}

void TstCPage2Views::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage2Views::pageHasItsTitleAndSize()
{
    QCOMPARE(fixture->page->windowTitle(), QString("Dialog"));
    QCOMPARE(fixture->page->size(), loadPicture(":/nwu/page2", 1).size());
    QVERIFY(!fixture->page->isWindow());
}

void TstCPage2Views::buttonsLieWhereTheyShould_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("caption");
    QTest::newRow("loadiso") << "loadiso" << QPoint(567, 17) << ":/nwu/loadiso1"
                             << "Load ISO";
    QTest::newRow("back") << "back" << QPoint(11, 417) << ":/nwu/Back1"
                          << "Back";
    QTest::newRow("extract") << "extract" << QPoint(546, 417) << ":/nwu/btnextract1"
                             << "Extract";
}

void TstCPage2Views::buttonsLieWhereTheyShould()
{
    QFETCH(QString, name);
    const CImageButton* const button = fixture->button(name);
    QVERIFY(button);
    QTEST(button->pos(), "position");
    QTEST(button->accessibleName(), "caption");
    QFETCH(QString, picture);
    QCOMPARE(button->size(), loadPicture(picture, 1).size());
    QVERIFY(fixture->page->rect().contains(button->geometry()));
    QVERIFY(button->rect().contains(button->captionRect()));
}

void TstCPage2Views::labelsReadAsTheyShould_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<int>("weight");
    QTest::newRow("title") << "isoextract" << QPoint(10, 8) << "ISO Extract" << 16 << 75;
    QTest::newRow("description")
        << "descript" << QPoint(10, 23)
        << "Directly extract everything from ISO image file and export to your computer." << 14
        << 50;
}

void TstCPage2Views::labelsReadAsTheyShould()
{
    QFETCH(QString, name);
    const auto* const label = fixture->page->findChild<QLabel*>(name);
    QVERIFY(label);
    QTEST(label->pos(), "position");
    QTEST(label->text(), "text");
    QTEST(label->font().pixelSize(), "pixels");
    QTEST(label->font().weight(), "weight");
}

void TstCPage2Views::descriptionFitsBesideTheLoadButton()
{
    QCOMPARE(cutTexts(fixture->page), QStringList());
    for (const char* const name : {"isoextract", "descript"}) {
        const auto* const label = fixture->page->findChild<QLabel*>(name);
        QVERIFY(!label->geometry().intersects(fixture->button("loadiso")->geometry()));
        QVERIFY(!label->geometry().intersects(fixture->table()->geometry()));
    }
}

void TstCPage2Views::viewsLieWhereTheyShould()
{
    QCOMPARE(fixture->tree()->geometry(), QRect(10, 54, 213, 350));
    QCOMPARE(fixture->tree()->minimumSize(), fixture->tree()->maximumSize());
    QCOMPARE(fixture->table()->geometry(), QRect(223, 54, 431, 350));
    QCOMPARE(fixture->table()->minimumSize(), fixture->table()->maximumSize());
}

void TstCPage2Views::tableHasFourColumnsOfTheseWidths()
{
    const QTableWidget* const table = fixture->table();
    QCOMPARE(table->columnCount(), 4);
    QCOMPARE(table->columnWidth(0), 117);
    for (int column = 1; column < 4; ++column)
        QCOMPARE(table->columnWidth(column), 107);
}

void TstCPage2Views::sizeHeaderKeepsItsLeadingBlank()
{
    const QStringList texts{"File Name", " Size", "Type", "Time"};
    for (int column = 0; column < texts.size(); ++column)
        QCOMPARE(fixture->table()->horizontalHeaderItem(column)->text(), texts.at(column));
}

void TstCPage2Views::tableSelectsWholeRowsAndIsNotEdited()
{
    const QTableWidget* const table = fixture->table();
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table->selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(table->editTriggers(), QAbstractItemView::NoEditTriggers);
    QVERIFY(qobject_cast<NoFocusDelegate*>(table->itemDelegate()));
    QVERIFY(qobject_cast<SCheckBoxHeaderView*>(table->horizontalHeader()));
    QVERIFY(!table->horizontalHeader()->highlightSections());
    QVERIFY(table->verticalHeader()->isHidden());
    QCOMPARE(table->font().pixelSize(), 14);
    QCOMPARE(table->font().weight(), int(QFont::Normal));
}

void TstCPage2Views::viewsHaveTheirColoursAndLetters()
{
    QVERIFY(fixture->load());
    checkViewLook(fixture->tree(), fixture->table());
}

// Two lines would show the first one alone, like another name.
void TstCPage2Views::longNamesStayInOneLine()
{
    QVERIFY(!fixture->table()->wordWrap());
    QCOMPARE(fixture->table()->textElideMode(), Qt::ElideRight);
}

void TstCPage2Views::treeAllowsOneSelection()
{
    QCOMPARE(fixture->tree()->selectionMode(), QAbstractItemView::SingleSelection);
    QVERIFY(!fixture->tree()->header()->stretchLastSection());
    QCOMPARE(fixture->tree()->header()->sectionResizeMode(0), QHeaderView::ResizeToContents);
}

void TstCPage2Views::viewsAreEmptyBeforeALoad()
{
    QCOMPARE(fixture->table()->rowCount(), 0);
    QCOMPARE(fixture->tree()->topLevelItemCount(), 0);
}

void TstCPage2Views::languageChangeReachesEveryText()
{
    QVERIFY(fixture->load());
    MarkedTranslator marked;
    QVERIFY(QCoreApplication::installTranslator(&marked));
    QCoreApplication::processEvents();
    const auto labelText = [this](const char* name) {
        return fixture->page->findChild<QLabel*>(name)->text();
    };
    QCOMPARE(fixture->button("loadiso")->accessibleName(), QString("<Load ISO>"));
    QCOMPARE(fixture->button("back")->accessibleName(), QString("<Back>"));
    QCOMPARE(fixture->button("extract")->accessibleName(), QString("<Extract>"));
    QCOMPARE(labelText("isoextract"), QString("<ISO Extract>"));
    QVERIFY(labelText("descript").startsWith("<Directly extract"));
    QCOMPARE(fixture->table()->horizontalHeaderItem(1)->text(), QString("< Size>"));
    const auto* const menu = fixture->page->findChild<QMenu*>();
    QCOMPARE(menu->actions().at(0)->text(), QString("<Extract(&E)>"));
    // The rows are not texts of the program, but their types are.
    fixture->doubleClickRow(fixture->rowOf("boot"));
    QCOMPARE(fixture->table()->item(fixture->rowOf("grub"), 2)->text(), QString("<Folder>"));
    QCoreApplication::removeTranslator(&marked);
    QCoreApplication::processEvents();
    QCOMPARE(labelText("isoextract"), QString("ISO Extract"));
}

void TstCPage2Views::clearAllAndAddOneItemWorkOnTheTree()
{
    QVERIFY(fixture->load());
    Item* const root = fixture->topNode()->data(0, Qt::UserRole).value<Item*>();
    Item item;
    item.path = "new/file.txt";
    item.isDir = false;
    fixture->page->AddOneItem(item);
    QCOMPARE(root->children.last().path, QString("new"));
    fixture->tree()->clear();
    fixture->page->ClearAll();
    QVERIFY(root->children.isEmpty());
}

void TstCPage2Views::dateIsShownAsInTheTable()
{
    QCOMPARE(fixture->page->DateTimeToString(QDateTime({2019, 3, 9}, {1, 2, 3})),
             QString("2019-03-09 01:02:03"));
}

KORVEX_TEST_MAIN(TstCPage2Views)
#include "tst_cpage2_views.moc"
