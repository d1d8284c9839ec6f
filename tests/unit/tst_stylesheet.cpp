// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "testmain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTableWidget>
#include <QVBoxLayout>

namespace
{

QString contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

// The application's style sheet, and what the pages' own sheets make of its pictures.
class TstStyleSheet : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void namesOnlyPicturesThatExist();
    void isAccepted();
    void showsThePagesRadioMarksInTheirSize();
};

void TstStyleSheet::initTestCase()
{
    Q_INIT_RESOURCE(pictures);
}

void TstStyleSheet::namesOnlyPicturesThatExist()
{
    static const QRegularExpression url(R"(url\(([^)]*)\))");
    QRegularExpressionMatchIterator matches = url.globalMatch(contents(":/qss.qss"));
    QVERIFY(matches.hasNext());
    while (matches.hasNext()) {
        const QString path = matches.next().captured(1);
        QVERIFY2(QFile::exists(path), qPrintable(path));
        QVERIFY2(QFile::exists(path + "@2x"), qPrintable(path));
    }
}

void TstStyleSheet::isAccepted()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* edit = new QLineEdit;
    auto* check = new QCheckBox;
    auto* table = new QTableWidget(50, 3);
    for (QWidget* widget : QList<QWidget*>({edit, check, new QComboBox, table}))
        layout->addWidget(widget);
    // A sheet that cannot be parsed ends in a Qt warning, which fails the function.
    qApp->setStyleSheet(contents(":/qss.qss"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window, 30'000));
    const QImage shown = window.grab().toImage();
    qApp->setStyleSheet(QString());
    // A valid sheet that rules nothing would leave the box as the platform draws it.
    const QPoint middle = check->mapTo(&window, QPoint(8, check->height() / 2));
    QCOMPARE(shown.pixelColor(middle), QColor(Qt::white));
    QCOMPARE(shown.pixelColor(edit->mapTo(&window, QPoint(edit->width() / 2, 0))),
             QColor("#00A0E6"));
}

void TstStyleSheet::showsThePagesRadioMarksInTheirSize()
{
    QRadioButton radio;
    // As the pages set it: the picture alone says how large the mark is.
    radio.setStyleSheet("QRadioButton::indicator:checked { image: url(:/nwu/rchecked); }"
                        "QRadioButton::indicator:unchecked { image: url(:/nwu/runchecked); }");
    QPalette white;
    white.setColor(QPalette::Window, Qt::white);
    radio.setPalette(white);
    radio.resize(60, 20);
    for (const bool checked : {false, true}) {
        radio.setChecked(checked);
        const QImage mark(checked ? ":/nwu/rchecked" : ":/nwu/runchecked");
        QVERIFY(!mark.isNull());
        QImage expected(mark.size(), QImage::Format_RGB32);
        expected.fill(Qt::white);
        QPainter(&expected).drawImage(0, 0, mark);
        const QRect place({0, (radio.height() - mark.height()) / 2}, mark.size());
        const QImage shown = radio.grab().toImage().copy(place);
        QCOMPARE(shown.convertToFormat(QImage::Format_RGB32), expected);
    }
}

KORVEX_TEST_MAIN(TstStyleSheet)
#include "tst_stylesheet.moc"
