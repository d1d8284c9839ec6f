// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "ctree.h"
#include "listingreader.h"
#include "testcase.h"
#include "testmain.h"

namespace
{

const char* const rule =
    "------------------- ----- ------------ ------------  ------------------------";

QString entryLine(const QString& attributes, const QString& size, const QString& name)
{
    return QString("2019-03-19 13:42:43 %1 %2 %3  %4")
        .arg(attributes, size.rightJustified(12), size.rightJustified(12), name);
}

QStringList linesOf(const QString& fileName)
{
    QFile file(QString(KORVEX_TEST_DATA "/7z/") + fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split('\n')
                                          : QStringList();
}

// What a reader that has seen the first separator makes of one line.
ListingReader::Line readEntry(const QString& line, Item& entry)
{
    ListingReader reader;
    reader.read(rule, entry);
    return reader.read(line, entry);
}

void fill(CTree& tree, const QStringList& lines)
{
    ListingReader reader;
    Item entry;
    tree.Clear();
    for (const QString& line : lines) {
        if (reader.read(line, entry) == ListingReader::Line::Entry)
            tree.AddItem(entry);
    }
}

void describe(const Item& folder, QStringList& lines)
{
    for (const Item& child : folder.children) {
        lines.append(QString("%1 %2 %3 %4")
                         .arg(child.isDir ? "d" : "f", child.path, child.sizeText, child.timeText));
        describe(child, lines);
    }
}

QStringList described(const CTree& tree)
{
    QStringList lines;
    describe(tree.root, lines);
    return lines;
}

} // namespace

class TstListingReader : public TestCase
{
    Q_OBJECT

private slots:
    void fileLine();
    void fileLineCreatesItsFolders();
    void folderLine();
    void attributes_data();
    void attributes();
    void nothingOutsideTheSeparators();
    void separatorIsFoundAnywhereInALine();
    void nameWithNineteenDashesIsTakenForASeparator();
    void nameWithEighteenDashesIsAName();
    void shortLines_data();
    void shortLines();
    void lineEndsDoNotCount_data();
    void lineEndsDoNotCount();
    void nameIsTakenAsItStands_data();
    void nameIsTakenAsItStands();
    void blankColumnsGiveEmptyTexts();
    void resetForgetsAHalfReadListing();
    void capturedListing_data();
    void capturedListing();
    void listingTwiceGivesTheSameTree();
};

void TstListingReader::fileLine()
{
    Item entry;
    QCOMPARE(readEntry(entryLine(".....", "2048", "boot/grub/font.pf2"), entry),
             ListingReader::Line::Entry);
    QCOMPARE(entry.path, QString("boot/grub/font.pf2"));
    QCOMPARE(entry.sizeText, QString("2048"));
    QCOMPARE(entry.timeText, QString("2019-03-19 13:42:43"));
    QVERIFY(!entry.isDir);
    QVERIFY(entry.localPath.isEmpty());
}

void TstListingReader::fileLineCreatesItsFolders()
{
    CTree tree;
    fill(tree, {rule, entryLine(".....", "2048", "boot/grub/font.pf2"), rule});
    QVERIFY(tree.GetItem("boot")->isDir);
    QVERIFY(tree.GetItem("boot/grub")->isDir);
    QCOMPARE(tree.GetItem("boot/grub/font.pf2")->sizeText, QString("2048"));
}

void TstListingReader::folderLine()
{
    Item entry;
    QCOMPARE(readEntry(entryLine("D....", "", "My Docs"), entry), ListingReader::Line::Entry);
    QVERIFY(entry.isDir);
    QVERIFY(entry.sizeText.isEmpty());
}

void TstListingReader::attributes_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<bool>("isDir");
    QTest::newRow("no letters") << "....." << false;
    QTest::newRow("read-only, hidden, system, archive") << ".RHSA" << false;
    QTest::newRow("first place") << "D...." << true;
    QTest::newRow("last place") << "....D" << true;
    QTest::newRow("with others") << "DRHS." << true;
    QTest::newRow("lower case is another letter") << "d...." << false;
    QTest::newRow("blank") << "     " << false;
}

void TstListingReader::attributes()
{
    QFETCH(QString, field);
    Item entry;
    readEntry(entryLine(field, "1", "Data Disc"), entry);
    QTEST(entry.isDir, "isDir");
}

void TstListingReader::nothingOutsideTheSeparators()
{
    ListingReader reader;
    Item entry;
    const QString header = "   Date      Time    Attr         Size   Compressed  Name and more";
    QCOMPARE(reader.read(header, entry), ListingReader::Line::Ignored);
    QCOMPARE(reader.read(entryLine(".....", "1", "before"), entry), ListingReader::Line::Ignored);
    QVERIFY(!reader.isListing());
    QCOMPARE(reader.read(rule, entry), ListingReader::Line::Began);
    QVERIFY(reader.isListing());
    QCOMPARE(reader.read(rule, entry), ListingReader::Line::Ended);
    QVERIFY(!reader.isListing());
    const QString totals =
        "2026-11-21 06:50:51            3000006      3000006  2 files, 1 folders";
    QCOMPARE(reader.read(totals, entry), ListingReader::Line::Ignored);
    QVERIFY(entry.path.isEmpty());
}

void TstListingReader::separatorIsFoundAnywhereInALine()
{
    ListingReader reader;
    Item entry;
    QCOMPARE(reader.read("rest of a banner" + QString(rule), entry), ListingReader::Line::Began);
}

void TstListingReader::nameWithNineteenDashesIsTakenForASeparator()
{
    Item entry;
    QCOMPARE(readEntry(entryLine(".....", "1", "a" + QString(19, '-')), entry),
             ListingReader::Line::Ended);
}

void TstListingReader::nameWithEighteenDashesIsAName()
{
    Item entry;
    QCOMPARE(readEntry(entryLine(".....", "1", "a" + QString(18, '-')), entry),
             ListingReader::Line::Entry);
    QCOMPARE(entry.path, "a" + QString(18, '-'));
}

void TstListingReader::shortLines_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("isEntry");
    for (const int length : {0, 1, 18, 19, 24, 25, 37, 38, 52, 53})
        QTest::addRow("%d characters", length) << length << false;
    QTest::newRow("54 characters: a name of one") << 54 << true;
}

void TstListingReader::shortLines()
{
    QFETCH(int, length);
    QFETCH(bool, isEntry);
    Item entry;
    const QString line = entryLine(".....", "2048", "name").left(length);
    QCOMPARE(line.size(), length);
    QCOMPARE(readEntry(line, entry),
             isEntry ? ListingReader::Line::Entry : ListingReader::Line::Ignored);
    QCOMPARE(entry.path, isEntry ? QString("n") : QString());
}

void TstListingReader::lineEndsDoNotCount_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("none") << "";
    QTest::newRow("line feed") << "\n";
    QTest::newRow("carriage return and line feed") << "\r\n";
}

void TstListingReader::lineEndsDoNotCount()
{
    QFETCH(QString, end);
    Item entry;
    QCOMPARE(readEntry(entryLine(".....", "2048", "a.txt") + end, entry),
             ListingReader::Line::Entry);
    QCOMPARE(entry.path, QString("a.txt"));
    // The line end must not make a line of 53 characters long enough.
    QCOMPARE(readEntry(entryLine(".....", "1", "") + end, entry), ListingReader::Line::Ignored);
}

void TstListingReader::nameIsTakenAsItStands_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("leading blanks") << "  two in front";
    QTest::newRow("trailing blank") << "one behind ";
    QTest::newRow("quotes") << "a \"b\" 'c'";
    QTest::newRow("escape") << "a\\n%20b";
    QTest::newRow("leading dash") << "-r";
    QTest::newRow("cjk") << QString::fromUtf8("日本語/文書 é.txt");
    QTest::newRow("cyrillic") << QString::fromUtf8("Документы/файл");
    QTest::newRow("combining accent") << QString::fromUtf8("e\u0301te\u0301");
    QTest::newRow("outside the first plane") << QString::fromUtf8("😀/💿.iso");
    QTest::newRow("ten thousand characters") << QString(10000, 'x');
}

void TstListingReader::nameIsTakenAsItStands()
{
    QFETCH(QString, name);
    Item entry;
    QCOMPARE(readEntry(entryLine(".....", "1", name), entry), ListingReader::Line::Entry);
    QCOMPARE(entry.path, name);
}

void TstListingReader::blankColumnsGiveEmptyTexts()
{
    Item entry;
    QCOMPARE(readEntry(QString(53, ' ') + "name", entry), ListingReader::Line::Entry);
    QCOMPARE(entry.timeText, QString(19, ' '));
    QVERIFY(entry.sizeText.isEmpty());
    QVERIFY(!entry.isDir);
    QCOMPARE(entry.path, QString("name"));
}

void TstListingReader::resetForgetsAHalfReadListing()
{
    ListingReader reader;
    Item entry;
    reader.read(rule, entry);
    reader.reset();
    QCOMPARE(reader.read(rule, entry), ListingReader::Line::Began);
}

void TstListingReader::capturedListing_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("plain") << "list-plain-26.02.txt"
                           << QStringList{"d My Docs  2026-11-21 06:50:51",
                                          "f My Docs/a file.txt 6 2026-11-21 06:50:51",
                                          "f big.bin 3000000 2026-11-21 06:50:51"};
    QTest::newRow("unicode, odd names, empty files and folders")
        << "list-unicode-26.02.txt"
        << QString::fromUtf8("f -dash.txt 2 2026-11-21 08:00:00\n"
                             "f @list 2 2026-11-21 08:00:00\n"
                             "d empty folder  2026-11-21 08:00:00\n"
                             "f empty.txt 0 2026-11-21 08:00:00\n"
                             "d Документы  2026-11-21 08:00:00\n"
                             "f Документы/файл é.txt 2 2026-11-21 08:00:00\n"
                             "d 日本語  2026-11-21 08:00:00\n"
                             "f 日本語/文書 \"1\".txt 2 2026-11-21 08:00:00")
               .split('\n');
    QTest::newRow("no archive") << "list-not-an-archive-26.02.txt" << QStringList();
}

void TstListingReader::capturedListing()
{
    QFETCH(QString, file);
    const QStringList lines = linesOf(file);
    QVERIFY2(!lines.isEmpty(), qPrintable(file));
    CTree tree;
    fill(tree, lines);
    QTEST(described(tree), "expected");
}

void TstListingReader::listingTwiceGivesTheSameTree()
{
    const QStringList lines = linesOf("list-unicode-26.02.txt");
    CTree tree;
    fill(tree, lines);
    const QStringList first = described(tree);
    fill(tree, lines);
    QVERIFY(!first.isEmpty());
    QCOMPARE(described(tree), first);
}

KORVEX_TEST_MAIN(TstListingReader)
#include "tst_listingreader.moc"
