// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "caboutusdialog.h"
#include "cburndialog.h"
#include "cimagebutton.h"
#include "cpage2.h"
#include "cpage3.h"
#include "cpage4.h"
#include "cpage5.h"
#include "util.h"

#include <QDesktopServices>
#include <QScopedValueRollback>
#include <QUrl>

#include <cstdlib>

namespace
{

constexpr int functionStyle = 1;
constexpr int homeStyle = 2;
constexpr int windowStyle = 3;

const QPoint pagePosition(195, 107);
const QPoint widePagePosition(3, 107);

} // namespace

MainWindow::MainWindow(QWidget* parent)
{
    setParent(parent);
    setObjectName("MainWindow");
    createButtons();
    setWindowTitle("Korvex ISO Editor");
    SetBackGround(":/nwu/main");
    SetMoveable(true);
    setUpTopBar();
    onMenu();
    connect(closeButton, SIGNAL(clicked()), this, SLOT(onClose()));
    connect(minButton, SIGNAL(clicked()), this, SLOT(onMin()));
    connect(menuButton, SIGNAL(clicked()), this, SLOT(onMenu()));
    if (!Util::isMacOS())
        connect(menuButton, SIGNAL(clicked()), this, SLOT(popUpMenu()));
    setUpTranslataion();
    connect(burnButton, SIGNAL(clicked()), this, SLOT(onBurn()));
    connect(extractButton, SIGNAL(clicked()), this, SLOT(onExtract()));
    connect(createIsoButton, SIGNAL(clicked()), this, SLOT(onCreate()));
    connect(editButton, SIGNAL(clicked()), this, SLOT(onEdit()));
    connect(copyButton, SIGNAL(clicked()), this, SLOT(onCopy()));
    setTopButton(homeButton, "Home", homeStyle);
    setTopButton(helpButton, "Help", homeStyle);
    connect(homeButton, SIGNAL(clicked()), this, SLOT(onHome()));
    connect(helpButton, SIGNAL(clicked()), this, SLOT(onHelp()));
    languageTranslator = std::make_unique<QTranslator>();
}

void MainWindow::createButtons()
{
    resize(860, 580);
    menuButton = createButton("menu", {775, 1, 28, 28});
    minButton = createButton("min", {803, 1, 28, 28});
    closeButton = createButton("close", {831, 1, 28, 28});
    burnButton = createButton("burn", {205, 120, 120, 80});
    extractButton = createButton("extract", {644, 120, 120, 80});
    createIsoButton = createButton("create", {205, 350, 120, 80});
    editButton = createButton("edit", {424, 350, 120, 80});
    copyButton = createButton("copy", {644, 350, 120, 80});
    homeButton = createButton("home", {627, 38, 51, 41});
    helpButton = createButton("help", {699, 38, 51, 41});
}

CImageButton* MainWindow::createButton(const QString& name, const QRect& rectangle)
{
    CImageButton* const button = new CImageButton(this);
    button->setObjectName(name);
    button->setGeometry(rectangle);
    return button;
}

// Close and minimise sit at the top left, in the manner of the program's home platform.
void MainWindow::setUpTopBar()
{
    setTopButton(closeButton, "osxclose", windowStyle);
    setTopButton(minButton, "osxmin", windowStyle);
    closeButton->move(10, 9);
    minButton->move(30, 9);
    helpButton->move(helpButton->x(), helpButton->y() - 15);
    homeButton->move(homeButton->x(), homeButton->y() - 15);
    // Where the desktop shows the menu itself, the button has no pictures and stays in the
    // background; elsewhere it is the way to the menu.
    if (!Util::isMacOS())
        setTopButton(menuButton, "menu", windowStyle);
    else
        menuButton->setFocusPolicy(Qt::NoFocus);
}

void MainWindow::setTopButton(CImageButton* button, const QString& picture, int style)
{
    const QString path = ":/nwu/" + picture;
    const bool hasDisabled = style == windowStyle && button != menuButton;
    button->SetBackGround(path + '1', path + '2', path + '3', hasDisabled ? path + '4' : QString(),
                          QString(), QString(), style);
}

void MainWindow::nameTopButtons()
{
    closeButton->setAccessibleName(tr("Close"));
    minButton->setAccessibleName(tr("Minimize"));
    menuButton->setAccessibleName(tr("Menu"));
    homeButton->setAccessibleName(tr("Home"));
    helpButton->setAccessibleName(tr("Help"));
}

void MainWindow::setFunctionButton(CImageButton* button, const QString& picture,
                                   const QString& caption, const QString& description)
{
    const QString path = ":/nwu/" + picture;
    button->SetBackGround(path + '1', path + '2', path + '3', QString(), caption, description,
                          functionStyle);
}

void MainWindow::setUpTranslataion()
{
    setFunctionButton(burnButton, "mburn", tr("Burn"), tr("Make bootable USB or DVD/CD from ISO"));
    setFunctionButton(extractButton, "Extract", tr("Extract"), tr("Extract content from ISO"));
    setFunctionButton(createIsoButton, "Create", tr("Create"),
                      tr("Create ISO from file or folder"));
    // The line breaks and blanks centre two short lines in the button's description area.
    setFunctionButton(editButton, "Edit", tr("Edit"),
                      tr("\n Add, delete, rename \n content in ISO file"));
    setFunctionButton(copyButton, "Copy-Disc", tr("Copy Disk"),
                      tr("\n Make ISO file from \n CD/DVD disc"));
    nameTopButtons();
}

// The workers of the pages are left in the middle of whatever they do, so nothing may be taken away
// from under them: the usual exit() destroys what the toolkit and we keep for the whole process
// while they still use it.
void MainWindow::onClose()
{
#ifdef Q_OS_MACOS
    std::_Exit(0);
#else
    std::quick_exit(0);
#endif
}

void MainWindow::onMin()
{
    showMinimized();
}

// The page asks the disk tools before it shows, with this window alive: pressing Burn again
// meanwhile does not open another one behind it.
void MainWindow::onBurn()
{
    if (openingBurn)
        return;
    const QScopedValueRollback<bool> opening(openingBurn, true);
    Util::SetCursorBusy();
    CBurnDialog* const page = new CBurnDialog(this);
    Util::RestoreCursor();
    page->move(pagePosition);
    page->SetMoveable(false);
    page->setParent(this);
    page->show();
}

void MainWindow::onExtract()
{
    CPage2* const page = new CPage2(this);
    page->setParent(this);
    page->InitializeUI();
    page->move(pagePosition);
    page->SetMoveable(false);
    page->show();
}

void MainWindow::onCreate()
{
    CPage3* const page = new CPage3(this);
    page->move(pagePosition);
    page->SetMoveable(false);
    page->setParent(this);
    page->show();
}

void MainWindow::onEdit()
{
    CPage4* const page = new CPage4(this);
    page->setParent(this);
    page->InitializeUI();
    page->move(widePagePosition);
    page->SetMoveable(false);
    page->show();
}

void MainWindow::onCopy()
{
    CPage5* const page = new CPage5(this);
    page->setParent(this);
    page->move(pagePosition);
    page->SetMoveable(false);
    page->show();
}

void MainWindow::onHome()
{
    QDesktopServices::openUrl(QUrl(Util::isMacOS() ? tr("https://www.korvex.example/iso-editor/mac")
                                                   : tr("https://www.korvex.example/iso-editor")));
}

void MainWindow::onHelp()
{
    QDesktopServices::openUrl(QUrl(tr("https://www.korvex.example/iso-editor/help")));
}

void MainWindow::aboutus()
{
    CAboutusDialog about(nullptr);
    about.show();
    about.exec();
}
