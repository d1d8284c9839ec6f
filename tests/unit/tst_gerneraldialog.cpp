// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "gerneraldialog.h"
#include "modaldriver.h"
#include "testcase.h"
#include "testmain.h"

#include <QLabel>

class TstGerneralDialog : public TestCase
{
    Q_OBJECT

private slots:
    void formIsPlacedAsDesigned();
    void textLooksAsDesigned();
    void buttonsStandTenPixelsBelowTheGivenLine_data();
    void buttonsStandTenPixelsBelowTheGivenLine();
    void leavingDecidesTheResult_data();
    void leavingDecidesTheResult();
    void returnWithoutOkDoesNothing();
    void secondPictureKeepsOneCloseButton();
    void captionOfNoIsNotWhiteOnWhite();

private:
    static const QString picture;
};

const QString TstGerneralDialog::picture(":/nwu/select_files_extract");

void TstGerneralDialog::formIsPlacedAsDesigned()
{
    const GerneralDialog plain(nullptr);
    QCOMPARE(plain.size(), QSize(400, 300));
    const auto* label = plain.findChild<QLabel*>("label");
    QCOMPARE(label->geometry(), QRect(60, 40, 309, 81));
    QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    GerneralDialog dialog(nullptr);
    dialog.SetBackGround(picture, "text");
    QCOMPARE(dialog.findChild<CImageButton*>("btnclose")->pos(), QPoint(5, 5));
}

void TstGerneralDialog::textLooksAsDesigned()
{
    GerneralDialog dialog(nullptr);
    const QString text("Burn Failed! Do as following:\n1.Try to burn again.\n"
                       "2.Change another USB drive or DVD.");
    dialog.SetBackGround(picture, text);
    const auto* label = dialog.findChild<QLabel*>("label");
    QCOMPARE(label->text(), text);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(label->font().pixelSize(), 12);
    QVERIFY(label->wordWrap());
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(label->palette().color(group, QPalette::WindowText), QColor(83, 81, 81));
    QVERIFY(label->heightForWidth(label->width()) <= label->height());
}

void TstGerneralDialog::buttonsStandTenPixelsBelowTheGivenLine_data()
{
    QTest::addColumn<int>("y");
    QTest::addColumn<int>("x");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("centred") << 120 << 0 << QPoint((400 - 100) / 2, 130);
    QTest::newRow("placed") << 123 << 40 << QPoint(40, 133);
}

void TstGerneralDialog::buttonsStandTenPixelsBelowTheGivenLine()
{
    QFETCH(int, y);
    QFETCH(int, x);
    QFETCH(QPoint, place);
    GerneralDialog dialog(nullptr);
    dialog.SetBackGround(picture, "text");
    dialog.AddOK(y, x);
    dialog.AddNo(y, x);
    for (const char* name : {"btnok", "btnno"}) {
        auto* button = dialog.findChild<CImageButton*>(name);
        QCOMPARE(button->pos(), place);
        QVERIFY(button->rect().contains(button->captionRect()));
    }
}

void TstGerneralDialog::leavingDecidesTheResult_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << "btnok" << 0 << 1;
    QTest::newRow("NO") << "btnno" << 0 << 0;
    QTest::newRow("close") << "btnclose" << 0 << 0;
    QTest::newRow("Escape") << "" << int(Qt::Key_Escape) << 0;
    QTest::newRow("Return") << "" << int(Qt::Key_Return) << 1;
}

void TstGerneralDialog::leavingDecidesTheResult()
{
    QFETCH(QString, button);
    QFETCH(int, key);
    QFETCH(int, result);
    GerneralDialog dialog(nullptr);
    dialog.SetBackGround(picture, "Continue?");
    dialog.AddOK(120, 60);
    dialog.AddNo(120, 240);
    ModalDriver driver;
    if (button.isEmpty())
        driver.key("GerneralDialog", static_cast<Qt::Key>(key));
    else
        driver.press("GerneralDialog", button);
    QCOMPARE(dialog.exec(), result);
    QCOMPARE(driver.texts(), QStringList{"Continue?"});
}

void TstGerneralDialog::returnWithoutOkDoesNothing()
{
    GerneralDialog dialog(nullptr);
    dialog.SetBackGround(picture, "text");
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Return);
    QVERIFY(dialog.isVisible());
}

void TstGerneralDialog::secondPictureKeepsOneCloseButton()
{
    GerneralDialog dialog(nullptr);
    dialog.SetBackGround(picture, "one");
    dialog.SetBackGround(picture, "two");
    QCOMPARE(dialog.findChildren<CImageButton*>("btnclose").size(), 1);
    QCOMPARE(dialog.findChild<QLabel*>("label")->text(), QString("two"));
}

void TstGerneralDialog::captionOfNoIsNotWhiteOnWhite()
{
    GerneralDialog dialog(nullptr);
    dialog.SetBackGround(picture, "text");
    dialog.AddNo(120, 0);
    auto* button = dialog.findChild<CImageButton*>("btnno");
    const QRect caption = button->captionRect();
    const QImage image = dialog.grab(button->geometry()).toImage();
    int inked = 0;
    for (int x = caption.left(); x <= caption.right(); ++x)
        inked += image.pixelColor(x, caption.center().y()).red() < 128;
    QVERIFY(inked > 2);
}

KORVEX_TEST_MAIN(TstGerneralDialog)
#include "tst_gerneraldialog.moc"
