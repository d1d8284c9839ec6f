// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "languages.h"
#include "mainwindow.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "usermouse.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>

// Switching the language from the menu, and the choice at start. The translations beside this test
// say in each text which language they are.
class TstLanguages : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void languagesAreOfferedInOrder();
    void entrySwitchesTheLanguage_data();
    void entrySwitchesTheLanguage();
    void switchReachesAnOpenPageButNotTheMenu();
    void lastSwitchCounts();
    void missingTranslationStillSetsTheNumber();
    void localeChoosesTheLanguage_data();
    void localeChoosesTheLanguage();
    void unknownLocaleKeepsTheNumber();
    void missingTranslationAtStartIsNoTrouble();
    void everyLanguageHasASlot();

private:
    QMenu* menu() const;
    QMenu* languageMenu() const;
    CImageButton* extractButton() const;

    std::unique_ptr<MainWindow> window;
};

void TstLanguages::initTestCase()
{
    setApplicationLook();
}

void TstLanguages::init()
{
    TestCase::init();
    golbalLangue = 0;
    window = std::make_unique<MainWindow>(nullptr);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get(), 30'000));
}

void TstLanguages::cleanup()
{
    UserMouse::moveAway(window.get());
    window.reset();
    TestCase::cleanup();
}

QMenu* TstLanguages::menu() const
{
    return window->menuBar()->actions().at(0)->menu();
}

QMenu* TstLanguages::languageMenu() const
{
    return menu()->actions().at(0)->menu();
}

CImageButton* TstLanguages::extractButton() const
{
    return window->findChild<CImageButton*>("extract", Qt::FindDirectChildrenOnly);
}

void TstLanguages::languagesAreOfferedInOrder()
{
    QStringList texts;
    for (const QAction* const action : languageMenu()->actions()) {
        texts.append(action->text());
        QVERIFY(!action->isCheckable());
    }
    QCOMPARE(texts,
             QStringList({"English", "Chinese", "Japanese", "French", "German", "Spanish",
                          "Portugues", "Polish", "Italian", "Russian", "Netherlands", "Swedish"}));
}

void TstLanguages::entrySwitchesTheLanguage_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("code");
    QTest::addColumn<qint32>("number");
    QTest::newRow("English") << "English"
                             << "en" << 31;
    QTest::newRow("Chinese") << "Chinese"
                             << "zh" << 25;
    QTest::newRow("Japanese") << "Japanese"
                              << "ja" << 59;
    QTest::newRow("French") << "French"
                            << "fr" << 37;
    QTest::newRow("German") << "German"
                            << "de" << 42;
    QTest::newRow("Spanish") << "Spanish"
                             << "es" << 111;
    QTest::newRow("Portuguese, spelled so") << "Portugues"
                                            << "pt" << 91;
    QTest::newRow("Polish") << "Polish"
                            << "pl" << 90;
    QTest::newRow("Italian") << "Italian"
                             << "it" << 58;
    QTest::newRow("Russian") << "Russian"
                             << "ru" << 96;
    QTest::newRow("Netherlands, a country") << "Netherlands"
                                            << "nl" << 151;
    QTest::newRow("Swedish") << "Swedish"
                             << "sv" << 114;
}

void TstLanguages::entrySwitchesTheLanguage()
{
    QFETCH(QString, entry);
    QFETCH(QString, code);
    for (QAction* const action : languageMenu()->actions()) {
        if (action->text() == entry)
            action->trigger();
    }
    QTEST(golbalLangue, "number");
    QCOMPARE(extractButton()->accessibleName(), "Extract " + code);
    QCOMPARE(extractButton()->accessibleDescription(), "Content " + code);
    QVERIFY(debugLines().contains(QString("qt_%1.qm").arg(code)) ||
            debugLines().contains(QString("\"qt_%1.qm\"").arg(code)));
}

void TstLanguages::switchReachesAnOpenPageButNotTheMenu()
{
    window->onExtract();
    window->onSwitzerland();
    QCoreApplication::processEvents();
    QCOMPARE(window->findChild<QLabel*>("isoextract")->text(), QString("ISO Extract sv"));
    QCOMPARE(languageMenu()->actions().at(0)->text(), QString("English"));
    QCOMPARE(menu()->actions().at(4)->text(), QString("Exit(&E)"));
    UserMouse::click(window->findChild<CImageButton*>("menu"));
    menu()->close();
    QCOMPARE(languageMenu()->actions().at(0)->text(), QString("English sv"));
    QCOMPARE(menu()->actions().at(4)->text(), QString("Exit sv"));
}

void TstLanguages::lastSwitchCounts()
{
    window->onGerman();
    window->onFrench();
    window->onGerman();
    window->onPolish();
    QCOMPARE(golbalLangue, 90);
    QCOMPARE(extractButton()->accessibleName(), QString("Extract pl"));
}

void TstLanguages::missingTranslationStillSetsTheNumber()
{
    window->onGerman();
    const QString path = translationPath("qt_nl.qm");
    QVERIFY(QFile::rename(path, path + ".away"));
    window->onNetherlands();
    QVERIFY(QFile::rename(path + ".away", path));
    QCOMPARE(golbalLangue, 151);
    // The one translator holds nothing now.
    QCOMPARE(extractButton()->accessibleName(), QString("Extract"));
    window->onJapanese();
    QCOMPARE(extractButton()->accessibleName(), QString("Extract ja"));
}

void TstLanguages::localeChoosesTheLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<qint32>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("English") << "en_US" << 31 << "Extract en";
    QTest::newRow("English of India") << "en_IN" << 31 << "Extract en";
    QTest::newRow("English of the Netherlands, a language first") << "en_NL" << 31 << "Extract en";
    QTest::newRow("Chinese") << "zh_CN" << 25 << "Extract zh";
    QTest::newRow("Chinese of Taiwan") << "zh_TW" << 25 << "Extract zh";
    QTest::newRow("Japanese") << "ja_JP" << 59 << "Extract ja";
    QTest::newRow("French of Canada") << "fr_CA" << 37 << "Extract fr";
    QTest::newRow("German of Austria") << "de_AT" << 42 << "Extract de";
    QTest::newRow("Spanish of Mexico") << "es_MX" << 111 << "Extract es";
    QTest::newRow("Portuguese of Brazil") << "pt_BR" << 91 << "Extract pt";
    QTest::newRow("Polish") << "pl_PL" << 90 << "Extract pl";
    QTest::newRow("Italian") << "it_IT" << 58 << "Extract it";
    QTest::newRow("Russian") << "ru_RU" << 96 << "Extract ru";
    QTest::newRow("Dutch") << "nl_NL" << 151 << "Extract nl";
    QTest::newRow("Frisian of the Netherlands, by its country") << "fy_NL" << 151 << "Extract nl";
    QTest::newRow("Dutch of Belgium, which is English") << "nl_BE" << 0 << "Extract en";
    QTest::newRow("Syriac, a language with the number of that country")
        << "syr_IQ" << 0 << "Extract en";
    QTest::newRow("Swedish") << "sv_SE" << 114 << "Extract sv";
    QTest::newRow("Swedish of Finland") << "sv_FI" << 114 << "Extract sv";
    QTest::newRow("Korean, which is English") << "ko_KR" << 0 << "Extract en";
    QTest::newRow("none") << "C" << 0 << "Extract en";
}

void TstLanguages::localeChoosesTheLanguage()
{
    QFETCH(QString, locale);
    QTranslator translator;
    loadTranslationOf(QLocale(locale), translator);
    QTEST(golbalLangue, "number");
    QTEST(translator.translate("MainWindow", "Extract"), "text");
}

void TstLanguages::unknownLocaleKeepsTheNumber()
{
    golbalLangue = 42;
    QTranslator translator;
    loadTranslationOf(QLocale("ko_KR"), translator);
    QCOMPARE(golbalLangue, 42);
}

void TstLanguages::missingTranslationAtStartIsNoTrouble()
{
    const QString path = translationPath("qt_sv.qm");
    QVERIFY(QFile::rename(path, path + ".away"));
    QTranslator translator;
    loadTranslationOf(QLocale("sv_SE"), translator);
    QVERIFY(QFile::rename(path + ".away", path));
    QCOMPARE(golbalLangue, 114);
    QVERIFY(translator.isEmpty());
}

void TstLanguages::everyLanguageHasASlot()
{
    QCOMPARE(int(languages().size()), 12);
    for (const Language& language : languages())
        // The first character is the mark of a slot.
        QVERIFY2(window->metaObject()->indexOfSlot(language.slot + 1) >= 0, language.slot);
}

KORVEX_TEST_MAIN(TstLanguages)
#include "tst_languages.moc"
