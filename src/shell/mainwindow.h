// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cbasemainwindow.h"

#include <QPointer>
#include <QTranslator>

#include <memory>

class CImageButton;
class QMenu;

// The main window: the home screen with its function buttons, the top bar and the application
// menu. Every function button lays a further page over the home screen; the page then looks after
// itself.
class MainWindow : public CBaseMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent);

signals:
    // The set of drives has changed. Nothing emits it yet; pages with drive lists listen to it.
    void sigdrivechange();

public slots:
    // Ends the process at once, whatever the pages and their tools are doing.
    void onClose();
    void onMin();
    // Builds the application menu anew, which also brings its texts into the current language.
    void onMenu();
    void onBurn();
    void onExtract();
    void onCreate();
    void onEdit();
    void onCopy();
    void onHome();
    void onHelp();
    void aboutus();
    // Re-applies the texts of the five function buttons and the names of the others. (The spelling
    // is deliberate.)
    void setUpTranslataion();

    void onEnglish();
    void onChinese();
    void onJapanese();
    void onFrench();
    void onGerman();
    void onSpanish();
    void onPortuguese();
    void onPolish();
    void onItalian();
    void onRussian();
    void onNetherlands();
    // Swedish; the name is deliberate.
    void onSwitzerland();

    // Opens the menu at its button, where the desktop has no menu bar of its own for it.
    void popUpMenu();

private:
    void createButtons();
    CImageButton* createButton(const QString& name, const QRect& rectangle);
    void setUpTopBar();
    void setFunctionButton(CImageButton* button, const QString& picture, const QString& caption,
                           const QString& description);
    void setTopButton(CImageButton* button, const QString& picture, int style);
    // What assistive technology calls the buttons without a caption.
    void nameTopButtons();
    QMenu* createLanguageMenu();
    void switchLanguage(qint32 number);

    CImageButton* menuButton = nullptr;
    CImageButton* minButton = nullptr;
    CImageButton* closeButton = nullptr;
    CImageButton* burnButton = nullptr;
    CImageButton* extractButton = nullptr;
    CImageButton* createIsoButton = nullptr;
    CImageButton* editButton = nullptr;
    CImageButton* copyButton = nullptr;
    CImageButton* homeButton = nullptr;
    CImageButton* helpButton = nullptr;
    QPointer<QMenu> languageMenu;
    bool openingBurn = false;
    // Filled by the first switch and loaded again by every other.
    std::unique_ptr<QTranslator> languageTranslator;
};
