// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cinputdialog.h"
#include "modaldriver.h"
#include "testcase.h"
#include "testmain.h"

#include <QLabel>
#include <QLineEdit>

class TstCInputDialog : public TestCase
{
    Q_OBJECT

private slots:
    void formIsPlacedAsDesigned();
    void inputIsTrimmedAndSelected_data();
    void inputIsTrimmedAndSelected();
    void blanksOnlyGiveAnEmptyText();
    void typingReplacesThePreset();
    void leavingDecidesTheResult_data();
    void leavingDecidesTheResult();
    void returnInTheLineIsOk();
};

void TstCInputDialog::formIsPlacedAsDesigned()
{
    const CInputDialog dialog(nullptr);
    QCOMPARE(dialog.size(), QSize(420, 188));
    QCOMPARE(dialog.findChild<QLineEdit*>()->geometry(), QRect(40, 100, 360, 20));
    const auto* label = dialog.findChild<QLabel*>("label");
    QCOMPARE(label->geometry(), QRect(40, 60, 340, 25));
    QCOMPARE(label->text(), QString("Please input the name:"));
}

void TstCInputDialog::inputIsTrimmedAndSelected_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain") << "name"
                           << "name";
    QTest::newRow("blanks around") << "  two words \t\n"
                                   << "two words";
    QTest::newRow("blanks only") << "   "
                                 << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("Unicode") << QString::fromUtf8(" 画像 é ") << QString::fromUtf8("画像 é");
    QTest::newRow("odd") << "-a \"b\" 'c' &d"
                         << "-a \"b\" 'c' &d";
    QTest::newRow("long") << QString(255, 'x') << QString(255, 'x');
}

void TstCInputDialog::inputIsTrimmedAndSelected()
{
    QFETCH(QString, input);
    QFETCH(QString, shown);
    CInputDialog dialog(nullptr);
    dialog.SetInput(input);
    const auto* edit = dialog.findChild<QLineEdit*>();
    QCOMPARE(edit->text(), shown);
    QCOMPARE(edit->selectedText(), shown);
    QCOMPARE(dialog.GetInput(), shown);
}

void TstCInputDialog::blanksOnlyGiveAnEmptyText()
{
    CInputDialog dialog(nullptr);
    dialog.findChild<QLineEdit*>()->setText("  \t ");
    QVERIFY(dialog.GetInput().isEmpty());
}

void TstCInputDialog::typingReplacesThePreset()
{
    CInputDialog dialog(nullptr);
    dialog.SetInput("old");
    ModalDriver driver;
    driver.run("CInputDialog", [](QWidget* shown) {
        QTest::keyClicks(shown->focusWidget(), " new ");
        QTest::keyClick(shown->focusWidget(), Qt::Key_Return);
    });
    QCOMPARE(dialog.exec(), 1);
    QCOMPARE(dialog.GetInput(), QString("new"));
}

void TstCInputDialog::leavingDecidesTheResult_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << "btnok" << 1;
    QTest::newRow("NO") << "btncancel" << 0;
    QTest::newRow("close") << "btnclose" << 0;
    QTest::newRow("Escape") << "" << 0;
}

void TstCInputDialog::leavingDecidesTheResult()
{
    QFETCH(QString, button);
    QFETCH(int, result);
    CInputDialog dialog(nullptr);
    ModalDriver driver;
    if (button.isEmpty())
        driver.key("CInputDialog", Qt::Key_Escape);
    else
        driver.press("CInputDialog", button);
    QCOMPARE(dialog.exec(), result);
}

void TstCInputDialog::returnInTheLineIsOk()
{
    CInputDialog dialog(nullptr);
    ModalDriver driver;
    driver.key("CInputDialog", Qt::Key_Return);
    QCOMPARE(dialog.exec(), 1);
}

KORVEX_TEST_MAIN(TstCInputDialog)
#include "tst_cinputdialog.moc"
