// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "picturelist.h"
#include "testcase.h"
#include "testmain.h"

#include <QHash>

#include <cstdlib>

namespace
{

// Share of the pixels, in percent, that an eye would see change between two pictures of one size.
double changedPercent(const QImage& a, const QImage& b)
{
    const auto differs = [](int x, int y) { return std::abs(x - y) > 8; };
    int changed = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            if (differs(qAlpha(p), qAlpha(q)) || differs(qRed(p), qRed(q)) ||
                differs(qGreen(p), qGreen(q)) || differs(qBlue(p), qBlue(q)))
                ++changed;
        }
    }
    return 100.0 * changed / (a.width() * a.height());
}

} // namespace

class TstPictures : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyPictureIsThereAtBothResolutions_data();
    void everyPictureIsThereAtBothResolutions();
    void noTwoNamesAreOneWhereCaseDoesNotCount();
    void statesAreToldApart_data();
    void statesAreToldApart();
    void roundMarksAndGlyphsHaveNoGround_data();
    void roundMarksAndGlyphsHaveNoGround();
    void windowsHaveTransparentCornersAndAnOpaqueMiddle_data();
    void windowsHaveTransparentCornersAndAnOpaqueMiddle();
    void dialogsLeaveTheirTextsAndButtonsAPlainGround_data();
    void dialogsLeaveTheirTextsAndButtonsAPlainGround();
    void pagesHideWhatLiesUnderThem_data();
    void pagesHideWhatLiesUnderThem();
};

void TstPictures::initTestCase()
{
    Q_INIT_RESOURCE(pictures);
    QVERIFY(!listedPictures().isEmpty());
}

void TstPictures::everyPictureIsThereAtBothResolutions_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    for (const ListedPicture& picture : listedPictures()) {
        for (const QString& path : picture.paths())
            QTest::newRow(qPrintable(path)) << path << picture.size;
    }
}

void TstPictures::everyPictureIsThereAtBothResolutions()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    QCOMPARE(QImage(path).size(), size);
    const QImage fine(path + "@2x");
    QCOMPARE(fine.size(), 2 * size);
    // The mark in the name tells Qt how dense the picture is.
    QCOMPARE(fine.devicePixelRatio(), 2.0);
}

// On a disk that does not tell the case of letters, one of two such files would replace the other.
void TstPictures::noTwoNamesAreOneWhereCaseDoesNotCount()
{
    QHash<QString, QString> seen;
    for (const ListedPicture& picture : listedPictures()) {
        for (const QString& path : picture.paths()) {
            const QString folded = path.toCaseFolded();
            QVERIFY2(!seen.contains(folded), qPrintable(path + " and " + seen.value(folded)));
            seen.insert(folded, path);
        }
    }
}

void TstPictures::statesAreToldApart_data()
{
    QTest::addColumn<QStringList>("paths");
    for (const ListedPicture& picture : listedPictures()) {
        if (picture.states != "-")
            QTest::newRow(qPrintable(picture.name)) << picture.paths();
    }
    QTest::newRow("radio button") << QStringList({":/nwu/rchecked", ":/nwu/runchecked"});
    QTest::newRow("check box") << QStringList(
        {":/nwu/check-on1", ":/nwu/check-part1", ":/nwu/check-off1"});
}

void TstPictures::statesAreToldApart()
{
    QFETCH(QStringList, paths);
    for (int i = 0; i < paths.size(); ++i) {
        for (int j = i + 1; j < paths.size(); ++j) {
            QCOMPARE(loadPicture(paths.at(i)).size(), loadPicture(paths.at(j)).size());
            const double changed =
                changedPercent(loadPicture(paths.at(i)), loadPicture(paths.at(j)));
            QVERIFY2(changed > 2, qPrintable(QString("%1 and %2 differ in %3 % of their pixels")
                                                 .arg(paths.at(i), paths.at(j))
                                                 .arg(changed)));
        }
    }
}

void TstPictures::roundMarksAndGlyphsHaveNoGround_data()
{
    QTest::addColumn<QString>("path");
    for (const ListedPicture& picture : listedPictures()) {
        if (QStringList({"radio", "checkedradio", "lens"}).contains(picture.kind))
            QTest::newRow(qPrintable(picture.name)) << ":/nwu/" + picture.name;
    }
}

void TstPictures::roundMarksAndGlyphsHaveNoGround()
{
    QFETCH(QString, path);
    for (const QString& suffix : QStringList({"", "@2x"})) {
        const QImage image = loadPicture(path + suffix);
        // What is drawn keeps clear of the edges, which would cut it.
        const QRect room = image.rect().adjusted(1, 1, -1, -1);
        int drawn = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                QVERIFY(room.contains(x, y) || qAlpha(image.pixel(x, y)) == 0);
                drawn += qAlpha(image.pixel(x, y)) == 255 ? 1 : 0;
            }
        }
        QVERIFY(drawn > image.width());
    }
}

void TstPictures::windowsHaveTransparentCornersAndAnOpaqueMiddle_data()
{
    QTest::addColumn<QString>("path");
    for (const ListedPicture& picture : listedPictures()) {
        if (QStringList({"main", "dialog", "question", "notice", "about"}).contains(picture.kind))
            QTest::newRow(qPrintable(picture.name)) << ":/nwu/" + picture.name;
    }
}

void TstPictures::windowsHaveTransparentCornersAndAnOpaqueMiddle()
{
    QFETCH(QString, path);
    for (const QString& suffix : QStringList({"", "@2x"})) {
        const QImage image = loadPicture(path + suffix);
        const QRect area = image.rect();
        for (const QPoint& corner :
             {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()})
            QCOMPARE(qAlpha(image.pixel(corner)), 0);
        QCOMPARE(qAlpha(image.pixel(area.center())), 255);
        // The outline reaches the edge between the corners.
        QCOMPARE(qAlpha(image.pixel(area.center().x(), 0)), 255);
        QCOMPARE(qAlpha(image.pixel(0, area.center().y())), 255);
    }
}

void TstPictures::dialogsLeaveTheirTextsAndButtonsAPlainGround_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QRect>("area");
    for (const ListedPicture& picture : listedPictures()) {
        const QString path = ":/nwu/" + picture.name;
        const QByteArray name = picture.name.toUtf8();
        if (picture.kind == "dialog" || picture.kind == "question") {
            QTest::newRow(name + " text") << path << QRect(40, 50, 340, 80);
            QTest::newRow(name + " buttons") << path << QRect(80, 140, 280, 28);
        } else if (picture.kind == "notice") {
            QTest::newRow(name + " text") << path << QRect(60, 40, 309, 81);
            QTest::newRow(name + " buttons") << path << QRect(80, 133, 240, 28);
        }
    }
}

void TstPictures::dialogsLeaveTheirTextsAndButtonsAPlainGround()
{
    QFETCH(QString, path);
    QFETCH(QRect, area);
    const QImage image = loadPicture(path);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            QCOMPARE(image.pixelColor(x, y), QColor(Qt::white));
    }
}

void TstPictures::pagesHideWhatLiesUnderThem_data()
{
    QTest::addColumn<QString>("path");
    for (const ListedPicture& picture : listedPictures()) {
        if (picture.kind == "page")
            QTest::newRow(qPrintable(picture.name)) << ":/nwu/" + picture.name;
    }
}

void TstPictures::pagesHideWhatLiesUnderThem()
{
    QFETCH(QString, path);
    const QImage image = loadPicture(path);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(qAlpha(image.pixel(x, y)), 255);
    }
}

KORVEX_TEST_MAIN(TstPictures)
#include "tst_pictures.moc"
