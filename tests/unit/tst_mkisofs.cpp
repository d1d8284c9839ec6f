// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "mkisofscommand.h"
#include "mkisofsprogress.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

Q_DECLARE_METATYPE(BackupType)

// The authoring tool's command lines and the reader of its progress.
class TstMkisofs : public TestCase
{
    Q_OBJECT

private slots:
    void programLiesBesideTheExecutable();
    void createArguments_data();
    void createArguments();
    void saveArguments();
    void bootPairStandsBetweenTheOptionAndThePath();
    void pathsArePassedAsTheyAre_data();
    void pathsArePassedAsTheyAre();
    void lineWithoutTheMarkerTellsNothing_data();
    void lineWithoutTheMarkerTellsNothing();
    void lineThatBeginsWithTheMarkerTellsNothing();
    void hundredBeforeTheMarkerIsTenThousand();
    void progress_data();
    void progress();
    void capturedProgress();
    void capturedFailureTellsNoProgress();
    void capturedProgressCutAtEveryByte();
};

namespace
{

const QString mark = QStringLiteral("% done, estimate finish");

QString captured(const char* file)
{
    return QString::fromUtf8(readFile(QString(KORVEX_TEST_DATA "/mkisofs/") + file));
}

// What the lines tell, one after the other.
QList<int> readings(const QStringList& lines)
{
    QList<int> found;
    for (const QString& line : lines)
        if (const auto hundredths = readMkisofsProgress(line))
            found.append(*hundredths);
    return found;
}

} // namespace

void TstMkisofs::programLiesBesideTheExecutable()
{
    QCOMPARE(mkisofsProgram(), QCoreApplication::applicationDirPath() + "/cdrtools/mkisofs");
}

void TstMkisofs::createArguments_data()
{
    QTest::addColumn<BackupType>("type");
    QTest::addColumn<QString>("flag");
    QTest::newRow("joliet") << BackupType::Joliet << "-joliet";
    QTest::newRow("iso 9660") << BackupType::Iso9660 << "-l";
    QTest::newRow("udf") << BackupType::Udf << "-udf";
}

void TstMkisofs::createArguments()
{
    QFETCH(BackupType, type);
    QFETCH(QString, flag);
    QCOMPARE(mkisofsCreateArguments(type, "/Users/u/new.iso", "/data/tmp"),
             QStringList({flag, "-R", "-r", "-o", "/Users/u/new.iso", "/data/tmp"}));
}

void TstMkisofs::saveArguments()
{
    QCOMPARE(mkisofsSaveArguments("/Users/u/new.iso", "/data/tmp", false),
             QStringList({"-udf", "-R", "-o", "/Users/u/new.iso", "/data/tmp"}));
}

void TstMkisofs::bootPairStandsBetweenTheOptionAndThePath()
{
    QCOMPARE(mkisofsSaveArguments("/Users/u/new.iso", "/data/tmp", true),
             QStringList({"-udf", "-R", "-o", "-b", "boot.bin", "/Users/u/new.iso", "/data/tmp"}));
}

void TstMkisofs::pathsArePassedAsTheyAre_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("blanks") << " /a b/  new image.iso ";
    QTest::newRow("equals sign") << "/a=b/c=d.iso";
    QTest::newRow("leading dash") << "-o";
    QTest::newRow("quotes") << "/\"a\"/'b'.iso";
    QTest::newRow("backslash") << "/a\\b\\";
    QTest::newRow("shell characters") << "/$HOME/`a`;&|*?~#!.iso";
    QTest::newRow("line end") << "/a\nb.iso";
    QTest::newRow("unicode") << QString::fromUtf8("/光盘/e\u0301 😀.iso");
    QTest::newRow("place markers") << "/%1%2/100%.iso";
}

void TstMkisofs::pathsArePassedAsTheyAre()
{
    QFETCH(QString, path);
    QCOMPARE(mkisofsCreateArguments(BackupType::Udf, path, "/data/tmp"),
             QStringList({"-udf", "-R", "-r", "-o", path, "/data/tmp"}));
    QCOMPARE(mkisofsCreateArguments(BackupType::Joliet, "/new.iso", path),
             QStringList({"-joliet", "-R", "-r", "-o", "/new.iso", path}));
}

void TstMkisofs::lineWithoutTheMarkerTellsNothing_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << "   ";
    QTest::newRow("number alone") << " 16.16";
    QTest::newRow("percent alone") << " 16.16%";
    QTest::newRow("marker cut short") << " 16.16% done, estimate finis";
    QTest::newRow("other case") << " 16.16% Done, estimate finish Sat";
    QTest::newRow("blank more") << " 16.16 % done,  estimate finish Sat";
    QTest::newRow("line end in the marker") << " 16.16% done,\nestimate finish Sat";
    QTest::newRow("total") << "30946 extents written (60 MB)";
}

void TstMkisofs::lineWithoutTheMarkerTellsNothing()
{
    QFETCH(QString, line);
    QVERIFY(!readMkisofsProgress(line));
}

void TstMkisofs::lineThatBeginsWithTheMarkerTellsNothing()
{
    QVERIFY(!readMkisofsProgress(mark));
    QVERIFY(!readMkisofsProgress(mark + " Sat Nov 21 06:51:21 2026"));
    // Not even when there is another one behind it.
    QVERIFY(!readMkisofsProgress(mark + " 16.16" + mark));
}

void TstMkisofs::hundredBeforeTheMarkerIsTenThousand()
{
    const auto hundredths = readMkisofsProgress("100.00" + mark + " Sat Nov 21 06:51:21 2026");
    QVERIFY(hundredths);
    QCOMPARE(*hundredths, 10'000);
}

void TstMkisofs::progress_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<int>("hundredths");
    const auto row = [](const char* name, const QString& number, int hundredths) {
        QTest::newRow(name) << number << hundredths;
    };
    row("as printed", " 16.16", 1616);
    row("two digits", "12.50", 1250);
    row("none yet", "  0.00", 0);
    row("whole", "7", 700);
    row("beyond the end", "101.5", 10'150);
    row("below nought", "-3.25", -325);
    row("plus sign", "+3.25", 325);
    row("exponent", "1e1", 1000);
    row("cut to hundredths", "12.3456", 1234);
    row("below nought, cut towards nought", "-12.3456", -1234);
    row("single precision falls short", "0.53", 52);
    row("single precision hits where double would not", "0.29", 29);
    row("blanks on both sides", "  12.50  ", 1250);
    row("tab", "\t12.50", 1250);
    row("carriage return in front", "\r12.50", 1250);
    row("line end in front", "\n12.50", 1250);
    row("line end and carriage return behind", "12.50\r\n", 1250);
    row("another line in front", "Total 1\r 12.50", 0);
    row("only a blank", " ", 0);
    row("word", "many", 0);
    row("decimal comma", "12,50", 0);
    row("grouped", "1,234.50", 0);
    row("blank inside", "12 50", 0);
    row("two points", "1.2.3", 0);
    row("sign of percent", "50%", 0);
    row("hexadecimal", "0x10", 0);
    row("not a number", "nan", 0);
    row("endless", "inf", 0);
    row("endless below nought", "-inf", 0);
    row("too much for single precision", "1e39", 0);
    row("too much for the bar", "1e30", 0);
    row("too much for the bar, below nought", "-1e30", 0);
    row("vanishing", "1e-50", 0);
    row("digits of other scripts", QString::fromUtf8("１２.５"), 0);
    row("zero byte", QString("12.50") + QChar(0), 0);
    row("long", QString(5000, '0') + "12.50", 1250);
    row("marker twice", "12.50" + mark + " Sat 20.00", 1250);
}

void TstMkisofs::progress()
{
    QFETCH(QString, number);
    const auto hundredths = readMkisofsProgress(number + mark + " Sat Nov 21 06:51:21 2026");
    QVERIFY(hundredths);
    QTEST(*hundredths, "hundredths");
}

void TstMkisofs::capturedProgress()
{
    const QStringList lines = captured("create-progress-1.1.11.txt").split('\n');
    QCOMPARE(readings(lines), QList<int>({1698, 3396, 5088, 6787, 8485}));
}

void TstMkisofs::capturedFailureTellsNoProgress()
{
    const QString text = captured("create-no-output-folder-1.1.11.txt");
    QVERIFY(text.contains("No such file or directory"));
    QCOMPARE(readings(text.split('\n')), QList<int>());
}

// A cut spoils the reading of the line that it falls into, and no other.
void TstMkisofs::capturedProgressCutAtEveryByte()
{
    const QString text = captured("create-progress-1.1.11.txt");
    for (int cut = 0; cut <= text.size(); ++cut) {
        QList<int> whole = readings(text.split('\n'));
        QList<int> found = readings(text.left(cut).split('\n') + text.mid(cut).split('\n'));
        while (!whole.isEmpty() && !found.isEmpty() && whole.first() == found.first()) {
            whole.removeFirst();
            found.removeFirst();
        }
        while (!whole.isEmpty() && !found.isEmpty() && whole.last() == found.last()) {
            whole.removeLast();
            found.removeLast();
        }
        const QString where = "cut at " + QString::number(cut);
        QVERIFY2(whole.size() <= 1 && found.size() <= whole.size(), qPrintable(where));
        QVERIFY2(found.isEmpty() || (found.first() >= 0 && found.first() < 10'000),
                 qPrintable(where));
    }
}

KORVEX_TEST_MAIN(TstMkisofs)

#include "tst_mkisofs.moc"
