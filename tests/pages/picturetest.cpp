// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "picturetest.h"

#include "startup.h"
#include "textfit.h"

#include <QApplication>
#include <QDir>
#include <QSet>
#include <QTest>

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
    const QStringList cut = cutTexts(widget);
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join("; ")));
    const QString folder = QString(KORVEX_SCREENSHOTS "/%1x").arg(qRound(density));
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(picture.save(folder + '/' + name + ".png"));
}
