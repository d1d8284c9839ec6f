// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "languages.h"
#include "testcase.h"
#include "testmain.h"
#include "tsfile.h"

#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

// The texts of every language, as translators have written them and as the program loads them.
class TstTranslations : public TestCase
{
    Q_OBJECT

private slots:
    void everyLanguageHasTheSameTexts_data();
    void everyLanguageHasTheSameTexts();
    void everyTextIsFinished_data();
    void everyTextIsFinished();
    void englishIsTheSource();
    void otherLanguagesAreNotEnglish_data();
    void otherLanguagesAreNotEnglish();
    void formIsKept_data();
    void formIsKept();
    void onlyChineseAndJapaneseHaveWideMarks_data();
    void onlyChineseAndJapaneseHaveWideMarks();
    void addressesAndShortcutsStay_data();
    void addressesAndShortcutsStay();
    void oneSourceReadsTheSameInEveryContext_data();
    void oneSourceReadsTheSameInEveryContext();
    void compiledFileHoldsEveryText_data();
    void compiledFileHoldsEveryText();
    void toolkitSpeaksTheLanguage_data();
    void toolkitSpeaksTheLanguage();

private:
    static void addLanguages(bool withEnglish = true);
};

namespace
{

const QString english("en");

QString codeOf(const Language& language)
{
    return QString(language.file).mid(3, 2);
}

QStringList namesOf(const QVector<TsMessage>& messages)
{
    QStringList names;
    for (const TsMessage& message : messages)
        names.append(message.name());
    return names;
}

// Where the text ends: one mark stands for the forms that languages give it.
QChar finalMark(const QString& text)
{
    static const QHash<QChar, QChar> forms{
        {0x2026, '.'}, {0x3002, '.'}, {0xFF01, '!'}, {0xFF1F, '?'}, {0xFF1A, ':'}};
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return {};
    const QChar last = forms.value(trimmed.back(), trimmed.back());
    return QString(".!?:").contains(last) ? last : QChar();
}

QString accelerator(const QString& text)
{
    return QRegularExpression("&(\\S)").match(text).captured(1).toUpper();
}

QStringList placeholders(const QString& text)
{
    QStringList found;
    QRegularExpressionMatchIterator match =
        QRegularExpression("%(?:L?\\d{1,2}|n)|\\*\\.\\w+").globalMatch(text);
    while (match.hasNext())
        found.append(match.next().captured());
    found.sort();
    return found;
}

QString leadingSpace(const QString& text)
{
    return QRegularExpression("^\\s*").match(text).captured();
}

QString trailingSpace(const QString& text)
{
    return QRegularExpression("\\s*$").match(text).captured();
}

// A description of the home screen may take two lines where the English one has one.
bool isLaidInTwoLines(const TsMessage& message)
{
    static const QRegularExpression form("^\n \\S[^\n]* \n \\S[^\n]*\\S$");
    return message.context == "MainWindow" && !message.source.contains('\n') &&
           form.match(message.translation).hasMatch();
}

bool hasSameSpaces(const TsMessage& message)
{
    if (isLaidInTwoLines(message))
        return true;
    return leadingSpace(message.source) == leadingSpace(message.translation) &&
           trailingSpace(message.source) == trailingSpace(message.translation) &&
           message.source.count('\n') == message.translation.count('\n');
}

// The accelerator of a text in a script without capital letters stands behind it, as in English.
bool hasAccelerator(const TsMessage& message, const QString& code)
{
    const QString letter = accelerator(message.translation);
    const QString original = accelerator(message.source);
    if (code == "zh" || code == "ja")
        return letter == original;
    return letter.isEmpty() == original.isEmpty() &&
           (letter.isEmpty() || letter.at(0).isLetter()) && message.translation.count('&') <= 1;
}

} // namespace

void TstTranslations::addLanguages(bool withEnglish)
{
    QTest::addColumn<QString>("code");
    for (const Language& language : languages()) {
        if (withEnglish || codeOf(language) != english)
            QTest::newRow(language.menuText) << codeOf(language);
    }
}

void TstTranslations::everyLanguageHasTheSameTexts_data()
{
    addLanguages();
}

void TstTranslations::everyLanguageHasTheSameTexts()
{
    QFETCH(QString, code);
    QCOMPARE(namesOf(readTsFile(code)), namesOf(readTsFile(english)));
}

void TstTranslations::everyTextIsFinished_data()
{
    addLanguages();
}

void TstTranslations::everyTextIsFinished()
{
    QFETCH(QString, code);
    for (const TsMessage& message : readTsFile(code)) {
        QVERIFY2(message.type.isEmpty(), qPrintable(message.name() + " is " + message.type));
        QVERIFY2(!message.translation.trimmed().isEmpty(), qPrintable(message.name()));
    }
}

void TstTranslations::englishIsTheSource()
{
    for (const TsMessage& message : readTsFile(english))
        QCOMPARE(message.translation, message.source);
}

void TstTranslations::otherLanguagesAreNotEnglish_data()
{
    addLanguages(false);
}

// Some words are the same in two languages; sentences are not.
void TstTranslations::otherLanguagesAreNotEnglish()
{
    QFETCH(QString, code);
    for (const TsMessage& message : readTsFile(code)) {
        if (message.source.trimmed().count(' ') >= 2)
            QVERIFY2(message.translation != message.source, qPrintable(message.name()));
    }
}

void TstTranslations::formIsKept_data()
{
    addLanguages();
}

void TstTranslations::formIsKept()
{
    QFETCH(QString, code);
    for (const TsMessage& message : readTsFile(code)) {
        const QByteArray name = message.name().toUtf8();
        QVERIFY2(hasSameSpaces(message), name);
        QVERIFY2(finalMark(message.source) == finalMark(message.translation), name);
        QVERIFY2(placeholders(message.source) == placeholders(message.translation), name);
        QVERIFY2(hasAccelerator(message, code), name);
        QVERIFY2(!message.translation.simplified().contains("  "), name);
    }
}

void TstTranslations::onlyChineseAndJapaneseHaveWideMarks_data()
{
    addLanguages();
}

// The program's font has Chinese characters and draws curved quotation marks, the apostrophe and
// the ellipsis as wide as those.
void TstTranslations::onlyChineseAndJapaneseHaveWideMarks()
{
    QFETCH(QString, code);
    static const QRegularExpression wide("[\\x{2018}-\\x{201F}\\x{2026}\\x{3000}-\\x{FFEF}]");
    const bool mayHave = code == "zh" || code == "ja";
    for (const TsMessage& message : readTsFile(code))
        QVERIFY2(mayHave || !message.translation.contains(wide), qPrintable(message.name()));
}

void TstTranslations::addressesAndShortcutsStay_data()
{
    addLanguages();
}

void TstTranslations::addressesAndShortcutsStay()
{
    QFETCH(QString, code);
    int found = 0;
    for (const TsMessage& message : readTsFile(code)) {
        if (message.source.startsWith("https:") || message.source.startsWith("CTRL+")) {
            QCOMPARE(message.translation, message.source);
            ++found;
        }
    }
    QCOMPARE(found, 6);
}

void TstTranslations::oneSourceReadsTheSameInEveryContext_data()
{
    addLanguages();
}

void TstTranslations::oneSourceReadsTheSameInEveryContext()
{
    QFETCH(QString, code);
    // The title of a folder picker, and a button that opens one folder.
    static const QSet<QString> twoMeanings{"Open Folder"};
    QHash<QString, QString> known;
    for (const TsMessage& message : readTsFile(code)) {
        const QString first = known.value(message.source, message.translation);
        if (!twoMeanings.contains(message.source))
            QVERIFY2(message.translation == first, qPrintable(message.name()));
        known.insert(message.source, first);
    }
}

void TstTranslations::compiledFileHoldsEveryText_data()
{
    addLanguages();
}

void TstTranslations::compiledFileHoldsEveryText()
{
    QFETCH(QString, code);
    QTranslator translator;
    QVERIFY(translator.load(translationPath("qt_" + code + ".qm")));
    for (const TsMessage& message : readTsFile(code)) {
        QCOMPARE(translator.translate(message.context.toUtf8(), message.source.toUtf8()),
                 message.translation);
    }
}

void TstTranslations::toolkitSpeaksTheLanguage_data()
{
    addLanguages(false);
}

void TstTranslations::toolkitSpeaksTheLanguage()
{
    QFETCH(QString, code);
    QTranslator translator;
    QVERIFY(translator.load(translationPath("qtbase_" + code + ".qm")));
    const QPair<const char*, const char*> samples[] = {
        {"QFileDialog", "Files of type:"}, {"QFileDialog", "&Choose"},
        {"QPlatformTheme", "Cancel"},      {"QWidgetTextControl", "&Paste"},
        {"QFileSystemModel", "Size"},
    };
    for (const auto& sample : samples) {
        const QString text = translator.translate(sample.first, sample.second);
        QVERIFY2(!text.isEmpty() && text != sample.second, sample.second);
    }
}

KORVEX_TEST_MAIN(TstTranslations)
#include "tst_translations.moc"
