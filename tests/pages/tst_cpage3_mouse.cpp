// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "createpagefixture.h"
#include "modaldriver.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usermouse.h"

#include <QLineEdit>
#include <QMenu>

// What the user does on the Create page with mouse and keyboard, the file dialogs included.
class TstCPage3Mouse : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void addFilesAsksForFilesAndAddsThem();
    void severalFilesAreChosenAtOnce();
    void addFolderAsksForAFolderAndAddsIt();
    void cancelledDialogsChangeNothing_data();
    void cancelledDialogsChangeNothing();
    void removeTakesTheSelectedRow();
    void clickOnARowSelectsItAndTheNextFileShowsBelowIt();
    void clickOnEmptySpaceClearsTheSelectionAndTheNextFileGoesToTheTop();
    void pressOnEmptySpaceClearsTheSelectionAsThePageIsTold();
    void contextMenuOpensAtTheMouse();
    void contextMenuAddsFiles();
    void contextMenuAddsFolders();
    void contextMenuRemoves();
    void doubleClickDoesNotEditARow();
    void escapeDoesNotCloseThePage();
    void tabGoesRoundInThePage();
    void arrowsMoveTheSelection();

private:
    QString makeFile(const QString& name) const;
    QMenu* openContextMenu(QTreeWidgetItem* row) const;
    void choose(QMenu* menu, int position) const;
    QStringList topNames() const;

    std::unique_ptr<CreatePageFixture> fixture;
};

void TstCPage3Mouse::initTestCase()
{
    setApplicationLook();
}

void TstCPage3Mouse::init()
{
    TestCase::init();
    fixture = std::make_unique<CreatePageFixture>();
    QVERIFY(fixture->waitUntilStaged());
}

void TstCPage3Mouse::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
    QVERIFY(!QApplication::overrideCursor());
}

QString TstCPage3Mouse::makeFile(const QString& name) const
{
    writeFile(fixture->path(name), "x");
    return fixture->path(name);
}

// With a press of the right button on a row, or on empty space without one.
QMenu* TstCPage3Mouse::openContextMenu(QTreeWidgetItem* row) const
{
    QWidget* const viewport = fixture->list()->viewport();
    const QPoint point = row ? fixture->list()->visualItemRect(row).center()
                             : QPoint(viewport->width() / 2, viewport->height() - 4);
    UserMouse::move(viewport, point);
    QTest::mouseClick(fixture->window.windowHandle(), Qt::RightButton, {},
                      viewport->mapTo(&fixture->window, point));
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
        qFatal("No menu opened");
    return menu;
}

void TstCPage3Mouse::choose(QMenu* menu, int position) const
{
    const QPoint point = menu->actionGeometry(menu->actions().at(position)).center();
    UserMouse::press(menu, point);
    UserMouse::release(menu, point);
    QCoreApplication::processEvents();
}

QStringList TstCPage3Mouse::topNames() const
{
    QStringList names;
    for (int i = 0; i < fixture->list()->topLevelItemCount(); ++i)
        names.append(fixture->list()->topLevelItem(i)->text(0));
    return names;
}

void TstCPage3Mouse::addFilesAsksForFilesAndAddsThem()
{
    ModalDriver driver;
    driver.typePath(makeFile("a.txt"));
    fixture->press("addfile");
    QVERIFY(driver.done());
    QCOMPARE(topNames(), QStringList("a.txt"));
}

void TstCPage3Mouse::severalFilesAreChosenAtOnce()
{
    fixture->addFiles({makeFile("a.txt"), makeFile("two words.txt"), makeFile("c.txt")});
    QStringList names = topNames();
    names.sort();
    QCOMPARE(names, QStringList({"a.txt", "c.txt", "two words.txt"}));
    QVERIFY(fixture->waitUntilStaged());
    QCOMPARE(entriesOf(fixture->stagingFolder()), names);
}

void TstCPage3Mouse::addFolderAsksForAFolderAndAddsIt()
{
    makeFile("folder/a.txt");
    ModalDriver driver;
    driver.typePath(fixture->path("folder"));
    fixture->press("adddir");
    QVERIFY(driver.done());
    QCOMPARE(topNames(), QStringList("folder"));
    QVERIFY(fixture->row({"folder", "a.txt"}));
}

void TstCPage3Mouse::cancelledDialogsChangeNothing_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("files") << "addfile";
    QTest::newRow("folders") << "adddir";
}

void TstCPage3Mouse::cancelledDialogsChangeNothing()
{
    QFETCH(QString, button);
    ModalDriver driver;
    driver.key("QFileDialog", Qt::Key_Escape);
    fixture->press(button);
    QVERIFY(driver.done());
    QCOMPARE(topNames(), QStringList());
    QVERIFY(!fixture->page->stagingQueue().HasTasks());
    QVERIFY(fixture->page->isVisible());
}

void TstCPage3Mouse::removeTakesTheSelectedRow()
{
    fixture->addFiles({makeFile("a.txt"), makeFile("b.txt")});
    QVERIFY(fixture->waitUntilStaged());
    fixture->select(fixture->row({"a.txt"}));
    fixture->press("remove");
    QCOMPARE(topNames(), QStringList("b.txt"));
    QVERIFY(fixture->waitUntilStaged());
    QCOMPARE(entriesOf(fixture->stagingFolder()), QStringList("b.txt"));
    fixture->select(nullptr);
    fixture->press("remove");
    QCOMPARE(topNames(), QStringList("b.txt"));
}

void TstCPage3Mouse::clickOnARowSelectsItAndTheNextFileShowsBelowIt()
{
    makeFile("folder/a.txt");
    fixture->addFolder(fixture->path("folder"));
    fixture->select(fixture->row({"folder"}));
    QVERIFY(fixture->row({"folder"})->isSelected());
    fixture->addFiles({makeFile("b.txt")});
    QVERIFY(fixture->row({"folder", "b.txt"}));
    QCOMPARE(topNames(), QStringList("folder"));
}

void TstCPage3Mouse::clickOnEmptySpaceClearsTheSelectionAndTheNextFileGoesToTheTop()
{
    makeFile("folder/a.txt");
    fixture->addFolder(fixture->path("folder"));
    fixture->row({"folder"})->setExpanded(true);
    fixture->select(fixture->row({"folder", "a.txt"}));
    QCOMPARE(fixture->page->GetCurrSelectDir(), QString("folder/"));
    fixture->select(nullptr);
    QVERIFY(fixture->list()->selectedItems().isEmpty());
    QCOMPARE(fixture->page->GetCurrSelectDir(), QString());
    fixture->addFiles({makeFile("b.txt")});
    QCOMPARE(topNames(), QStringList({"folder", "b.txt"}));
}

void TstCPage3Mouse::pressOnEmptySpaceClearsTheSelectionAsThePageIsTold()
{
    fixture->addFiles({makeFile("a.txt")});
    fixture->select(fixture->row({"a.txt"}));
    fixture->page->OnTreeClicked(fixture->list()->model()->index(0, 0));
    QVERIFY(fixture->row({"a.txt"})->isSelected());
    fixture->page->OnTreeClicked(QModelIndex());
    QVERIFY(fixture->list()->selectedItems().isEmpty());
}

void TstCPage3Mouse::contextMenuOpensAtTheMouse()
{
    fixture->addFiles({makeFile("a.txt")});
    QMenu* const menu = openContextMenu(fixture->row({"a.txt"}));
    QCOMPARE(menu->pos(), QCursor::pos());
    QCOMPARE(menu->actions().size(), 3);
    menu->close();
}

void TstCPage3Mouse::contextMenuAddsFiles()
{
    ModalDriver driver;
    driver.typePath(makeFile("a.txt"));
    choose(openContextMenu(nullptr), 0);
    QVERIFY(driver.done());
    QCOMPARE(topNames(), QStringList("a.txt"));
}

void TstCPage3Mouse::contextMenuAddsFolders()
{
    makeFile("folder/a.txt");
    ModalDriver driver;
    driver.typePath(fixture->path("folder"));
    choose(openContextMenu(nullptr), 1);
    QVERIFY(driver.done());
    QCOMPARE(topNames(), QStringList("folder"));
}

// The press of the right button selects the row as well.
void TstCPage3Mouse::contextMenuRemoves()
{
    fixture->addFiles({makeFile("a.txt"), makeFile("b.txt")});
    choose(openContextMenu(fixture->row({"b.txt"})), 2);
    QCOMPARE(topNames(), QStringList("a.txt"));
}

void TstCPage3Mouse::doubleClickDoesNotEditARow()
{
    fixture->addFiles({makeFile("a.txt")});
    fixture->select(fixture->row({"a.txt"}));
    QTest::mouseDClick(fixture->list()->viewport(), Qt::LeftButton, {},
                       fixture->list()->visualItemRect(fixture->row({"a.txt"})).center());
    QTest::keyClick(fixture->list(), Qt::Key_F2);
    QVERIFY(!fixture->list()->findChild<QLineEdit*>());
}

void TstCPage3Mouse::escapeDoesNotCloseThePage()
{
    for (QWidget* const target : QList<QWidget*>{fixture->page, fixture->list()})
        QTest::keyClick(target, Qt::Key_Escape);
    for (QWidget* const target : fixture->page->findChildren<QWidget*>()) {
        if (target->focusPolicy() != Qt::NoFocus && !target->isWindow())
            QTest::keyClick(target, Qt::Key_Escape);
    }
    QVERIFY(fixture->page->isVisible());
    QVERIFY(!fixture->page->stagingQueue().IsStopped());
}

void TstCPage3Mouse::tabGoesRoundInThePage()
{
    // Covered by the page, like the tiles of the home screen.
    QLineEdit other(&fixture->window);
    other.lower();
    other.show();
    fixture->window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fixture->window));
    fixture->list()->setFocus();
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        QSet<QWidget*> visited;
        for (int i = 0; i < 20; ++i) {
            QTest::keyClick(QApplication::focusWidget(), key);
            QVERIFY(fixture->page->isAncestorOf(QApplication::focusWidget()));
            visited.insert(QApplication::focusWidget());
        }
        QVERIFY(visited.contains(fixture->list()));
        QVERIFY(visited.size() > 1);
    }
}

void TstCPage3Mouse::arrowsMoveTheSelection()
{
    fixture->addFiles({makeFile("a.txt"), makeFile("b.txt")});
    const QList<QTreeWidgetItem*> rows{fixture->list()->topLevelItem(0),
                                       fixture->list()->topLevelItem(1)};
    fixture->select(rows.first());
    QTest::keyClick(fixture->list(), Qt::Key_Down);
    QCOMPARE(fixture->list()->selectedItems(), QList<QTreeWidgetItem*>{rows.last()});
}

KORVEX_TEST_MAIN(TstCPage3Mouse)
#include "tst_cpage3_mouse.moc"
