// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagectrltest.h"
#include "testmain.h"
#include "usermouse.h"

#include <QPainter>

class TstCBaseImageCtrl : public ImageCtrlTest
{
    Q_OBJECT

private slots:
    void showsThePictureOfItsState_data();
    void showsThePictureOfItsState();
    void disabledWithoutDisabledPictureShowsTheNormalOne();
    void stateWithoutPicturePaintsNothing();
    void stripShowsTheFrameOfItsState_data();
    void stripShowsTheFrameOfItsState();
    void separatePicturesAfterAStripForgetTheFrames();
    void pictureSitsWhereTheAlignmentSays_data();
    void pictureSitsWhereTheAlignmentSays();
    void takesTheSizeOfItsPicture_data();
    void takesTheSizeOfItsPicture();
    void keepsItsSizeWithoutAutoSizeUntilResize();
    void missingPictureKeepsTheSize();

private:
    QString strip(int frames);
    QColor shown() const;
};

QString TstCBaseImageCtrl::strip(int frames)
{
    const QColor colours[] = {Qt::red, Qt::green, Qt::blue, Qt::yellow};
    QImage image(small.width() * frames, small.height(), QImage::Format_ARGB32);
    QPainter painter(&image);
    for (int i = 0; i < frames; ++i)
        painter.fillRect(i * small.width(), 0, small.width(), small.height(), colours[i]);
    painter.end();
    const QString path = this->path(QString("strip%1").arg(frames));
    return image.save(path, "PNG") ? path : QString();
}

QColor TstCBaseImageCtrl::shown() const
{
    const QImage image = window->grab().toImage();
    return image.pixelColor(button->geometry().center());
}

void TstCBaseImageCtrl::showsThePictureOfItsState_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("normal") << "normal" << QColor(Qt::red);
    QTest::newRow("hover") << "hover" << QColor(Qt::green);
    QTest::newRow("pressed") << "pressed" << QColor(Qt::blue);
    QTest::newRow("pressed and dragged off") << "dragged" << QColor(Qt::red);
    QTest::newRow("disabled") << "disabled" << QColor(Qt::yellow);
    QTest::newRow("disabled under the mouse") << "disabled hover" << QColor(Qt::yellow);
}

void TstCBaseImageCtrl::showsThePictureOfItsState()
{
    QFETCH(QString, state);
    QFETCH(QColor, colour);
    const QPoint inside(5, 5);
    button->setEnabled(!state.startsWith("disabled"));
    if (state.endsWith("hover"))
        UserMouse::move(button, inside);
    if (state == "pressed" || state == "dragged")
        UserMouse::press(button, inside);
    if (state == "dragged")
        UserMouse::moveAway(button);
    const QColor seen = shown();
    if (state == "pressed" || state == "dragged")
        UserMouse::release(window.get(), QPoint(0, 0));
    QCOMPARE(seen, colour);
}

void TstCBaseImageCtrl::disabledWithoutDisabledPictureShowsTheNormalOne()
{
    button->SetBackGround(picture("n", Qt::red), picture("h", Qt::green), picture("p", Qt::blue),
                          QString(), QString(), QString(), 3);
    button->setEnabled(false);
    QCOMPARE(shown(), QColor(Qt::red));
}

void TstCBaseImageCtrl::stateWithoutPicturePaintsNothing()
{
    button->SetBackGround(picture("n", Qt::red), path("missing"), QString(), QString(), QString(),
                          QString(), 3);
    UserMouse::move(button, QPoint(5, 5));
    QCOMPARE(shown(), QColor(250, 250, 250));
}

void TstCBaseImageCtrl::stripShowsTheFrameOfItsState_data()
{
    QTest::addColumn<int>("frames");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("four, normal") << 4 << "normal" << QColor(Qt::red);
    QTest::newRow("four, hover") << 4 << "hover" << QColor(Qt::green);
    QTest::newRow("four, pressed") << 4 << "pressed" << QColor(Qt::blue);
    QTest::newRow("four, disabled") << 4 << "disabled" << QColor(Qt::yellow);
    QTest::newRow("three, pressed") << 3 << "pressed" << QColor(Qt::blue);
    QTest::newRow("three, disabled: the first frame") << 3 << "disabled" << QColor(Qt::red);
    QTest::newRow("two, hover") << 2 << "hover" << QColor(Qt::green);
    QTest::newRow("two, pressed: the last frame there is") << 2 << "pressed" << QColor(Qt::green);
    QTest::newRow("two, disabled") << 2 << "disabled" << QColor(Qt::red);
    // One frame is no strip: the other pictures are missing, so hovering shows the ground.
    QTest::newRow("one, normal") << 1 << "normal" << QColor(Qt::red);
    QTest::newRow("one, hover") << 1 << "hover" << QColor(250, 250, 250);
}

void TstCBaseImageCtrl::stripShowsTheFrameOfItsState()
{
    QFETCH(int, frames);
    QFETCH(QString, state);
    QFETCH(QColor, colour);
    button->SetBackGround(strip(frames), frames, QString(), 3);
    button->setEnabled(state != "disabled");
    if (state == "hover")
        UserMouse::move(button, QPoint(5, 5));
    if (state == "pressed")
        UserMouse::press(button, QPoint(5, 5));
    const QColor seen = shown();
    if (state == "pressed")
        UserMouse::release(button, QPoint(5, 5));
    QCOMPARE(seen, colour);
    QCOMPARE(button->size(), small);
}

void TstCBaseImageCtrl::separatePicturesAfterAStripForgetTheFrames()
{
    button->SetBackGround(strip(4), 4, QString(), 3);
    button->SetBackGround(picture("n", Qt::red), picture("h", Qt::cyan), QString(), QString(),
                          QString(), QString(), 3);
    UserMouse::move(button, QPoint(5, 5));
    QCOMPARE(shown(), QColor(Qt::cyan));
    QCOMPARE(button->size(), small);
}

void TstCBaseImageCtrl::pictureSitsWhereTheAlignmentSays_data()
{
    QTest::addColumn<int>("align");
    QTest::addColumn<QPoint>("place");
    // A 20 x 10 picture in a 100 x 50 control.
    QTest::newRow("0 left") << 0 << QPoint(0, 20);
    QTest::newRow("1 top") << 1 << QPoint(40, 0);
    QTest::newRow("2 right") << 2 << QPoint(80, 20);
    QTest::newRow("3 bottom") << 3 << QPoint(40, 40);
    QTest::newRow("4 centre") << 4 << QPoint(40, 20);
    QTest::newRow("-1 centre") << -1 << QPoint(40, 20);
    QTest::newRow("unset: centre") << INT_MAX << QPoint(40, 20);
}

void TstCBaseImageCtrl::pictureSitsWhereTheAlignmentSays()
{
    QFETCH(int, align);
    QFETCH(QPoint, place);
    button->resize(100, 50);
    if (align != INT_MAX)
        button->SetAlign(align);
    const QImage image = window->grab(button->geometry()).toImage();
    QCOMPARE(boundsOf(image, Qt::red), QRect(place, small));
}

void TstCBaseImageCtrl::takesTheSizeOfItsPicture_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("small") << QSize(1, 1);
    QTest::newRow("button") << QSize(100, 28);
    QTest::newRow("tile") << QSize(426, 220);
}

void TstCBaseImageCtrl::takesTheSizeOfItsPicture()
{
    QFETCH(QSize, size);
    button->SetBackGround(picture("sized", Qt::red, size), QString(), QString(), QString(),
                          QString(), QString(), 0);
    QCOMPARE(button->size(), size);
}

void TstCBaseImageCtrl::keepsItsSizeWithoutAutoSizeUntilResize()
{
    button->SetAutoSizeByImage(false);
    button->resize(33, 44);
    button->SetBackGround(picture("big", Qt::red, QSize(100, 28)), QString(), QString(), QString(),
                          QString(), QString(), 0);
    QCOMPARE(button->size(), QSize(33, 44));
    button->Resize();
    QCOMPARE(button->size(), QSize(100, 28));
}

void TstCBaseImageCtrl::missingPictureKeepsTheSize()
{
    button->SetBackGround(path("missing"), QString(), QString(), QString(), "Text", QString(), 0);
    QCOMPARE(button->size(), small);
    button->SetBackGround(path("missing"), 4, QString(), 0);
    QCOMPARE(button->size(), small);
}

KORVEX_TEST_MAIN(TstCBaseImageCtrl)
#include "tst_cbaseimagectrl.moc"
