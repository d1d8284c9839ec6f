// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnpagefixture.h"
#include "drivescenario.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"

#include <QClipboard>

// The volume label that the user types on the Burn page.
class TstCBurnDialogLabel : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void lowerCaseBecomesUpperCase_data();
    void lowerCaseBecomesUpperCase();
    void charactersThatALabelCannotHoldAreRefused_data();
    void charactersThatALabelCannotHoldAreRefused();
    void charactersThatMeanNothingToALabelAreAccepted_data();
    void charactersThatMeanNothingToALabelAreAccepted();
    void twelfthCharacterIsRefused();
    void typingInTheMiddleKeepsTheCursorThere();
    void characterThatGrowsTakesTheCursorAlong();
    void upperCaseFormThatIsTooLongIsCut();
    void deletingInTheMiddleKeepsTheCursorThere();
    void pastedTextBecomesUpperCaseAndIsCut();
    void pastedTextWithARefusedCharacterIsRefusedAsAWhole();
    void programmaticTextBecomesUpperCaseToo();

private:
    // As the keyboard does, which QtTest's keys do not beyond Latin-1.
    void type(const QString& text) const;
    void paste(const QString& text) const;

    std::unique_ptr<DriveScenario> drives;
    std::unique_ptr<BurnPageFixture> fixture;
    QLineEdit* label = nullptr;
};

namespace
{

const QString sharpS = QString::fromUtf8("ß");

} // namespace

void TstCBurnDialogLabel::initTestCase()
{
    setApplicationLook();
    drives = std::make_unique<DriveScenario>();
    fixture = std::make_unique<BurnPageFixture>();
    QVERIFY(QTest::qWaitForWindowActive(&fixture->window));
    fixture->chooseUsb();
    label = fixture->line("volumelab");
    label->setFocus();
}

void TstCBurnDialogLabel::cleanupTestCase()
{
    fixture.reset();
    drives.reset();
}

void TstCBurnDialogLabel::init()
{
    TestCase::init();
    label->clear();
}

void TstCBurnDialogLabel::type(const QString& text) const
{
    for (const uint character : text.toUcs4())
        label->insert(QString::fromUcs4(&character, 1));
}

void TstCBurnDialogLabel::paste(const QString& text) const
{
    QApplication::clipboard()->setText(text);
    label->paste();
}

void TstCBurnDialogLabel::lowerCaseBecomesUpperCase_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("latin") << "my Stick 1"
                           << "MY STICK 1";
    QTest::newRow("umlauts") << QString::fromUtf8("äöü") << QString::fromUtf8("ÄÖÜ");
    QTest::newRow("sharp s") << "a" + sharpS + "b" << "ASSB";
    QTest::newRow("cyrillic") << QString::fromUtf8("диск") << QString::fromUtf8("ДИСК");
    QTest::newRow("greek") << QString::fromUtf8("δίσκος") << QString::fromUtf8("ΔΊΣΚΟΣ");
    QTest::newRow("dotless i") << QString::fromUtf8("ıi") << "II";
    QTest::newRow("ligature") << QString::fromUtf8("ﬁ") << "FI";
    QTest::newRow("beyond the first plane") << QString::fromUtf8("𐐨") << QString::fromUtf8("𐐀");
}

void TstCBurnDialogLabel::lowerCaseBecomesUpperCase()
{
    QFETCH(QString, typed);
    type(typed);
    QTEST(label->text(), "shown");
}

void TstCBurnDialogLabel::charactersThatALabelCannotHoldAreRefused_data()
{
    QTest::addColumn<QString>("refused");
    for (const char character : QByteArray("\"*/:<>?\\|+,.;=[]"))
        QTest::newRow(QByteArray(1, character).constData()) << QString(QLatin1Char(character));
    for (const int code : {0x01, 0x07, 0x09, 0x0a, 0x0d, 0x1b, 0x1f, 0x7f})
        QTest::newRow(qPrintable(QString::number(code, 16))) << QString(QChar(code));
}

void TstCBurnDialogLabel::charactersThatALabelCannotHoldAreRefused()
{
    QFETCH(QString, refused);
    label->insert("AB");
    label->insert(refused);
    QCOMPARE(label->text(), QString("AB"));
    label->setCursorPosition(1);
    type("X");
    QCOMPARE(label->text(), QString("AXB"));
}

void TstCBurnDialogLabel::charactersThatMeanNothingToALabelAreAccepted_data()
{
    QTest::addColumn<QString>("accepted");
    for (const char character : QByteArray(" $'!#%&()-@^_`{}~09AZ"))
        QTest::newRow(QByteArray(1, character).constData()) << QString(QLatin1Char(character));
    QTest::newRow("accent") << QString::fromUtf8("É");
    QTest::newRow("chinese") << QString::fromUtf8("光盘");
    QTest::newRow("right to left") << QString::fromUtf8("קורא");
}

void TstCBurnDialogLabel::charactersThatMeanNothingToALabelAreAccepted()
{
    QFETCH(QString, accepted);
    type("A" + accepted + "B");
    QCOMPARE(label->text(), "A" + accepted + "B");
}

void TstCBurnDialogLabel::twelfthCharacterIsRefused()
{
    type("abcdefghijk");
    QCOMPARE(label->text(), QString("ABCDEFGHIJK"));
    type("l");
    QCOMPARE(label->text(), QString("ABCDEFGHIJK"));
    label->setCursorPosition(3);
    type("l");
    QCOMPARE(label->text(), QString("ABCDEFGHIJK"));
}

void TstCBurnDialogLabel::typingInTheMiddleKeepsTheCursorThere()
{
    type("abef");
    label->setCursorPosition(2);
    type("cd");
    QCOMPARE(label->text(), QString("ABCDEF"));
    QCOMPARE(label->cursorPosition(), 4);
}

void TstCBurnDialogLabel::characterThatGrowsTakesTheCursorAlong()
{
    type("stra");
    type(sharpS + "en");
    QCOMPARE(label->text(), QString("STRASSEN"));
    label->setCursorPosition(0);
    type(sharpS + "x");
    QCOMPARE(label->text(), QString("SSXSTRASSEN"));
    QCOMPARE(label->cursorPosition(), 3);
}

void TstCBurnDialogLabel::upperCaseFormThatIsTooLongIsCut()
{
    type("abcdefghij" + sharpS);
    QCOMPARE(label->text(), QString("ABCDEFGHIJS"));
    QCOMPARE(label->cursorPosition(), 11);
}

void TstCBurnDialogLabel::deletingInTheMiddleKeepsTheCursorThere()
{
    type("abcd");
    label->setCursorPosition(2);
    QTest::keyClick(label, Qt::Key_Backspace);
    QCOMPARE(label->text(), QString("ACD"));
    QCOMPARE(label->cursorPosition(), 1);
}

void TstCBurnDialogLabel::pastedTextBecomesUpperCaseAndIsCut()
{
    paste("a rather long label");
    QCOMPARE(label->text(), QString("A RATHER LO"));
    QCOMPARE(label->cursorPosition(), 11);
}

void TstCBurnDialogLabel::pastedTextWithARefusedCharacterIsRefusedAsAWhole()
{
    type("x");
    paste("a/b");
    QCOMPARE(label->text(), QString("X"));
}

void TstCBurnDialogLabel::programmaticTextBecomesUpperCaseToo()
{
    label->setText("abc");
    QCOMPARE(label->text(), QString("ABC"));
}

KORVEX_TEST_MAIN(TstCBurnDialogLabel)
#include "tst_cburndialog_label.moc"
