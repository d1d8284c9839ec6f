// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "testmain.h"

#include <QFile>
#include <QHash>
#include <QImage>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace
{

// One line of the list of pictures.
struct Entry
{
    QString name;
    QString kind;
    QSize size;
    QString states;

    // Resource paths in the order of the states.
    QStringList paths() const
    {
        if (states == "-")
            return {":/nwu/" + name};
        QStringList all;
        for (int i = 1; i <= states.size(); ++i)
            all.append(QString(":/nwu/%1%2").arg(name).arg(i));
        return all;
    }
};

QString contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QVector<Entry> readList()
{
    static const QRegularExpression form(R"(^([^# ]\S*) +(\S+) +\S+ +(\d+)x(\d+) +(\S+)$)",
                                         QRegularExpression::MultilineOption);
    QVector<Entry> entries;
    QRegularExpressionMatchIterator matches = form.globalMatch(contents(KORVEX_PICTURE_LIST));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        entries.append({match.captured(1),
                        match.captured(2),
                        {match.captured(3).toInt(), match.captured(4).toInt()},
                        match.captured(5)});
    }
    return entries;
}

QImage load(const QString& path)
{
    return QImage(path).convertToFormat(QImage::Format_ARGB32);
}

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
    void whiteCaptionsCanBeRead_data();
    void whiteCaptionsCanBeRead();
    void symbolsInPlaceOfCaptionsCanBeSeen_data();
    void symbolsInPlaceOfCaptionsCanBeSeen();
};

void TstPictures::initTestCase()
{
    Q_INIT_RESOURCE(pictures);
    QVERIFY(!readList().isEmpty());
}

void TstPictures::everyPictureIsThereAtBothResolutions_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    for (const Entry& entry : readList()) {
        for (const QString& path : entry.paths())
            QTest::newRow(qPrintable(path)) << path << entry.size;
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
    for (const Entry& entry : readList()) {
        for (const QString& path : entry.paths()) {
            const QString folded = path.toCaseFolded();
            QVERIFY2(!seen.contains(folded), qPrintable(path + " and " + seen.value(folded)));
            seen.insert(folded, path);
        }
    }
}

void TstPictures::statesAreToldApart_data()
{
    QTest::addColumn<QStringList>("paths");
    for (const Entry& entry : readList()) {
        if (entry.states != "-")
            QTest::newRow(qPrintable(entry.name)) << entry.paths();
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
            QCOMPARE(load(paths.at(i)).size(), load(paths.at(j)).size());
            const double changed = changedPercent(load(paths.at(i)), load(paths.at(j)));
            QVERIFY2(changed > 2, qPrintable(QString("%1 and %2 differ in %3 % of their pixels")
                                                 .arg(paths.at(i), paths.at(j))
                                                 .arg(changed)));
        }
    }
}

void TstPictures::roundMarksAndGlyphsHaveNoGround_data()
{
    QTest::addColumn<QString>("path");
    for (const Entry& entry : readList()) {
        if (QStringList({"radio", "checkedradio", "lens"}).contains(entry.kind))
            QTest::newRow(qPrintable(entry.name)) << ":/nwu/" + entry.name;
    }
}

void TstPictures::roundMarksAndGlyphsHaveNoGround()
{
    QFETCH(QString, path);
    for (const QString& suffix : QStringList({"", "@2x"})) {
        const QImage image = load(path + suffix);
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
    for (const Entry& entry : readList()) {
        if (QStringList({"main", "dialog", "question", "notice", "about"}).contains(entry.kind))
            QTest::newRow(qPrintable(entry.name)) << ":/nwu/" + entry.name;
    }
}

void TstPictures::windowsHaveTransparentCornersAndAnOpaqueMiddle()
{
    QFETCH(QString, path);
    for (const QString& suffix : QStringList({"", "@2x"})) {
        const QImage image = load(path + suffix);
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
    for (const Entry& entry : readList()) {
        const QString path = ":/nwu/" + entry.name;
        const QByteArray name = entry.name.toUtf8();
        if (entry.kind == "dialog" || entry.kind == "question") {
            QTest::newRow(name + " text") << path << QRect(40, 50, 340, 80);
            QTest::newRow(name + " buttons") << path << QRect(80, 140, 280, 28);
        } else if (entry.kind == "notice") {
            QTest::newRow(name + " text") << path << QRect(60, 40, 309, 81);
            QTest::newRow(name + " buttons") << path << QRect(80, 133, 240, 28);
        }
    }
}

void TstPictures::dialogsLeaveTheirTextsAndButtonsAPlainGround()
{
    QFETCH(QString, path);
    QFETCH(QRect, area);
    const QImage image = load(path);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            QCOMPARE(image.pixelColor(x, y), QColor(Qt::white));
    }
}

void TstPictures::pagesHideWhatLiesUnderThem_data()
{
    QTest::addColumn<QString>("path");
    for (const Entry& entry : readList()) {
        if (entry.kind == "page")
            QTest::newRow(qPrintable(entry.name)) << ":/nwu/" + entry.name;
    }
}

void TstPictures::pagesHideWhatLiesUnderThem()
{
    QFETCH(QString, path);
    const QImage image = load(path);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(qAlpha(image.pixel(x, y)), 255);
    }
}

void TstPictures::whiteCaptionsCanBeRead_data()
{
    QTest::addColumn<QString>("path");
    for (const Entry& entry : readList()) {
        const QStringList paths = entry.paths();
        if (QStringList({"primary", "quiet", "slate"}).contains(entry.kind)) {
            for (const QString& path : paths)
                QTest::newRow(qPrintable(path)) << path;
        } else if (entry.kind == "tile") {
            const QString pressed = paths.at(entry.states.indexOf('p'));
            QTest::newRow(qPrintable(pressed)) << pressed;
        }
    }
}

void TstPictures::whiteCaptionsCanBeRead()
{
    QFETCH(QString, path);
    const QImage image = load(path);
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

void TstPictures::symbolsInPlaceOfCaptionsCanBeSeen_data()
{
    QTest::addColumn<QString>("path");
    for (const Entry& entry : readList()) {
        if (entry.kind == "iconbutton") {
            for (const QString& path : entry.paths())
                QTest::newRow(qPrintable(path)) << path;
        }
    }
}

void TstPictures::symbolsInPlaceOfCaptionsCanBeSeen()
{
    QFETCH(QString, path);
    const QImage image = load(path);
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

KORVEX_TEST_MAIN(TstPictures)
#include "tst_pictures.moc"
