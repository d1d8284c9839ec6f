// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "mainwindowtest.h"
#include "modaldriver.h"
#include "startup.h"
#include "testmain.h"
#include "usermouse.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMenu>
#include <QMenuBar>

// The application menu, which a menu bar shows on some desktops and a button on the others.
class TstMainWindowMenu : public MainWindowTest
{
    Q_OBJECT

private slots:
    void menuHasItsEntries();
    void entriesHaveTheirShortcuts();
    void shortcutsWorkInTheWindow();
    void menuIsBuiltAnewEveryTime();
    void menuButtonOpensTheMenu();
    void helpEntryOpensTheHelpPage();
    void aboutEntryShowsTheAboutBox();
    void exitEntryClosesTheWindow();

private:
    QMenu* menu() const;
    QMenu* languageMenu() const;
};

QMenu* TstMainWindowMenu::menu() const
{
    return window->menuBar()->actions().at(0)->menu();
}

QMenu* TstMainWindowMenu::languageMenu() const
{
    return menu()->actions().at(0)->menu();
}

void TstMainWindowMenu::menuHasItsEntries()
{
    QCOMPARE(window->menuBar()->actions().size(), 1);
    QCOMPARE(menu()->title(), QString("Help"));
    QStringList texts;
    for (const QAction* const action : menu()->actions())
        texts.append(action->isSeparator() ? "-" : action->text());
    QCOMPARE(texts, QStringList({"Language(&L)", "Help(&H)", "About Us(&U)", "-", "Exit(&E)"}));
    QCOMPARE(languageMenu()->parentWidget(), window.get());
}

void TstMainWindowMenu::entriesHaveTheirShortcuts()
{
    const QList<QAction*> actions = menu()->actions();
    QCOMPARE(actions.at(1)->shortcut(), QKeySequence("CTRL+H"));
    QCOMPARE(actions.at(2)->shortcut(), QKeySequence("CTRL+U"));
    QCOMPARE(actions.at(4)->shortcut(), QKeySequence("CTRL+E"));
}

void TstMainWindowMenu::shortcutsWorkInTheWindow()
{
    QTest::keyClick(window.get(), Qt::Key_H, Qt::ControlModifier);
    QCOMPARE(openedAddress.path(), QString("/iso-editor/help"));
    window->onMenu(); // a second menu does not make them ambiguous
    openedAddress.clear();
    QTest::keyClick(window.get(), Qt::Key_H, Qt::ControlModifier);
    QCOMPARE(openedAddress.path(), QString("/iso-editor/help"));
}

void TstMainWindowMenu::menuIsBuiltAnewEveryTime()
{
    const QPointer<QMenu> before = menu();
    const QPointer<QMenu> languagesBefore = languageMenu();
    window->onMenu();
    QVERIFY(!before);
    QVERIFY(!languagesBefore);
    QCOMPARE(menu()->actions().size(), 5);
    QCOMPARE(languageMenu()->actions().size(), 12);
    QCOMPARE(window->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
    QCOMPARE(window->actions().size(), menu()->actions().size());
}

void TstMainWindowMenu::menuButtonOpensTheMenu()
{
    UserMouse::click(window->findChild<CImageButton*>("menu"));
    QCOMPARE(QApplication::activePopupWidget(), menu());
    menu()->close();
}

void TstMainWindowMenu::helpEntryOpensTheHelpPage()
{
    menu()->actions().at(1)->trigger();
    QCOMPARE(openedAddress, QUrl("https://www.korvex.example/iso-editor/help"));
}

void TstMainWindowMenu::aboutEntryShowsTheAboutBox()
{
    ModalDriver driver;
    driver.press("CAboutusDialog", "close");
    menu()->actions().at(2)->trigger();
    QCOMPARE(driver.texts().size(), 1);
    QVERIFY(driver.texts().first().contains("Korvex ISO Editor"));
}

void TstMainWindowMenu::exitEntryClosesTheWindow()
{
    menu()->actions().at(4)->trigger();
    QVERIFY(!window->isVisible());
}

KORVEX_TEST_MAIN(TstMainWindowMenu)
#include "tst_mainwindow_menu.moc"
