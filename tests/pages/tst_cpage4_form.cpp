// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "clineedit.h"
#include "editcontentfixture.h"
#include "markedtranslator.h"
#include "modaldriver.h"
#include "picture.h"
#include "scheckboxheaderview.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "usermouse.h"
#include "viewlook.h"

#include <QAction>
#include <QLabel>
#include <QMenu>

#include <set>

// What the Edit page shows without the contents of an image: its form, its texts and its menu.
class TstCPage4Form : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void pageHasItsTitleAndSize();
    void buttonsLieWhereTheyShould_data();
    void buttonsLieWhereTheyShould();
    void widgetsDoNotOverlap();
    void searchFieldHasItsTextStyleAndMagnifier();
    void viewsLieWhereTheyShould();
    void tableHasFourColumnsOfTheseWidthsAndTexts();
    void tableSelectsWholeRowsAndIsNotEdited();
    void viewsHaveTheirColoursAndLetters();
    void viewsAreEmptyBeforeALoad();
    void menuHasItsEntries();
    void menuComesUpAtTheMouse();
    void menuEntriesDoWhatTheirButtonsDo();
    void languageChangeReachesEveryText();
    void tabGoesRoundThePage();
    void escapeDoesNotCloseThePage();
    void backClosesThePageForGood();

private:
    QStringList menuTexts() const;
    QAction* entry(int index) const;

    std::unique_ptr<EditContentFixture> fixture;
};

void TstCPage4Form::initTestCase()
{
    setApplicationLook();
}

void TstCPage4Form::init()
{
    TestCase::init();
    fixture = std::make_unique<EditContentFixture>();
}

void TstCPage4Form::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

QAction* TstCPage4Form::entry(int index) const
{
    return fixture->page->findChild<QMenu*>()->actions().value(index);
}

QStringList TstCPage4Form::menuTexts() const
{
    QStringList texts;
    const QList<QAction*> actions = fixture->page->findChild<QMenu*>()->actions();
    for (const QAction* const action : actions)
        texts.append(action->text());
    return texts;
}

void TstCPage4Form::pageHasItsTitleAndSize()
{
    QCOMPARE(fixture->page->windowTitle(), QString("Dialog"));
    QCOMPARE(fixture->page->size(), loadPicture(":/nwu/page4", 1).size());
    QVERIFY(!fixture->page->isWindow());
    QVERIFY(debugLines().contains("CPage4::InitializeUI() is called!!"));
}

void TstCPage4Form::buttonsLieWhereTheyShould_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("caption");
    QTest::newRow("loadiso") << QPoint(10, 12) << "loadiso"
                             << "Load ISO";
    QTest::newRow("add") << QPoint(101, 12) << "Add"
                         << "Add";
    QTest::newRow("export_2") << QPoint(205, 12) << "Export"
                              << "Export";
    QTest::newRow("rename") << QPoint(337, 12) << "Rename"
                            << "Rename";
    QTest::newRow("delete_2") << QPoint(469, 12) << "Delete"
                              << "Delete";
    QTest::newRow("new_2") << QPoint(573, 12) << "New"
                           << "New";
    QTest::newRow("save") << QPoint(743, 417) << "save"
                          << "Save";
    QTest::newRow("back") << QPoint(11, 417) << "backwhite"
                          << "Back";
}

void TstCPage4Form::buttonsLieWhereTheyShould()
{
    CImageButton* const button = fixture->button(QTest::currentDataTag());
    QVERIFY(button);
    QTEST(button->pos(), "position");
    QTEST(button->accessibleName(), "caption");
    QFETCH(QString, picture);
    for (const char* const state : {"1", "2", "3"})
        QCOMPARE(loadPicture(":/nwu/" + picture + state, 1).size(), button->size());
    QVERIFY(fixture->page->rect().contains(button->geometry()));
    QVERIFY(button->rect().contains(button->captionRect()));
    // The looks that the three pictures give it.
    UserMouse::moveAway(fixture->page);
    const QImage normal = button->grab().toImage();
    UserMouse::move(button, button->rect().center());
    QVERIFY(button->grab().toImage() != normal);
    UserMouse::moveAway(fixture->page);
    QVERIFY(button->grab().toImage() == normal);
}

void TstCPage4Form::widgetsDoNotOverlap()
{
    QList<QWidget*> widgets{fixture->search(), fixture->tree(), fixture->table()};
    for (CImageButton* const button : fixture->page->findChildren<CImageButton*>())
        widgets.append(button);
    QCOMPARE(widgets.size(), 11);
    for (const QWidget* const one : qAsConst(widgets)) {
        QVERIFY(fixture->page->rect().contains(one->geometry()));
        for (const QWidget* const other : qAsConst(widgets))
            QVERIFY(one == other || !one->geometry().intersects(other->geometry()));
    }
}

void TstCPage4Form::searchFieldHasItsTextStyleAndMagnifier()
{
    CLineEdit* const search = fixture->search();
    QVERIFY(search);
    QCOMPARE(search->placeholderText(), QString("Search"));
    QCOMPARE(search->text(), QString());
    QCOMPARE(search->styleSheet(), QString("padding-left:28px;"));
    const QRect magnifier = search->getRect();
    QVERIFY(magnifier.right() < 28);
    const QImage image = search->grab(magnifier).toImage();
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    }
    QVERIFY(colours.size() > 4);
}

void TstCPage4Form::viewsLieWhereTheyShould()
{
    QCOMPARE(fixture->tree()->geometry(), QRect(10, 54, 213, 350));
    QCOMPARE(fixture->tree()->minimumSize(), fixture->tree()->maximumSize());
    QCOMPARE(fixture->table()->geometry(), QRect(223, 54, 621, 350));
    QCOMPARE(fixture->table()->minimumSize(), fixture->table()->maximumSize());
}

void TstCPage4Form::tableHasFourColumnsOfTheseWidthsAndTexts()
{
    const QStringList texts{"File Name", " Size", "Type", "Time"};
    QCOMPARE(fixture->table()->columnCount(), texts.size());
    for (int column = 0; column < texts.size(); ++column) {
        QCOMPARE(fixture->table()->horizontalHeaderItem(column)->text(), texts.at(column));
        QCOMPARE(fixture->table()->columnWidth(column), column == 0 ? 164 : 154);
    }
}

void TstCPage4Form::tableSelectsWholeRowsAndIsNotEdited()
{
    const QTableWidget* const table = fixture->table();
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table->selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(table->editTriggers(), QAbstractItemView::NoEditTriggers);
    QVERIFY(qobject_cast<SCheckBoxHeaderView*>(table->horizontalHeader()));
    QVERIFY(!table->wordWrap());
    QCOMPARE(fixture->tree()->selectionMode(), QAbstractItemView::SingleSelection);
}

void TstCPage4Form::viewsHaveTheirColoursAndLetters()
{
    QVERIFY(fixture->open());
    checkViewLook(fixture->tree(), fixture->table());
}

void TstCPage4Form::viewsAreEmptyBeforeALoad()
{
    QCOMPARE(fixture->table()->rowCount(), 0);
    QCOMPARE(fixture->tree()->topLevelItemCount(), 0);
}

void TstCPage4Form::menuHasItsEntries()
{
    QCOMPARE(menuTexts(),
             QStringList({"Add(&A)", "Export(&E)", "Rename(&R)", "Delete(&D)", "New(&N)"}));
}

void TstCPage4Form::menuComesUpAtTheMouse()
{
    QMenu* const menu = fixture->page->findChild<QMenu*>();
    UserMouse::move(fixture->table(), {40, 90});
    emit fixture->table()->customContextMenuRequested({1, 1});
    QVERIFY(menu->isVisible());
    QCOMPARE(menu->pos(), QCursor::pos());
    menu->close();
}

void TstCPage4Form::menuEntriesDoWhatTheirButtonsDo()
{
    QVERIFY(fixture->open());
    ModalDriver driver;
    driver.key("QFileDialog", Qt::Key_Escape);
    entry(0)->trigger();
    driver.press("CommDialog", "btnok");
    entry(1)->trigger();
    QCOMPARE(driver.texts().last(), QString("Please select files or folders in the list first."));
    fixture->tick({"docs"});
    driver.key("CInputDialog", Qt::Key_Escape);
    entry(2)->trigger();
    entry(4)->trigger();
    QCOMPARE(fixture->table()->rowCount(), 4);
    entry(3)->trigger();
    QCOMPARE(fixture->shownNames(), QStringList({"boot", "readme.txt", "autorun.inf"}));
}

void TstCPage4Form::languageChangeReachesEveryText()
{
    QVERIFY(fixture->open());
    MarkedTranslator marked;
    QVERIFY(QCoreApplication::installTranslator(&marked));
    QCoreApplication::processEvents();
    for (const CImageButton* const button : fixture->page->findChildren<CImageButton*>())
        QVERIFY(button->accessibleName().startsWith('<'));
    QCOMPARE(fixture->button("loadiso")->accessibleName(), QString("<Load ISO>"));
    QCOMPARE(fixture->search()->placeholderText(), QString("<Search>"));
    QCOMPARE(fixture->table()->horizontalHeaderItem(1)->text(), QString("< Size>"));
    QCOMPARE(menuTexts().filter(QRegularExpression("^<.*>$")).size(), 5);
    fixture->page->OnSearch();
    QCOMPARE(fixture->rowTexts("boot").value(2), QString("<Folder>"));
    QCoreApplication::removeTranslator(&marked);
    QCoreApplication::processEvents();
    QCOMPARE(fixture->button("save")->accessibleName(), QString("Save"));
    QCOMPARE(fixture->search()->placeholderText(), QString("Search"));
}

// In reading order.
void TstCPage4Form::tabGoesRoundThePage()
{
    fixture->button("loadiso")->setFocus();
    QStringList names;
    for (int i = 0; i < 11; ++i) {
        QVERIFY(QApplication::focusWidget());
        names.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(names, QStringList({"loadiso", "add", "export_2", "rename", "delete_2", "new_2",
                                 "search", "tree", "list", "back", "save"}));
    QVERIFY(fixture->button("loadiso")->hasFocus());
}

void TstCPage4Form::escapeDoesNotCloseThePage()
{
    QTest::keyClick(fixture->page, Qt::Key_Escape);
    fixture->search()->setFocus();
    QTest::keyClick(fixture->search(), Qt::Key_Escape);
    QVERIFY(fixture->page->isVisible());
}

void TstCPage4Form::backClosesThePageForGood()
{
    fixture->press("back");
    QVERIFY(QTest::qWaitFor([this] { return fixture->page.isNull(); }, 60000));
}

KORVEX_TEST_MAIN(TstCPage4Form)
#include "tst_cpage4_form.moc"
