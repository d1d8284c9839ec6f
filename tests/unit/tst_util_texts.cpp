// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "testmain.h"
#include "util.h"

#include <QLocale>

// Sizes, times, blanks and extensions as they are shown.
class TstUtilTexts : public TestCase
{
    Q_OBJECT

private slots:
    void sizeAsText_data();
    void sizeAsText();
    void timeAsText_data();
    void timeAsText();
    void timeHasPlainDigitsInEveryLanguage();
    void blanksCollapse_data();
    void blanksCollapse();
    void extension_data();
    void extension();
};

void TstUtilTexts::sizeAsText_data()
{
    QTest::addColumn<long long>("bytes");
    QTest::addColumn<QString>("text");

    const long long kib = 1024;
    const long long mib = kib * 1024;
    const long long gib = mib * 1024;
    QTest::newRow("0") << 0LL << "0 B";
    QTest::newRow("1") << 1LL << "1 B";
    QTest::newRow("1023") << 1023LL << "1023 B";
    QTest::newRow("1 KiB is still bytes") << kib << "1024 B";
    QTest::newRow("1 KiB + 1") << kib + 1 << "1 KB";
    QTest::newRow("1.5 KiB") << 1536LL << "1.50 KB";
    QTest::newRow("1.25 KiB") << 1280LL << "1.25 KB";
    QTest::newRow("rounded to two decimals") << 1200LL << "1.17 KB";
    QTest::newRow("1 MiB - 1") << mib - 1 << "1024 KB";
    QTest::newRow("1 MiB is still KB") << mib << "1024 KB";
    QTest::newRow("1 MiB + 1") << mib + 1 << "1 MB";
    QTest::newRow("2.5 MiB") << mib * 5 / 2 << "2.50 MB";
    QTest::newRow("ends in zero but not in .00") << mib * 11 / 10 << "1.10 MB";
    QTest::newRow("1 GiB is still MB") << gib << "1024 MB";
    QTest::newRow("1 GiB + 1") << gib + 1 << "1 GB";
    QTest::newRow("4.7 GB disc") << 4'707'319'808LL << "4.38 GB";
    QTest::newRow("5 GiB") << 5 * gib << "5 GB";
    QTest::newRow("2 TiB has no larger unit") << 2048 * gib << "2048 GB";
    QTest::newRow("largest") << std::numeric_limits<long long>::max() << "8589934592 GB";
    QTest::newRow("negative") << -1LL << "-1 B";
    QTest::newRow("large negative stays bytes") << -5 * kib << "-5120 B";
}

void TstUtilTexts::sizeAsText()
{
    QFETCH(long long, bytes);
    QTEST(Util::SizeToString(bytes), "text");
}

void TstUtilTexts::timeAsText_data()
{
    QTest::addColumn<QDateTime>("time");
    QTest::addColumn<QString>("text");

    const QDate day(2026, 1, 2);
    QTest::newRow("padded") << QDateTime(day, QTime(3, 4, 5)) << "2026-01-02 03:04:05";
    QTest::newRow("24 hours") << QDateTime(day, QTime(23, 59, 59, 999)) << "2026-01-02 23:59:59";
    QTest::newRow("midnight") << QDateTime(day, QTime(0, 0)) << "2026-01-02 00:00:00";
    QTest::newRow("as the value holds it")
        << QDateTime(day, QTime(12, 0), Qt::UTC) << "2026-01-02 12:00:00";
    QTest::newRow("none") << QDateTime() << "";
}

void TstUtilTexts::timeAsText()
{
    QFETCH(QDateTime, time);
    QTEST(Util::QT2String(time), "text");
}

void TstUtilTexts::timeHasPlainDigitsInEveryLanguage()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    const QString text = Util::QT2String(QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5)));
    const QString size = Util::SizeToString(1536);
    QLocale::setDefault(before);
    QCOMPARE(text, QString("2026-01-02 03:04:05"));
    QCOMPARE(size, QString("1.50 KB"));
}

void TstUtilTexts::blanksCollapse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("collapsed");

    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("none") << "ab"
                          << "ab";
    QTest::newRow("one") << "a b"
                         << "a b";
    QTest::newRow("two") << "a  b"
                         << "a b";
    QTest::newRow("three") << "a   b"
                           << "a b";
    QTest::newRow("ends") << "   a    b  "
                          << " a b ";
    QTest::newRow("only blanks") << QString(1001, ' ') << " ";
    QTest::newRow("tabs stay") << "a\t\tb \t  c"
                               << "a\t\tb \t c";
    QTest::newRow("line ends stay") << "a\n\n  b"
                                    << "a\n\n b";
    QTest::newRow("other spaces stay") << QString::fromUtf8("a\u00a0\u00a0b\u3000\u3000")
                                       << QString::fromUtf8("a\u00a0\u00a0b\u3000\u3000");
}

void TstUtilTexts::blanksCollapse()
{
    QFETCH(QString, text);
    QTEST(Util::ReplaceBlank(text), "collapsed");
}

void TstUtilTexts::extension_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("extension");

    QTest::newRow("plain") << "image.iso"
                           << ".iso";
    QTest::newRow("two") << "archive.tar.gz"
                         << ".gz";
    QTest::newRow("case kept") << "README.TXT"
                               << ".TXT";
    QTest::newRow("hidden") << ".profile"
                            << "";
    QTest::newRow("hidden with extension") << ".profile.bak"
                                           << ".bak";
    QTest::newRow("none") << "README"
                          << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("only a dot") << "."
                                << "";
    QTest::newRow("two dots") << ".."
                              << ".";
    QTest::newRow("dot at the end") << "name."
                                    << ".";
    QTest::newRow("blanks") << "a. b c"
                            << ". b c";
    QTest::newRow("version") << "7;1.x;1"
                             << ".x;1";
    QTest::newRow("unicode") << QString::fromUtf8("光.盘") << QString::fromUtf8(".盘");
    QTest::newRow("a path is no name") << "/a.b/c"
                                       << ".b/c";
}

void TstUtilTexts::extension()
{
    QFETCH(QString, name);
    QTEST(Util::GetExtension(name), "extension");
}

KORVEX_TEST_MAIN(TstUtilTexts)

#include "tst_util_texts.moc"
