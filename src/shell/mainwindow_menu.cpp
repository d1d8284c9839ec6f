// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// The application menu and what the Language entries do.

#include "cimagebutton.h"
#include "languages.h"
#include "mainwindow.h"
#include "toolkittexts.h"
#include "util.h"

#include <QCoreApplication>
#include <QDebug>
#include <QMenu>
#include <QMenuBar>

namespace
{

// The one application menu of the process, null until it is first built.
QMenu* applicationMenu = nullptr;

} // namespace

void MainWindow::onMenu()
{
    delete applicationMenu;
    applicationMenu = new QMenu(tr("Help"));
    applicationMenu->addMenu(createLanguageMenu());
    applicationMenu->addAction(tr("Help(&H)"), this, SLOT(onHelp()), tr("CTRL+H"));
    applicationMenu->addAction(tr("About Us(&U)"), this, SLOT(aboutus()), tr("CTRL+U"));
    applicationMenu->addSeparator();
    applicationMenu->addAction(tr("Exit(&E)"), this, SLOT(close()), tr("CTRL+E"));
    // Without a parent it becomes the menu bar at the top of the screen where there is one.
    QMenuBar* const bar = new QMenuBar(nullptr);
    setMenuBar(bar);
    bar->addMenu(applicationMenu);
    if (!Util::isMacOS()) {
        // The frameless window shows no menu bar, so its shortcuts belong to the window itself.
        bar->hide();
        addActions(applicationMenu->actions());
    }
}

QMenu* MainWindow::createLanguageMenu()
{
    delete languageMenu;
    languageMenu = new QMenu(tr("Language(&L)"), this);
    for (const Language& language : languages())
        connect(languageMenu->addAction(tr(language.menuText)), SIGNAL(triggered(bool)), this,
                language.slot);
    return languageMenu;
}

void MainWindow::popUpMenu()
{
    // Below the button, its right edges in line, so that it stays over the window.
    const QPoint corner = menuButton->mapToGlobal(menuButton->rect().bottomRight());
    applicationMenu->popup(corner - QPoint(applicationMenu->sizeHint().width(), 0));
}

void MainWindow::switchLanguage(qint32 number)
{
    const Language& language = languageOfNumber(number);
    if (!languageTranslator->load(translationPath(language.file)))
        qDebug() << "no translation" << language.file;
    qDebug() << language.file;
    loadToolkitTexts(&language);
    QCoreApplication::installTranslator(languageTranslator.get());
    setUpTranslataion();
    golbalLangue = language.number;
}

void MainWindow::onEnglish()
{
    switchLanguage(QLocale::English);
}

void MainWindow::onChinese()
{
    switchLanguage(QLocale::Chinese);
}

void MainWindow::onJapanese()
{
    switchLanguage(QLocale::Japanese);
}

void MainWindow::onFrench()
{
    switchLanguage(QLocale::French);
}

void MainWindow::onGerman()
{
    switchLanguage(QLocale::German);
}

void MainWindow::onSpanish()
{
    switchLanguage(QLocale::Spanish);
}

void MainWindow::onPortuguese()
{
    switchLanguage(QLocale::Portuguese);
}

void MainWindow::onPolish()
{
    switchLanguage(QLocale::Polish);
}

void MainWindow::onItalian()
{
    switchLanguage(QLocale::Italian);
}

void MainWindow::onRussian()
{
    switchLanguage(QLocale::Russian);
}

void MainWindow::onNetherlands()
{
    switchLanguage(dutchNumber);
}

void MainWindow::onSwitzerland()
{
    switchLanguage(QLocale::Swedish);
}
