// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "applicationlook.h"
#include "cimagebutton.h"
#include "modaldriver.h"
#include "passwordprompt.h"
#include "testcase.h"
#include "testmain.h"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>

// Run at both screen densities.
class TstPasswordPrompt : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyLanguageOfTheProgramHasTexts();
    void everyTextFits_data();
    void everyTextFits();
    void unknownLanguageIsEnglish_data();
    void unknownLanguageIsEnglish();
    void leavingDecidesTheResult_data();
    void leavingDecidesTheResult();
    void returnIsOk();
    void closingTheWindowIsNoAnswer();
    void passwordComesOutUnchanged_data();
    void passwordComesOutUnchanged();
    void takingThePasswordWipesTheField();
    void typedTextIsMaskedAndCannotBeCopied();
    void windowStandsAboveOthersWithTheFieldInFocus();
    void tabGoesFromTheFieldToTheButtons();

private:
    static QLineEdit* field(const QWidget& prompt);
    static void photograph(QWidget* prompt, const QString& name);
};

QLineEdit* TstPasswordPrompt::field(const QWidget& prompt)
{
    return prompt.findChild<QLineEdit*>("passwordEdit");
}

void TstPasswordPrompt::photograph(QWidget* prompt, const QString& name)
{
    const QString folder = KORVEX_SCREENSHOTS "/askpass";
    QVERIFY(QDir().mkpath(folder));
    const QImage picture = prompt->grab().toImage();
    QCOMPARE(picture.size(), prompt->size() * prompt->devicePixelRatioF());
    const QString density = prompt->devicePixelRatioF() > 1 ? "@2x" : "";
    QVERIFY(picture.save(QString("%1/%2%3.png").arg(folder, name, density)));
}

void TstPasswordPrompt::initTestCase()
{
    useApplicationLook();
}

void TstPasswordPrompt::everyLanguageOfTheProgramHasTexts()
{
    const QStringList expected{"en", "zh", "ja", "fr", "de", "es",
                               "pt", "pl", "it", "ru", "nl", "sv"};
    QCOMPARE(PromptTexts::codes().first(), expected.first());
    QSet<QString> sentences;
    QSet<QString> titles;
    for (const QString& code : expected) {
        QCOMPARE(PromptTexts::codes().count(code), 1);
        const PromptTexts texts = PromptTexts::of(code);
        QVERIFY2(texts.why.contains("Korvex ISO Editor"), qPrintable(code));
        QVERIFY2(texts.why.contains("USB") || code == "zh", qPrintable(code));
        sentences.insert(texts.why);
        titles.insert(texts.title);
        QVERIFY2(texts.ok != texts.cancel, qPrintable(code));
        for (const QString& text : {texts.title, texts.field, texts.ok, texts.cancel})
            QVERIFY2(!text.isEmpty() && text == text.trimmed(), qPrintable(code));
    }
    QCOMPARE(sentences.size(), expected.size());
    QCOMPARE(titles.size(), expected.size());
    QCOMPARE(PromptTexts::of("de").cancel, QString("Abbrechen"));
    QCOMPARE(PromptTexts::of("zh").title, QString::fromUtf8("管理员密码"));
}

void TstPasswordPrompt::everyTextFits_data()
{
    QTest::addColumn<QString>("code");
    for (const QString& code : PromptTexts::codes())
        QTest::newRow(qPrintable(code)) << code;
}

void TstPasswordPrompt::everyTextFits()
{
    QFETCH(QString, code);
    const PromptTexts texts = PromptTexts::of(code);
    PasswordPrompt prompt(texts);
    prompt.show();
    QVERIFY(QTest::qWaitForWindowActive(&prompt, 30'000));
    QTest::keyClicks(field(prompt), "secret");
    photograph(&prompt, code);

    QCOMPARE(prompt.windowTitle(), texts.title);
    QSet<QString> shown;
    for (const auto* const label : prompt.findChildren<QLabel*>()) {
        shown.insert(label->text());
        QVERIFY2(label->sizeHint().width() <= label->width() || label->wordWrap(),
                 qPrintable(label->text()));
        QVERIFY2(label->heightForWidth(label->width()) <= label->height(),
                 qPrintable(label->text()));
    }
    QCOMPARE(shown, QSet<QString>({texts.title, texts.why, texts.field}));
    QSet<QString> names;
    for (const auto* const button : prompt.findChildren<CImageButton*>()) {
        names.insert(button->accessibleName());
        QVERIFY2(prompt.rect().contains(button->geometry()), qPrintable(button->objectName()));
        // No caption is up to a pixel wide.
        const QRect caption = button->captionRect();
        QVERIFY2(caption.width() <= 1 || button->rect().adjusted(4, 0, -4, 0).contains(caption),
                 qPrintable(button->accessibleName()));
    }
    QCOMPARE(names, QSet<QString>({texts.ok, texts.cancel}));
    const QFontMetrics metrics = field(prompt)->fontMetrics();
    QVERIFY(metrics.height() <= field(prompt)->height());
}

void TstPasswordPrompt::unknownLanguageIsEnglish_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("none") << QString();
    QTest::newRow("not in the table") << "xx";
    QTest::newRow("with a country") << "de_DE";
    QTest::newRow("upper case") << "DE";
    QTest::newRow("option") << "--help";
}

void TstPasswordPrompt::unknownLanguageIsEnglish()
{
    QFETCH(QString, code);
    QCOMPARE(PromptTexts::of(code).title, QString("Administrator Password"));
}

void TstPasswordPrompt::leavingDecidesTheResult_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << "btnok" << 1;
    QTest::newRow("Cancel") << "btncancel" << 0;
    QTest::newRow("close") << "btnclose" << 0;
    QTest::newRow("Escape") << "" << 0;
}

void TstPasswordPrompt::leavingDecidesTheResult()
{
    QFETCH(QString, button);
    QFETCH(int, result);
    PasswordPrompt prompt(PromptTexts::of("en"));
    ModalDriver driver;
    if (button.isEmpty())
        driver.key("PasswordPrompt", Qt::Key_Escape);
    else
        driver.press("PasswordPrompt", button);
    QCOMPARE(prompt.exec(), result);
}

void TstPasswordPrompt::returnIsOk()
{
    PasswordPrompt prompt(PromptTexts::of("en"));
    ModalDriver driver;
    driver.run("PasswordPrompt", [](QWidget* shown) {
        QTest::keyClicks(shown->focusWidget(), "typed");
        QTest::keyClick(shown->focusWidget(), Qt::Key_Return);
    });
    QCOMPARE(prompt.exec(), 1);
    QCOMPARE(prompt.takePassword(), QByteArray("typed"));
}

void TstPasswordPrompt::closingTheWindowIsNoAnswer()
{
    PasswordPrompt prompt(PromptTexts::of("en"));
    ModalDriver driver;
    driver.run("PasswordPrompt", [](QWidget* shown) { shown->close(); });
    QCOMPARE(prompt.exec(), 0);
}

void TstPasswordPrompt::passwordComesOutUnchanged_data()
{
    QTest::addColumn<QString>("password");
    QTest::newRow("plain") << "secret";
    QTest::newRow("empty") << "";
    QTest::newRow("blank") << " ";
    QTest::newRow("blanks around") << "  a b  ";
    QTest::newRow("quotes") << "\"'`\"";
    QTest::newRow("backslashes") << "\\\\n\\0\\";
    QTest::newRow("dash") << "-n";
    QTest::newRow("percent and dollar") << "%s%n$HOME$(id)";
    QTest::newRow("Unicode") << QString::fromUtf8("pässwörd 密码 пароль");
    QTest::newRow("outside the first plane") << QString::fromUtf8("🔑𝄞");
    QTest::newRow("decomposed") << QString::fromUtf8("a\xCC\x88");
    QTest::newRow("long") << QString(5000, 'x');
}

void TstPasswordPrompt::passwordComesOutUnchanged()
{
    QFETCH(QString, password);
    PasswordPrompt prompt(PromptTexts::of("en"));
    field(prompt)->setText(password);
    // Taking the password wipes the characters that the field has in common with the test.
    const QByteArray expected = password.toUtf8();
    QCOMPARE(prompt.takePassword(), expected);
}

void TstPasswordPrompt::takingThePasswordWipesTheField()
{
    PasswordPrompt prompt(PromptTexts::of("en"));
    field(prompt)->setText("secret");
    const QString sameCharacters = field(prompt)->text();
    QCOMPARE(prompt.takePassword(), QByteArray("secret"));
    QCOMPARE(sameCharacters, QString(6, QChar(0)));
    QVERIFY(field(prompt)->text().isEmpty());
    QVERIFY(prompt.takePassword().isEmpty());
}

void TstPasswordPrompt::typedTextIsMaskedAndCannotBeCopied()
{
    QGuiApplication::clipboard()->setText("before");
    PasswordPrompt prompt(PromptTexts::of("en"));
    prompt.show();
    QTest::keyClicks(field(prompt), "secret");
    QCOMPARE(field(prompt)->text(), QString("secret"));
    QCOMPARE(field(prompt)->displayText(), QString(6, field(prompt)->displayText().at(0)));
    QTest::keyClick(field(prompt), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field(prompt), Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(field(prompt), Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("before"));
    QCOMPARE(debugLines().filter("secret"), QStringList());
}

void TstPasswordPrompt::windowStandsAboveOthersWithTheFieldInFocus()
{
    QWidget other;
    other.show();
    QVERIFY(QTest::qWaitForWindowActive(&other, 30'000));
    PasswordPrompt prompt(PromptTexts::of("en"));
    prompt.show();
    QVERIFY(QTest::qWaitForWindowActive(&prompt, 30'000));
    QVERIFY(prompt.windowFlags() & Qt::WindowStaysOnTopHint);
    QVERIFY(prompt.windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(prompt.focusWidget(), field(prompt));
    QTRY_VERIFY_WITH_TIMEOUT(field(prompt)->hasFocus(), 30'000);
}

void TstPasswordPrompt::tabGoesFromTheFieldToTheButtons()
{
    PasswordPrompt prompt(PromptTexts::of("en"));
    prompt.show();
    QVERIFY(QTest::qWaitForWindowActive(&prompt, 30'000));
    for (const char* const name : {"btnok", "btncancel", "btnclose", "passwordEdit"}) {
        QTest::keyClick(prompt.focusWidget(), Qt::Key_Tab);
        QCOMPARE(prompt.focusWidget()->objectName(), QString(name));
    }
}

KORVEX_TEST_MAIN(TstPasswordPrompt)
#include "tst_passwordprompt.moc"
