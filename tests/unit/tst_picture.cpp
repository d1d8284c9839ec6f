// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "picture.h"
#include "testcase.h"
#include "testmain.h"

class TstPicture : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void ratioDecidesTheVariant_data();
    void ratioDecidesTheVariant();
    void pictureWithoutDoubledVariantServesEveryScreen();
    void missingPictureIsNull_data();
    void missingPictureIsNull();
    void programPicturesAreRegistered();

private:
    QTemporaryDir folder;
};

void TstPicture::initTestCase()
{
    QVERIFY(folder.isValid());
    QImage image(10, 6, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(folder.filePath("both"), "PNG"));
    QVERIFY(image.save(folder.filePath("single"), "PNG"));
    QImage doubled(20, 12, QImage::Format_ARGB32);
    doubled.fill(Qt::blue);
    QVERIFY(doubled.save(folder.filePath("both@2x"), "PNG"));
    QVERIFY(QFile(folder.filePath("empty")).open(QFile::WriteOnly));
}

void TstPicture::ratioDecidesTheVariant_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<qreal>("pictureRatio");
    QTest::newRow("1") << 1.0 << 1.0;
    QTest::newRow("1.25") << 1.25 << 2.0;
    QTest::newRow("2") << 2.0 << 2.0;
    QTest::newRow("3") << 3.0 << 2.0;
}

void TstPicture::ratioDecidesTheVariant()
{
    QFETCH(qreal, ratio);
    QFETCH(qreal, pictureRatio);
    const QPixmap picture = loadPicture(folder.filePath("both"), ratio);
    QCOMPARE(picture.devicePixelRatio(), pictureRatio);
    QCOMPARE(picture.size() / picture.devicePixelRatio(), QSize(10, 6));
    const QColor colour = pictureRatio > 1 ? Qt::blue : Qt::red;
    QCOMPARE(picture.toImage().pixelColor(3, 3), colour);
}

void TstPicture::pictureWithoutDoubledVariantServesEveryScreen()
{
    const QPixmap picture = loadPicture(folder.filePath("single"), 2);
    QCOMPARE(picture.devicePixelRatio(), 1.0);
    QCOMPARE(picture.size(), QSize(10, 6));
}

void TstPicture::missingPictureIsNull_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no path") << QString();
    QTest::newRow("no such file") << folder.filePath("missing");
    QTest::newRow("no such resource") << ":/nwu/missing";
    QTest::newRow("a folder") << folder.path();
    QTest::newRow("no picture in the file") << folder.filePath("empty");
}

void TstPicture::missingPictureIsNull()
{
    QFETCH(QString, name);
    QVERIFY(loadPicture(name, 1).isNull());
    QVERIFY(loadPicture(name, 2).isNull());
}

void TstPicture::programPicturesAreRegistered()
{
    QCOMPARE(loadPicture(":/nwu/commdialogbg", 1).size(), QSize(420, 188));
    QCOMPARE(loadPicture(":/nwu/commdialogbg", 2).size(), QSize(840, 376));
}

KORVEX_TEST_MAIN(TstPicture)
#include "tst_picture.moc"
