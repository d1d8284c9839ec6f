// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "outputpieces.h"
#include "sevenzipcommand.h"
#include "sevenzipprogress.h"
#include "terminaltext.h"
#include "testcase.h"
#include "testmain.h"

#include <QSet>

class TstSevenZip : public TestCase
{
    Q_OBJECT

private slots:
    void listCommand();
    void listInUtf8Command();
    void extractCommand();
    void extractAllCommand();
    void entryArgument_data();
    void entryArgument();
    void entryNamedLikeTheCommandIsNotTakenForIt();
    void entryNamedTwiceIsPassedOnce();
    void progress_data();
    void progress();
    void percentAlone_data();
    void percentAlone();
    void backspaces_data();
    void backspaces();
    void statesOfALine();
    void redrawnProgressCutAnywhere();
    void capturedProgressCutAtEveryByte();
    void entryTextHoldsNoControlCharacter();
    void pieces_data();
    void pieces();
    void drawnInPlace();
};

void TstSevenZip::listCommand()
{
    QCOMPARE(sevenZipProgram(), QCoreApplication::applicationDirPath() + "/7z/7z");
    QCOMPARE(sevenZipListArguments("/a b/-image \"1\".iso"),
             QStringList({"l", "/a b/-image \"1\".iso"}));
}

void TstSevenZip::listInUtf8Command()
{
    QCOMPARE(sevenZipListUtf8Arguments("/Users/u/a b.iso"),
             QStringList({"-scsUTF-8", "l", "/Users/u/a b.iso"}));
}

void TstSevenZip::extractAllCommand()
{
    QCOMPARE(sevenZipExtractAllArguments("/Users/u/a b.iso", "/data/tmp/"),
             QStringList({"x", "-y", "-bb3", "-bsp2", "-o/data/tmp/", "/Users/u/a b.iso"}));
}

void TstSevenZip::extractCommand()
{
    QCOMPARE(
        sevenZipExtractArguments("/i.iso", "/Users/u/Out", {"one", "two"}),
        QStringList({"x", "/i.iso", "-y", "-bb3", "-bsp2", "-o/Users/u/Out", "one", "two", "-r"}));
    QCOMPARE(sevenZipExtractArguments("/i.iso", "/o", {"boot/grub/a", "boot/grub/b c"}),
             QStringList({"x", "/i.iso", "-y", "-bb3", "-bsp2", "-o/o", "boot/grub/a",
                          "boot/grub/b c", "-r"}));
}

void TstSevenZip::entryArgument_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("argument");
    QTest::newRow("plain") << "a.txt"
                           << "a.txt";
    QTest::newRow("blanks and quotes") << " a \"b\" "
                                       << " a \"b\" ";
    QTest::newRow("dash inside a folder") << "f/-o x"
                                          << "f/-o x";
    QTest::newRow("list mark inside a folder") << "f/@list"
                                               << "f/@list";
    QTest::newRow("looks like a switch") << "-o x"
                                         << "-ir-!-o x";
    QTest::newRow("looks like the end of switches") << "--"
                                                    << "-ir-!--";
    QTest::newRow("looks like a list file") << "@list"
                                            << "-ir-!@list";
    QTest::newRow("in a folder that looks like a switch") << "-d/a"
                                                          << "-ir-!-d/a";
    QTest::newRow("the command itself") << "x"
                                        << "-ir-!x";
    QTest::newRow("pattern characters stay") << "a*?"
                                             << "a*?";
}

void TstSevenZip::entryArgument()
{
    QFETCH(QString, path);
    QTEST(sevenZipEntryArgument(path), "argument");
}

void TstSevenZip::entryNamedLikeTheCommandIsNotTakenForIt()
{
    const QStringList arguments = sevenZipExtractArguments("/i.iso", "/o", {"x"});
    QCOMPARE(arguments.mid(6), QStringList({"-ir-!x", "-r"}));
}

void TstSevenZip::entryNamedTwiceIsPassedOnce()
{
    const QStringList arguments = sevenZipExtractArguments("/i.iso", "/o", {"a", "A", "a"});
    QCOMPARE(arguments.mid(6), QStringList({"a", "A", "-r"}));
}

void TstSevenZip::progress_data()
{
    QTest::addColumn<QString>("piece");
    QTest::addColumn<int>("percent"); // -1: no progress
    QTest::addColumn<QString>("entry");
    QTest::newRow("with a count") << " 45% 12 - boot/grub/font.pf2" << 45 << "boot/grub/font.pf2";
    QTest::newRow("single file") << "  2% - big/part 1.bin" << 2 << "big/part 1.bin";
    QTest::newRow("end") << "100% 3 - f" << 100 << "f";
    QTest::newRow("no entry") << "  0%" << -1 << "";
    QTest::newRow("percent without entry mark") << " 45% 12 boot" << -1 << "";
    QTest::newRow("entry line") << "- My Docs/a file.txt" << -1 << "";
    QTest::newRow("percent mark at the very start") << "% 12 - f" << -1 << "";
    QTest::newRow("entry mark at the very start") << " - f 45% x" << -1 << "";
    QTest::newRow("blanks only before the mark") << "   % 12 - f" << -1 << "";
    QTest::newRow("rest of another line in front") << "- some/pa 35% 2 - f2" << 35 << "f2";
    QTest::newRow("not a number counts as nought") << "many% 2 - f" << 0 << "f";
    QTest::newRow("second mark belongs to the name") << " 7% 1 - a - b" << 7 << "a - b";
    QTest::newRow("unicode") << QString::fromUtf8(" 9% 1 - 日本語 é") << 9
                             << QString::fromUtf8("日本語 é");
    QTest::newRow("empty") << "" << -1 << "";
    QTest::newRow("redrawn") << QString(" 35% 1 - f2" + QString(11, '\b') + QString(11, ' ') +
                                        QString(11, '\b') + " 54% 1 - f2")
                             << 54 << "f2";
    QTest::newRow("no blank between erasure and number")
        << QString(QString(4, '\b') + "100% 1 - f2") << 100 << "f2";
    QTest::newRow("rubbed out before the next has come")
        << QString(" 54% 1 - f2" + QString(11, '\b') + QString(11, ' ') + QString(11, '\b')) << 54
        << "f2";
    QTest::newRow("next has come in part")
        << QString(" 17% 6 - f" + QString(10, '\b') + " 22% 9") << 17 << "f";
    QTest::newRow("only an erasure")
        << QString(QString(4, '\b') + "    " + QString(4, '\b')) << -1 << "";
}

void TstSevenZip::progress()
{
    QFETCH(QString, piece);
    QFETCH(int, percent);
    const auto reading = readSevenZipProgress(piece);
    QCOMPARE(reading ? reading->percent : -1, percent);
    QTEST(reading ? reading->entry : QString(), "entry");
}

void TstSevenZip::percentAlone_data()
{
    QTest::addColumn<QString>("piece");
    QTest::addColumn<int>("percent"); // -1: it tells none
    QTest::newRow("number") << "42% 3 - name" << 42;
    QTest::newRow("blanks around") << "  42 % x" << 42;
    QTest::newRow("begins with the mark") << "% 42" << -1;
    QTest::newRow("no mark") << "42%" << -1;
    QTest::newRow("empty") << "" << -1;
    QTest::newRow("no number") << "- Sales 50% off" << 0;
    QTest::newRow("two marks") << "7% 8% x" << 7;
    QTest::newRow("rubbed out") << " 35% - a\b\b\b\b\b\b\b\b        \b\b\b\b\b\b\b\b 54% - b" << 54;
}

void TstSevenZip::percentAlone()
{
    QFETCH(QString, piece);
    QFETCH(int, percent);
    QCOMPARE(readSevenZipPercent(piece).value_or(-1), percent);
}

void TstSevenZip::backspaces_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("none") << "abc"
                          << "abc";
    QTest::newRow("one") << "abc\b"
                         << "ab";
    QTest::newRow("replaced") << "ab\bc"
                              << "ac";
    QTest::newRow("more than there is") << "a\b\b\bxy"
                                        << "xy";
    QTest::newRow("only") << "\b\b"
                          << "";
    QTest::newRow("empty") << ""
                           << "";
}

void TstSevenZip::backspaces()
{
    QFETCH(QString, text);
    QTEST(eraseBackspaces(text), "shown");
}

void TstSevenZip::statesOfALine()
{
    QCOMPARE(lineStates("abc"), QStringList("abc"));
    QCOMPARE(lineStates("abc\b\bx\b"), QStringList({"abc", "ax", "a"}));
    QCOMPARE(lineStates("\b\ba"), QStringList("a"));
    QCOMPARE(lineStates(""), QStringList(""));
}

void TstSevenZip::redrawnProgressCutAnywhere()
{
    const QString erasure = QString(11, '\b') + QString(11, ' ') + QString(11, '\b');
    const QString text = " 35% 1 - f2" + erasure + " 54% 1 - f2" + erasure + " 77% 1 - f2";
    for (int cut = 0; cut <= text.size(); ++cut) {
        for (const QString& piece : {text.left(cut), text.mid(cut)}) {
            const auto reading = readSevenZipProgress(piece);
            if (reading) {
                QVERIFY(reading->percent <= 77);
                QVERIFY2(QString("f2").startsWith(reading->entry.trimmed()), qPrintable(piece));
            }
        }
        // Whatever was cut off, the last state is complete in the second piece or split in two.
        if (cut < text.size() - QString(" 77% 1 - f2").size())
            QCOMPARE(readSevenZipProgress(text.mid(cut))->percent, 77);
    }
}

void TstSevenZip::capturedProgressCutAtEveryByte()
{
    QFile file(KORVEX_TEST_DATA "/7z/extract-progress-26.02.txt");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray captured = file.readAll();
    QSet<int> percents;
    int reached = 0;
    for (int end = 1; end <= captured.size(); ++end) {
        // As the runner has it when nothing was read before.
        const auto reading = readSevenZipProgress(QString::fromUtf8(captured.left(end)));
        if (!reading)
            continue;
        QVERIFY(reading->percent >= reached && reading->percent <= 100);
        reached = reading->percent;
        percents.insert(reached);
        QVERIFY2(QString("part 00.bin").size() >= reading->entry.size(),
                 qPrintable(reading->entry));
    }
    QVERIFY2(percents.size() >= 5, qPrintable(QString::number(percents.size())));
}

void TstSevenZip::entryTextHoldsNoControlCharacter()
{
    const auto reading = readSevenZipProgress(" 1% 1 - a\tb\x1b[31mc\x07\r\n");
    QCOMPARE(reading->entry, QString("ab[31mc"));
}

void TstSevenZip::pieces_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("line") << "a\n" << QStringList("a\n");
    QTest::newRow("rewritten line") << "10%\r20%\r30%\n" << QStringList({"10%", "20%", "30%\n"});
    QTest::newRow("blank parts are dropped") << "\r \ra\r\t\r\n" << QStringList("a");
    QTest::newRow("blanks around text stay") << "  a  \n" << QStringList("  a  \n");
    QTest::newRow("nothing") << "" << QStringList();
    QTest::newRow("only white space") << " \t\n" << QStringList();
    QTest::newRow("carriage return and line feed") << "a\r\n" << QStringList("a");
}

void TstSevenZip::pieces()
{
    QFETCH(QString, text);
    QTEST(outputPieces(text), "expected");
}

void TstSevenZip::drawnInPlace()
{
    QVERIFY(isDrawnInPlace("10%\r20%"));
    QVERIFY(isDrawnInPlace("10%\b\b\b20%"));
    QVERIFY(!isDrawnInPlace("2026-11-21 06:50:51 ....."));
    QVERIFY(!isDrawnInPlace(""));
}

KORVEX_TEST_MAIN(TstSevenZip)
#include "tst_sevenzip.moc"
