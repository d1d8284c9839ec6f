// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

#include <functional>

struct Language;
class MainWindow;
class QMenu;
class QWidget;

// One of the program's windows or pages, which its function shows in the window's language and
// passes on for looking at.
struct TranslatedView
{
    using Visit = std::function<void(QWidget*)>;

    const char* name;
    std::function<void(MainWindow&, const Visit&)> show;
};

// The home screen and each page by itself, as its button opens it.
QList<TranslatedView> pageViews();

// Every dialog, once for each text that a page shows in it.
QList<TranslatedView> dialogViews();

// Chooses the language in the window's menu and waits until every text has followed.
void speak(MainWindow& window, const Language& language);

// The menus of a window: the application's, its submenu of languages and those of the open pages.
QList<QMenu*> menusOf(const MainWindow& window);
