// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "picturelist.h"
#include "testcase.h"
#include "testmain.h"

#include <algorithm>
#include <cmath>

namespace
{

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

// From 1 (none) to 21.
double contrast(const QColor& a, const QColor& b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

// Least contrast for texts of the captions' size.
constexpr double readable = 4.5;

// Where the texts of a button or a tile are painted: on a tile below the symbol.
QRect captionArea(const QSize& picture)
{
    if (picture.height() > 100)
        return {picture.width() / 4, 115, picture.width() / 2, 55};
    return QRect({0, 0}, picture).adjusted(6, 6, -6, -6);
}

} // namespace

// What is painted upon pictures, and the symbols in them, stand out from their ground.
class TstPictureContrast : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void whiteCaptionsCanBeRead_data();
    void whiteCaptionsCanBeRead();
    void symbolsInPlaceOfCaptionsCanBeSeen_data();
    void symbolsInPlaceOfCaptionsCanBeSeen();
};

void TstPictureContrast::initTestCase()
{
    Q_INIT_RESOURCE(pictures);
    QVERIFY(!listedPictures().isEmpty());
}

void TstPictureContrast::whiteCaptionsCanBeRead_data()
{
    QTest::addColumn<QString>("path");
    for (const ListedPicture& picture : listedPictures()) {
        const QStringList paths = picture.paths();
        if (QStringList({"primary", "quiet", "slate"}).contains(picture.kind)) {
            for (const QString& path : paths)
                QTest::newRow(qPrintable(path)) << path;
        } else if (picture.kind == "tile") {
            const QString pressed = paths.at(picture.states.indexOf('p'));
            QTest::newRow(qPrintable(pressed)) << pressed;
        }
    }
}

void TstPictureContrast::whiteCaptionsCanBeRead()
{
    QFETCH(QString, path);
    const QImage image = loadPicture(path);
    const QRect area = captionArea(image.size());
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor ground = image.pixelColor(x, y);
            const double ofWhite = contrast(Qt::white, ground);
            QVERIFY2(ground.alpha() == 255 && ofWhite >= readable,
                     qPrintable(QString("%1: %2").arg(ground.name()).arg(ofWhite)));
        }
    }
}

void TstPictureContrast::symbolsInPlaceOfCaptionsCanBeSeen_data()
{
    QTest::addColumn<QString>("path");
    for (const ListedPicture& picture : listedPictures()) {
        if (picture.kind == "iconbutton") {
            for (const QString& path : picture.paths())
                QTest::newRow(qPrintable(path)) << path;
        }
    }
}

void TstPictureContrast::symbolsInPlaceOfCaptionsCanBeSeen()
{
    QFETCH(QString, path);
    const QImage image = loadPicture(path);
    const QColor ground = image.pixelColor(4, image.height() / 2);
    QCOMPARE(ground.alpha(), 255);
    // The symbol has room around it within the outline.
    const QRect inside = image.rect().adjusted(3, 3, -3, -3);
    const QRect room = inside.adjusted(2, 2, -2, -2);
    int seen = 0;
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            QVERIFY(room.contains(x, y) || image.pixelColor(x, y) == ground);
            seen += contrast(image.pixelColor(x, y), ground) >= 3 ? 1 : 0;
        }
    }
    // More than a thin line, less than a ground.
    const double share = 100.0 * seen / (image.width() * image.height());
    QVERIFY2(share > 8 && share < 50, qPrintable(QString::number(share)));
}

KORVEX_TEST_MAIN(TstPictureContrast)
#include "tst_picturecontrast.moc"
