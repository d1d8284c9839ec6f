// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "mainwindowtest.h"
#include "picture.h"
#include "startup.h"
#include "testmain.h"
#include "textfit.h"
#include "usermouse.h"

#include <QAccessible>
#include <QApplication>
#include <QDesktopServices>
#include <QSignalSpy>

#include <sys/wait.h>
#include <unistd.h>

// The home screen: its buttons, what they look like to the eye and to assistive tools, and what
// they open.
class TstMainWindow : public MainWindowTest
{
    Q_OBJECT

private slots:
    void windowHasItsNameTitleAndSize();
    void buttonsAreCreatedInOrder();
    void buttonsLieWhereTheyShould_data();
    void buttonsLieWhereTheyShould();
    void functionButtonsReadAsTheyShould_data();
    void functionButtonsReadAsTheyShould();
    void textsFitTheirButtons();
    void noButtonOverlapsAnother();
    void everyButtonHasAnAccessibleName();
    void windowMovesWhenDragged();
    void tabReachesEveryButtonOnce();
    void minimiseMinimises();
    void closeEndsTheProcessAtOnceWithSuccess();
    void homeAndHelpOpenTheirAddresses_data();
    void homeAndHelpOpenTheirAddresses();
    void driveChangesCanBeAnnounced();
};

void TstMainWindow::windowHasItsNameTitleAndSize()
{
    QCOMPARE(window->objectName(), QString("MainWindow"));
    QCOMPARE(window->windowTitle(), QString("Korvex ISO Editor"));
    QCOMPARE(window->size(), QSize(860, 580));
    QCOMPARE(loadPicture(":/nwu/main", 1).size(), QSize(860, 580));
    QCOMPARE(window->minimumSize(), window->maximumSize());
    QVERIFY(window->windowFlags() & Qt::FramelessWindowHint);
}

void TstMainWindow::buttonsAreCreatedInOrder()
{
    QStringList names;
    const auto buttons = window->findChildren<CImageButton*>(QString(), Qt::FindDirectChildrenOnly);
    for (const CImageButton* const each : buttons)
        names.append(each->objectName());
    QCOMPARE(names, QStringList({"menu", "min", "close", "burn", "extract", "create", "edit",
                                 "copy", "home", "help"}));
}

void TstMainWindow::buttonsLieWhereTheyShould_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QString>("picture");
    QTest::newRow("menu") << "menu" << QPoint(775, 1) << ":/nwu/menu1";
    QTest::newRow("min") << "min" << QPoint(30, 9) << ":/nwu/osxmin1";
    QTest::newRow("close") << "close" << QPoint(10, 9) << ":/nwu/osxclose1";
    QTest::newRow("burn") << "burn" << QPoint(205, 120) << ":/nwu/mburn1";
    QTest::newRow("extract") << "extract" << QPoint(644, 120) << ":/nwu/Extract1";
    QTest::newRow("create") << "create" << QPoint(205, 350) << ":/nwu/Create1";
    QTest::newRow("edit") << "edit" << QPoint(424, 350) << ":/nwu/Edit1";
    QTest::newRow("copy") << "copy" << QPoint(644, 350) << ":/nwu/Copy-Disc1";
    QTest::newRow("home") << "home" << QPoint(627, 23) << ":/nwu/Home1";
    QTest::newRow("help") << "help" << QPoint(699, 23) << ":/nwu/Help1";
}

void TstMainWindow::buttonsLieWhereTheyShould()
{
    QFETCH(QString, name);
    QFETCH(QString, picture);
    QVERIFY(button(name));
    QTEST(button(name)->pos(), "position");
    const QPixmap expected = loadPicture(picture, 1);
    QVERIFY(!expected.isNull());
    QCOMPARE(button(name)->size(), expected.size());
    QVERIFY(window->rect().contains(button(name)->geometry()));
}

void TstMainWindow::functionButtonsReadAsTheyShould_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("description");
    QTest::newRow("burn") << "burn"
                          << "Burn"
                          << "Make bootable USB or DVD/CD from ISO";
    QTest::newRow("extract") << "extract"
                             << "Extract"
                             << "Extract content from ISO";
    QTest::newRow("create") << "create"
                            << "Create"
                            << "Create ISO from file or folder";
    QTest::newRow("edit") << "edit"
                          << "Edit"
                          << "Add, delete, rename content in ISO file";
    QTest::newRow("copy") << "copy"
                          << "Copy Disk"
                          << "Make ISO file from CD/DVD disc";
}

// The line breaks of two descriptions are layout; what is read aloud has none.
void TstMainWindow::functionButtonsReadAsTheyShould()
{
    QFETCH(QString, name);
    QTEST(button(name)->accessibleName(), "caption");
    QTEST(button(name)->accessibleDescription(), "description");
}

void TstMainWindow::textsFitTheirButtons()
{
    QCOMPARE(cutTexts(window.get()), QStringList());
}

void TstMainWindow::noButtonOverlapsAnother()
{
    const auto buttons = window->findChildren<CImageButton*>();
    for (const CImageButton* const a : buttons) {
        for (const CImageButton* const b : buttons)
            QVERIFY2(a == b || !a->geometry().intersects(b->geometry()),
                     qPrintable(a->objectName() + " and " + b->objectName()));
    }
}

void TstMainWindow::everyButtonHasAnAccessibleName()
{
    const auto buttons = window->findChildren<CImageButton*>();
    for (CImageButton* const each : buttons) {
        QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(each);
        QVERIFY(face);
        QVERIFY2(!face->text(QAccessible::Name).isEmpty(), qPrintable(each->objectName()));
        QCOMPARE(face->role(), QAccessible::PushButton);
    }
}

void TstMainWindow::windowMovesWhenDragged()
{
    window->move(200, 200);
    QSignalSpy moved(window.get(), SIGNAL(sigmove()));
    UserMouse::press(window.get(), {100, 300});
    UserMouse::move(window.get(), {140, 310});
    UserMouse::release(window.get(), {100, 300});
    QVERIFY(moved.count() > 0);
    QVERIFY(window->pos() != QPoint(200, 200));
}

void TstMainWindow::tabReachesEveryButtonOnce()
{
    QStringList reached;
    window->setFocus();
    for (int i = 0; i < 10; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached.append(QApplication::focusWidget()->objectName());
    }
    QCOMPARE(reached, QStringList({"menu", "min", "close", "burn", "extract", "create", "edit",
                                   "copy", "home", "help"}));
}

void TstMainWindow::minimiseMinimises()
{
    UserMouse::click(button("min"));
    QVERIFY(window->isMinimized());
    window->showNormal();
}

// In a process of its own, which the close button ends.
void TstMainWindow::closeEndsTheProcessAtOnceWithSuccess()
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::alarm(60);
        EndOfTests::reach(); // this process is to end here
        button("close")->click();
        ::_exit(3); // not reached
    }
    int status = -1;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 0);
}

void TstMainWindow::homeAndHelpOpenTheirAddresses_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("address");
    QTest::newRow("home") << "home"
                          << "https://www.korvex.example/iso-editor";
    QTest::newRow("help") << "help"
                          << "https://www.korvex.example/iso-editor/help";
}

void TstMainWindow::homeAndHelpOpenTheirAddresses()
{
    QFETCH(QString, name);
    UserMouse::click(button(name));
    QTEST(openedAddress.toString(), "address");
}

void TstMainWindow::driveChangesCanBeAnnounced()
{
    QSignalSpy announced(window.get(), SIGNAL(sigdrivechange()));
    QVERIFY(announced.isValid());
    emit window->sigdrivechange();
    QCOMPARE(announced.count(), 1);
}

KORVEX_TEST_MAIN(TstMainWindow)
#include "tst_mainwindow.moc"
