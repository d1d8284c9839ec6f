// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "tour.h"
#include "tourfailure.h"

#include <QWidget>

namespace
{

const char* const mainWindow = "MainWindow";

void lookAtHome(Tour& tour)
{
    tour.user.waitForWindow(mainWindow);
    tour.user.movePointerAway();
    QStringList outcome;
    for (const char* const name : {"burn", "extract", "create", "edit", "copy", "home", "help"}) {
        const bool isThere = tour.user.see([&] {
            const QWidget* const button = visibleWidget(mainWindow, name);
            return button && button->isEnabled();
        });
        require(isThere, QString("The home screen has no button \"%1\".").arg(name));
        outcome.append(QString("button \"%1\": there").arg(name));
    }
    const QString title = tour.user.see([] { return visibleWidget(mainWindow)->windowTitle(); });
    require(title == "Korvex ISO Editor", "The window is called " + title);
    outcome.prepend("window title: " + title);
    tour.album.add("home", tour.user.photograph(), "The program has started: home screen", outcome);
}

void lookAtMenu(Tour& tour)
{
    tour.user.click(mainWindow, "menu");
    tour.user.waitForWindow("QMenu");
    const QStringList entries = tour.user.menuTexts();
    require(entries == QStringList({"Language(&L)", "Help(&H)", "About Us(&U)", "--", "Exit(&E)"}),
            "The menu says " + entries.join(", "));
    tour.album.add("menu", tour.user.photograph(), "Menu button at the top right clicked",
                   {"entries: " + entries.join(", ")});

    tour.user.clickInMenu("Language(&L)");
    const QStringList all = tour.user.menuTexts();
    require(all.size() == 12, "The Language menu says " + all.join(", "));
    tour.album.add("languages", tour.user.photograph(), "Language clicked in the menu",
                   {"entries: " + all.join(", ")});
    tour.user.pressEscape();
    tour.user.pressEscape();
    tour.user.waitUntilGone("QMenu");
}

void lookAtAbout(Tour& tour)
{
    tour.user.click(mainWindow, "menu");
    tour.user.waitForWindow("QMenu");
    tour.user.clickInMenu("About Us(&U)");
    tour.user.waitForWindow("CAboutusDialog");
    const QStringList texts = tour.user.texts("CAboutusDialog");
    require(!texts.isEmpty(), "The about box says nothing.");
    tour.album.add("about", tour.user.photograph(), "About Us clicked in the menu",
                   {"texts: " + texts.join(" | ")});
    tour.user.click("CAboutusDialog", "close");
    tour.user.waitUntilGone("CAboutusDialog");
}

} // namespace

void tourHome(Tour& tour)
{
    lookAtHome(tour);
    lookAtMenu(tour);
    lookAtAbout(tour);
}
