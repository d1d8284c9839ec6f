// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "languages.h"
#include "mainwindow.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "textfit.h"
#include "translatedviews.h"
#include "usermouse.h"

#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTranslator>

// Changing the language while the program runs, with the program's own translations.
class TstLanguageSwitch : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void openPageReadsAsAFreshOne_data();
    void openPageReadsAsAFreshOne();
    void topBarIsNamedInTheLanguage_data();
    void topBarIsNamedInTheLanguage();
    void menuWaitsForItsButton();
    void acceleratorsAreUniqueInEachMenu_data();
    void acceleratorsAreUniqueInEachMenu();
    void fileDialogsFollow_data();
    void fileDialogsFollow();
    void fileDialogsFollowTheStart();

private:
    static void addLanguages();
    const Language& language() const;

    std::unique_ptr<MainWindow> window;
};

namespace
{

QStringList textsOf(const QWidget* page)
{
    QStringList texts;
    for (const ShownText& text : shownTexts(page)) {
        // The one caption that reads otherwise from the first change of language on; this is meant
        // so, and other languages have the same word for both.
        const bool isBrowse = text.text == "Browse";
        texts.append(text.place + ": " + (isBrowse ? "Browser" : text.text));
    }
    return texts;
}

QString fileTypeLabel()
{
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    return dialog.findChild<QLabel*>("fileTypeLabel")->text();
}

} // namespace

void TstLanguageSwitch::initTestCase()
{
    setApplicationLook();
}

void TstLanguageSwitch::init()
{
    TestCase::init();
    window = std::make_unique<MainWindow>(nullptr);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void TstLanguageSwitch::cleanup()
{
    UserMouse::moveAway(window.get());
    window.reset();
    TestCase::cleanup();
}

void TstLanguageSwitch::addLanguages()
{
    QTest::addColumn<int>("number");
    for (const Language& language : languages())
        QTest::newRow(language.menuText) << language.number;
}

const Language& TstLanguageSwitch::language() const
{
    const QString row = QTest::currentDataTag();
    const auto found = std::find_if(languages().begin(), languages().end(),
                                    [&row](const Language& each) { return each.menuText == row; });
    return *found;
}

void TstLanguageSwitch::openPageReadsAsAFreshOne_data()
{
    addLanguages();
}

void TstLanguageSwitch::openPageReadsAsAFreshOne()
{
    for (const TranslatedView& view : pageViews()) {
        speak(*window, languages().front());
        QStringList english;
        QStringList switched;
        view.show(*window, [&](QWidget* page) {
            english = textsOf(page);
            speak(*window, language());
            switched = textsOf(page);
        });
        QStringList fresh;
        view.show(*window, [&](QWidget* page) { fresh = textsOf(page); });
        QVERIFY(!fresh.isEmpty());
        QCOMPARE(switched, fresh);
        QCOMPARE(switched != english, &language() != &languages().front());
    }
}

void TstLanguageSwitch::topBarIsNamedInTheLanguage_data()
{
    addLanguages();
}

void TstLanguageSwitch::topBarIsNamedInTheLanguage()
{
    QTranslator translator;
    QVERIFY(translator.load(translationPath(language().file)));
    speak(*window, language());
    const QPair<const char*, const char*> names[] = {{"close", "Close"},
                                                     {"min", "Minimize"},
                                                     {"menu", "Menu"},
                                                     {"home", "Home"},
                                                     {"help", "Help"}};
    for (const auto& name : names) {
        const auto* const button =
            window->findChild<CImageButton*>(name.first, Qt::FindDirectChildrenOnly);
        QCOMPARE(button->accessibleName(), translator.translate("MainWindow", name.second));
    }
}

void TstLanguageSwitch::menuWaitsForItsButton()
{
    speak(*window, languages().front());
    const auto exitText = [this] {
        return window->menuBar()->actions().first()->menu()->actions().last()->text();
    };
    window->onGerman();
    QCoreApplication::processEvents();
    QCOMPARE(exitText(), QString("Exit(&E)"));
    UserMouse::click(window->findChild<CImageButton*>("menu"));
    window->menuBar()->actions().first()->menu()->close();
    QCOMPARE(exitText(), QString("&Beenden"));
}

void TstLanguageSwitch::acceleratorsAreUniqueInEachMenu_data()
{
    addLanguages();
}

void TstLanguageSwitch::acceleratorsAreUniqueInEachMenu()
{
    speak(*window, language());
    for (const TranslatedView& view : pageViews()) {
        view.show(*window, [&](QWidget*) {
            for (const QMenu* const menu : menusOf(*window)) {
                QSet<QChar> taken;
                for (const QAction* const action : menu->actions()) {
                    const int mark = action->text().indexOf('&');
                    if (mark < 0)
                        continue;
                    const QChar letter = action->text().at(mark + 1).toUpper();
                    QVERIFY2(!taken.contains(letter), qPrintable(action->text()));
                    taken.insert(letter);
                }
            }
        });
    }
}

void TstLanguageSwitch::fileDialogsFollow_data()
{
    addLanguages();
}

void TstLanguageSwitch::fileDialogsFollow()
{
    const QString english("Files of type:");
    speak(*window, language());
    QCOMPARE(fileTypeLabel() == english, &language() == &languages().front());
    speak(*window, languages().front());
    QCOMPARE(fileTypeLabel(), english);
}

void TstLanguageSwitch::fileDialogsFollowTheStart()
{
    QTranslator translator;
    loadTranslationOf(QLocale("pl_PL"), translator);
    QCOMPARE(fileTypeLabel(), QString("Pliki rodzaju:"));
    loadTranslationOf(QLocale("sv_SE"), translator);
    QCOMPARE(fileTypeLabel(), QString("Filer av typen:"));
    // One that the program has no texts in.
    loadTranslationOf(QLocale("ko_KR"), translator);
    QCOMPARE(fileTypeLabel(), QString("Files of type:"));
}

KORVEX_TEST_MAIN_AFTER(prepareProcess(), TstLanguageSwitch)
#include "tst_languageswitch.moc"
