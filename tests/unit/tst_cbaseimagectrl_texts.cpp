// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagectrltest.h"
#include "testmain.h"
#include "usermouse.h"

#include <QDebug>
#include <QPainter>

namespace
{

QString textOf(const QRect& rectangle)
{
    QString text;
    QDebug(&text) << rectangle;
    return text;
}

} // namespace

class TstCBaseImageCtrlTexts : public ImageCtrlTest
{
    Q_OBJECT

private slots:
    void styleDecidesPlaceAndColourOfTheCaption_data();
    void styleDecidesPlaceAndColourOfTheCaption();
    void styleDecidesTheSizeOfTheCaption_data();
    void styleDecidesTheSizeOfTheCaption();
    void tilePaintsADescriptionBelowItsCaption();
    void otherStylesPaintNoDescription();
    void tileTextsAreWhiteWhilePressed();
    void captionKeepsAmpersandsAndLineBreaks();
};

void TstCBaseImageCtrlTexts::styleDecidesPlaceAndColourOfTheCaption_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<int>("reach");
    const QColor white(Qt::white);
    const QColor deep(0, 98, 143);
    QTest::newRow("0") << 0 << "normal" << white << 0;
    QTest::newRow("1") << 1 << "normal" << QColor(Qt::black) << 35;
    QTest::newRow("1 hover") << 1 << "hover" << QColor(Qt::black) << 35;
    QTest::newRow("2") << 2 << "normal" << white << 40;
    QTest::newRow("3") << 3 << "normal" << white << 0;
    QTest::newRow("4") << 4 << "normal" << QColor(0, 164, 242) << 0;
    QTest::newRow("4 hover") << 4 << "hover" << QColor(0, 38, 56) << 0;
    QTest::newRow("5") << 5 << "normal" << white << 0;
    QTest::newRow("12") << 12 << "normal" << deep << 0;
    QTest::newRow("13") << 13 << "normal" << deep << 0;
    QTest::newRow("13 disabled") << 13 << "disabled" << QColor(0x8C, 0x98, 0xA0) << 0;
    QTest::newRow("unknown") << 99 << "normal" << QColor(0x33, 0x33, 0x33) << 0;
}

void TstCBaseImageCtrlTexts::styleDecidesPlaceAndColourOfTheCaption()
{
    QFETCH(int, style);
    QFETCH(QString, state);
    QFETCH(QColor, colour);
    QFETCH(int, reach);
    // A ground that is no caption's colour; H reaches from the base line to the cap height.
    const QString ground = picture("ground", QColor(200, 60, 60), QSize(160, 100));
    button->SetBackGround(ground, ground, ground, ground, "HHH", "", style);
    button->setEnabled(state != "disabled");
    if (state == "hover")
        UserMouse::move(button, QPoint(5, 5));
    const QRect bounds = boundsOf(window->grab(button->geometry()).toImage(), colour);
    QVERIFY(!bounds.isEmpty());
    const QPoint centre((160 - 1) / 2, (100 + reach) / 2);
    QVERIFY2(qAbs(bounds.center().x() - centre.x()) <= 2, qPrintable(textOf(bounds)));
    QVERIFY2(qAbs(bounds.center().y() - centre.y()) <= 4, qPrintable(textOf(bounds)));
    QVERIFY(button->rect().contains(button->captionRect()));
}

void TstCBaseImageCtrlTexts::styleDecidesTheSizeOfTheCaption_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<int>("reach");
    QTest::newRow("1") << 1 << QColor(Qt::black) << 16 << 35;
    QTest::newRow("3") << 3 << QColor(Qt::white) << 14 << 0;
    QTest::newRow("4") << 4 << QColor(0, 164, 242) << 12 << 0;
}

void TstCBaseImageCtrlTexts::styleDecidesTheSizeOfTheCaption()
{
    QFETCH(int, style);
    QFETCH(QColor, colour);
    QFETCH(int, pixels);
    QFETCH(int, reach);
    const QString ground = picture("ground", QColor(200, 60, 60), QSize(200, 100));
    button->move(0, 0);
    button->SetBackGround(ground, ground, ground, QString(), "Caption", "", style);
    const QImage shown = window->grab(button->geometry()).toImage();
    QImage expected(shown.size(), shown.format());
    expected.fill(QColor(200, 60, 60));
    QPainter painter(&expected);
    QFont font = button->font();
    font.setPixelSize(pixels);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(expected.rect().adjusted(0, 0, 0, reach), Qt::AlignCenter, "Caption");
    painter.end();
    QCOMPARE(shown, expected);
}

void TstCBaseImageCtrlTexts::tilePaintsADescriptionBelowItsCaption()
{
    const QString ground = picture("ground", QColor(250, 250, 90), QSize(206, 220));
    button->move(0, 0);
    button->SetBackGround(ground, ground, ground, QString(), "HHH", "HHHHHHHH", 1);
    const QImage image = window->grab(button->geometry()).toImage();
    const QRect caption = boundsOf(image, Qt::black);
    const QRect description = boundsOf(image, Qt::gray);
    QVERIFY2(qAbs(caption.center().y() - (220 + 35) / 2) <= 4, qPrintable(textOf(caption)));
    // The caption's soft edges are gray too, so only the lower end is the description's own.
    const int middle = (220 + 90) / 2;
    QVERIFY2(description.bottom() > middle && description.bottom() < middle + 12,
             qPrintable(textOf(description)));
    QVERIFY(description.width() > caption.width());
}

void TstCBaseImageCtrlTexts::otherStylesPaintNoDescription()
{
    const QString ground = picture("ground", QColor(200, 60, 60), QSize(206, 220));
    button->move(0, 0);
    for (const int style : {0, 2, 3, 4, 5, 12, 13}) {
        button->SetBackGround(ground, ground, ground, QString(), "", "HHHHHHHH", style);
        QImage expected(button->size(), QImage::Format_RGB32);
        expected.fill(QColor(200, 60, 60));
        const QImage image = window->grab(button->geometry()).toImage();
        QCOMPARE(image.convertToFormat(QImage::Format_RGB32), expected);
    }
}

void TstCBaseImageCtrlTexts::tileTextsAreWhiteWhilePressed()
{
    const QString ground = picture("ground", QColor(0, 128, 188), QSize(206, 220));
    button->move(0, 0);
    button->SetBackGround(ground, ground, ground, QString(), "HHH", "HHHHHHHH", 1);
    UserMouse::press(button, QPoint(5, 5));
    const QImage image = window->grab(button->geometry()).toImage();
    UserMouse::release(button, QPoint(5, 5));
    const QRect white = boundsOf(image, Qt::white);
    QVERIFY(white.top() < (220 + 35) / 2);
    QVERIFY(white.bottom() > (220 + 90) / 2);
    QVERIFY(boundsOf(image, Qt::black).isEmpty());
}

void TstCBaseImageCtrlTexts::captionKeepsAmpersandsAndLineBreaks()
{
    button->SetBackGround(picture("n", Qt::red), QString(), QString(), QString(), "A && B", "", 3);
    const int ampersands = button->captionRect().width();
    button->SetBackGround(picture("n", Qt::red), QString(), QString(), QString(), "A & B", "", 3);
    QVERIFY(button->captionRect().width() < ampersands);
    const int oneLine = button->captionRect().height();
    button->SetBackGround(picture("n", Qt::red), QString(), QString(), QString(), "A\nB", "", 3);
    QVERIFY(button->captionRect().height() >= 2 * oneLine - 2);
}

KORVEX_TEST_MAIN(TstCBaseImageCtrlTexts)
#include "tst_cbaseimagectrl_texts.moc"
