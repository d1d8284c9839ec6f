// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "picturetest.h"

#include "cimagebutton.h"
#include "startup.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QSet>
#include <QtTest>

void PictureTest::initTestCase()
{
    setApplicationLook();
}

void PictureTest::cleanup()
{
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
    TestCase::cleanup();
}

void PictureTest::save(QWidget* widget, const QString& name)
{
    QCoreApplication::processEvents();
    const qreal density = qApp->devicePixelRatio();
    const QImage picture = widget->grab().toImage();
    QCOMPARE(picture.size(), widget->size() * density);
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); y += 3) {
        for (int x = 0; x < picture.width(); x += 3)
            colours.insert(picture.pixel(x, y));
    }
    QVERIFY2(colours.size() > 20, qPrintable(QString::number(colours.size())));
    for (const CImageButton* const button : widget->findChildren<CImageButton*>()) {
        const QRect caption = button->captionRect();
        // No caption is up to a pixel wide.
        QVERIFY2(caption.width() <= 1 || button->isHidden() || button->rect().contains(caption),
                 qPrintable(button->objectName()));
    }
    for (const QLabel* const label : widget->findChildren<QLabel*>()) {
        if (label->isVisible() && !label->wordWrap())
            QVERIFY2(label->fontMetrics().horizontalAdvance(label->text()) <= label->width(),
                     qPrintable(label->text()));
    }
    for (const QAbstractButton* const button : widget->findChildren<QAbstractButton*>()) {
        if (button->isVisible())
            QVERIFY2(button->sizeHint().width() <= button->width(), qPrintable(button->text()));
    }
    const QString folder = QString(KORVEX_SCREENSHOTS "/%1x").arg(qRound(density));
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(picture.save(folder + '/' + name + ".png"));
}
