// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>
#include <QString>

#include <vector>

class QTranslator;

// The current interface language as a QLocale::Language number, except that Dutch is kept as the
// number of its country. 0 until one was matched. The password prompt is chosen by it. (The
// spelling of the name is deliberate.)
extern qint32 golbalLangue;

// One language that the interface is offered in.
struct Language
{
    // Its text in the Language menu, untranslated. "Portugues" is written as it is meant to be.
    const char* menuText;
    // Signature of the MainWindow slot behind the menu entry, as SLOT() makes it.
    const char* slot;
    // File of the translation in the translations folder.
    const char* file;
    // What golbalLangue becomes.
    qint32 number;
    // File of the password prompt that speaks it, in the translations folder.
    const char* passwordPrompt;
};

// The number that Dutch is known by: that of a country.
constexpr qint32 dutchNumber = QLocale::Netherlands;

// In the order of the menu.
const std::vector<Language>& languages();

// The language with this number, which must be in the table.
const Language& languageOfNumber(qint32 number);

// The language that a system locale chooses at start; null when the locale has none and English
// texts are shown. Dutch is recognised by its country, whatever the language.
const Language* languageOfLocale(const QLocale& locale);

// The file of the password prompt for a language number; the English one for an unknown number.
QString passwordPromptOfNumber(qint32 number);

// Full path of a translation file.
QString translationPath(const QString& file);

// Loads the translation that a locale chooses, or the English one, and records the language if one
// was matched. A missing file is ignored. The toolkit's texts follow.
void loadTranslationOf(const QLocale& locale, QTranslator& translator);
