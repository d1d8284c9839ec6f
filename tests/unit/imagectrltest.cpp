// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagectrltest.h"

#include "usermouse.h"

#include <QTest>

const QSize ImageCtrlTest::small(20, 10);
const QPoint ImageCtrlTest::corner(100, 100);

void ImageCtrlTest::init()
{
    FolderTest::init();
    window = std::make_unique<QWidget>();
    window->setGeometry(50, 50, 400, 300);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(250, 250, 250));
    window->setPalette(palette);
    button = new CImageButton(window.get());
    button->SetBackGround(picture("n", Qt::red), picture("h", Qt::green), picture("p", Qt::blue),
                          picture("d", Qt::yellow), QString(), QString(), 3);
    button->move(corner);
    window->setFocus(); // else the button gets the focus when the window is activated
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get(), 30'000));
    UserMouse::moveAway(button);
}

void ImageCtrlTest::cleanup()
{
    window.reset();
    FolderTest::cleanup();
}

QString ImageCtrlTest::picture(const QString& name, const QColor& colour, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    // A name is used for one picture only: Qt remembers what it has loaded.
    const QString path = this->path(
        QString("%1-%2-%3x%4").arg(name, colour.name()).arg(size.width()).arg(size.height()));
    return image.save(path, "PNG") ? path : QString();
}

QRect ImageCtrlTest::boundsOf(const QImage& image, const QColor& colour)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            const int distance = qAbs(pixel.red() - colour.red()) +
                                 qAbs(pixel.green() - colour.green()) +
                                 qAbs(pixel.blue() - colour.blue());
            if (distance < 60)
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}
