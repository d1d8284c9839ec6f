// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "languages.h"

#include "toolkittexts.h"

#include <QCoreApplication>
#include <QDebug>
#include <QObject>
#include <QTranslator>

#include <algorithm>

qint32 golbalLangue = 0;

namespace
{

const char* const englishFile = "qt_en.qm";
const char* const englishPrompt = "askpass.js";

const Language* findLanguage(qint32 number)
{
    const auto& all = languages();
    const auto found = std::find_if(all.begin(), all.end(), [number](const Language& language) {
        return language.number == number;
    });
    return found == all.end() ? nullptr : &*found;
}

} // namespace

const std::vector<Language>& languages()
{
    static const std::vector<Language> all{
        {QT_TRANSLATE_NOOP("MainWindow", "English"), SLOT(onEnglish()), englishFile,
         QLocale::English, englishPrompt},
        {QT_TRANSLATE_NOOP("MainWindow", "Chinese"), SLOT(onChinese()), "qt_zh.qm",
         QLocale::Chinese, "askpass_zh.js"},
        {QT_TRANSLATE_NOOP("MainWindow", "Japanese"), SLOT(onJapanese()), "qt_ja.qm",
         QLocale::Japanese, "askpass_ja.js"},
        {QT_TRANSLATE_NOOP("MainWindow", "French"), SLOT(onFrench()), "qt_fr.qm", QLocale::French,
         "askpass_fr.js"},
        {QT_TRANSLATE_NOOP("MainWindow", "German"), SLOT(onGerman()), "qt_de.qm", QLocale::German,
         "askpass_de.js"},
        {QT_TRANSLATE_NOOP("MainWindow", "Spanish"), SLOT(onSpanish()), "qt_es.qm",
         QLocale::Spanish, "askpass_es.js"},
        {QT_TRANSLATE_NOOP("MainWindow", "Portugues"), SLOT(onPortuguese()), "qt_pt.qm",
         QLocale::Portuguese, "askpass_pt.js"},
        {QT_TRANSLATE_NOOP("MainWindow", "Polish"), SLOT(onPolish()), "qt_pl.qm", QLocale::Polish,
         "askpass_pl.js"},
        {QT_TRANSLATE_NOOP("MainWindow", "Italian"), SLOT(onItalian()), "qt_it.qm",
         QLocale::Italian, "askpass_it.js"},
        {QT_TRANSLATE_NOOP("MainWindow", "Russian"), SLOT(onRussian()), "qt_ru.qm",
         QLocale::Russian, "askpass_ru.js"},
        {QT_TRANSLATE_NOOP("MainWindow", "Netherlands"), SLOT(onNetherlands()), "qt_nl.qm",
         dutchNumber, "askpass_nl.js"},
        {QT_TRANSLATE_NOOP("MainWindow", "Swedish"), SLOT(onSwitzerland()), "qt_sv.qm",
         QLocale::Swedish, "askpass_sv.js"},
    };
    return all;
}

const Language& languageOfNumber(qint32 number)
{
    const Language* const language = findLanguage(number);
    Q_ASSERT(language);
    return *language;
}

const Language* languageOfLocale(const QLocale& locale)
{
    // The Dutch number is a country's; as a language's it means another one.
    const bool isInTable = locale.language() != dutchNumber;
    const Language* const byLanguage = isInTable ? findLanguage(locale.language()) : nullptr;
    if (byLanguage && byLanguage->number != QLocale::Swedish)
        return byLanguage;
    if (locale.country() == QLocale::Netherlands)
        return &languageOfNumber(dutchNumber);
    return byLanguage;
}

QString passwordPromptOfNumber(qint32 number)
{
    const Language* const language = findLanguage(number);
    return language ? language->passwordPrompt : englishPrompt;
}

QString translationPath(const QString& file)
{
    return QCoreApplication::applicationDirPath() + "/translations/" + file;
}

void loadTranslationOf(const QLocale& locale, QTranslator& translator)
{
    const Language* const language = languageOfLocale(locale);
    if (language)
        golbalLangue = language->number;
    if (!translator.load(translationPath(language ? language->file : englishFile)))
        qDebug() << "no translation for" << locale.name();
    loadToolkitTexts(language);
}
