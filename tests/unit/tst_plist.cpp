// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "plist.h"
#include "testcase.h"
#include "testmain.h"

// Reading property lists, sound and damaged ones.
class TstPlist : public TestCase
{
    Q_OBJECT

private slots:
    void values_data();
    void values();
    void dictionariesAndArraysNest();
    void lastOfEqualKeysCounts();
    void errors_data();
    void errors();
    void everyCutListIsAnError();
    void listThatIsNestedTooDeepIsAnError();
};

namespace
{

const QByteArray head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                        "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n";

QByteArray list(const QByteArray& value)
{
    return head + "<plist version=\"1.0\">\n" + value + "\n</plist>\n";
}

} // namespace

void TstPlist::values_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("true") << QByteArray("<true/>") << QVariant(true);
    QTest::newRow("false") << QByteArray("<false/>") << QVariant(false);
    QTest::newRow("integer") << QByteArray("<integer>31914983424</integer>")
                             << QVariant(31914983424LL);
    QTest::newRow("negative") << QByteArray("<integer> -1 </integer>") << QVariant(-1LL);
    QTest::newRow("real") << QByteArray("<real>0.5</real>") << QVariant(0.5);
    QTest::newRow("text") << QByteArray("<string> MY  STICK </string>")
                          << QVariant(QString(" MY  STICK "));
    QTest::newRow("no text") << QByteArray("<string/>") << QVariant(QString(""));
    QTest::newRow("marks in a text") << QByteArray("<string>A &amp; B &lt;c&gt; \"'</string>")
                                     << QVariant(QString("A & B <c> \"'"));
    QTest::newRow("unicode") << QByteArray("<string>光盘</string>")
                             << QVariant(QString::fromUtf8("光盘"));
    QTest::newRow("date") << QByteArray("<date>2026-01-02T03:04:05Z</date>")
                          << QVariant(QString("2026-01-02T03:04:05Z"));
    QTest::newRow("data") << QByteArray("<data>\n\taGFs\n\tbG8=\n</data>")
                          << QVariant(QByteArray("hallo"));
    QTest::newRow("empty dictionary") << QByteArray("<dict/>") << QVariant(QVariantMap());
    QTest::newRow("empty array") << QByteArray("<array></array>") << QVariant(QVariantList());
}

void TstPlist::values()
{
    QFETCH(QByteArray, xml);
    const Plist read = readPlist(list(xml));
    QCOMPARE(read.error, QString());
    QTEST(read.value, "value");
}

void TstPlist::dictionariesAndArraysNest()
{
    const Plist read =
        readPlist(list("<dict><key>a b</key><array><dict><key>x</key><integer>1</integer></dict>"
                       "<true/></array><!-- no value --><key/><string>y</string></dict>"));
    QCOMPARE(read.error, QString());
    const QVariantList wanted{QVariantMap{{"x", 1LL}}, true};
    QCOMPARE(read.value, QVariant(QVariantMap{{"a b", wanted}, {"", "y"}}));
}

void TstPlist::lastOfEqualKeysCounts()
{
    const Plist read = readPlist(list("<dict><key>a</key><true/><key>a</key><false/></dict>"));
    QCOMPARE(read.value, QVariant(QVariantMap{{"a", false}}));
}

void TstPlist::errors_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no XML") << QByteArray("Could not find disk: disk9\n");
    QTest::newRow("another document") << QByteArray("<html><dict/></html>");
    QTest::newRow("no value") << list("");
    QTest::newRow("two values") << list("<true/><true/>");
    QTest::newRow("key alone") << list("<dict><key>a</key></dict>");
    QTest::newRow("value alone") << list("<dict><true/></dict>");
    QTest::newRow("two keys") << list("<dict><key>a</key><key>b</key><true/></dict>");
    QTest::newRow("two values for a key") << list("<dict><key>a</key><true/><true/></dict>");
    QTest::newRow("number that is none") << list("<integer>12a</integer>");
    QTest::newRow("number beyond 64 bits") << list("<integer>99999999999999999999</integer>");
    QTest::newRow("no number") << list("<integer/>");
    QTest::newRow("unknown kind") << list("<colour>red</colour>");
    QTest::newRow("element in a text") << list("<string>a<b/></string>");
    QTest::newRow("something behind it") << list("<true/>") + "x";
    QTest::newRow("two documents") << list("<true/>") + list("<true/>");
    QTest::newRow("unknown entity") << QByteArray("<plist><string>&system;</string></plist>");
}

void TstPlist::errors()
{
    QFETCH(QByteArray, text);
    const Plist read = readPlist(text);
    QVERIFY(!read.error.isEmpty());
    QVERIFY(!read.value.isValid());
}

void TstPlist::everyCutListIsAnError()
{
    const QByteArray whole = list("<dict><key>a</key><string>b</string></dict>").trimmed();
    QCOMPARE(readPlist(whole).error, QString());
    for (int length = 0; length < whole.size(); ++length)
        QVERIFY2(!readPlist(whole.left(length)).error.isEmpty(), whole.left(length).constData());
}

void TstPlist::listThatIsNestedTooDeepIsAnError()
{
    const auto nested = [](int depth) {
        return list(QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth));
    };
    QCOMPARE(readPlist(nested(60)).error, QString());
    QCOMPARE(readPlist(nested(100000)).error, QString("nested too deep"));
}

KORVEX_TEST_MAIN(TstPlist)
#include "tst_plist.moc"
