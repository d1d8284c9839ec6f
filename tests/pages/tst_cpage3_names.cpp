// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "stagingpagefixture.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// Names that are unusual but possible, and how full the Create page says the image would be.
class TstCPage3Names : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fileOfAnyNameIsShownStagedAndRemoved_data();
    void fileOfAnyNameIsShownStagedAndRemoved();
    void folderOfAnyNameIsShownStagedAndRemoved_data();
    void folderOfAnyNameIsShownStagedAndRemoved();
    void rowWithBlanksAtItsEndsIsStagedButCannotBeRemoved_data();
    void rowWithBlanksAtItsEndsIsStagedButCannotBeRemoved();
    void rowOfBlanksOnlyCannotBeRemoved();
    void rowBelowAFolderWithBlanksAtItsEndsCannotBeRemoved();
    void trimmedNameOfAnotherRowRemovesThatEntryAndTheSelectedRow();
    void fileBelowARowInAFolderWithBlanksGoesIntoAFolderWithoutThem();
    void gaugeShowsHowFullTheImageIs_data();
    void gaugeShowsHowFullTheImageIs();
    void gaugeGoesBackWhenARowIsRemoved();
    void totalIsMeasuredAnewOnEachChange();

private:
    std::unique_ptr<StagingPageFixture> fixture;
};

void TstCPage3Names::init()
{
    TestCase::init();
    fixture = std::make_unique<StagingPageFixture>();
}

void TstCPage3Names::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage3Names::fileOfAnyNameIsShownStagedAndRemoved_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks inside") << "two  blanks in.txt";
    QTest::newRow("double quotes") << "say \"hello\".txt";
    QTest::newRow("single quote") << "it's.txt";
    QTest::newRow("leading dash") << "-rf";
    QTest::newRow("leading at") << "@list.txt";
    QTest::newRow("backslash") << "back\\slash";
    QTest::newRow("newline inside") << "two\nlines.txt";
    QTest::newRow("tab inside") << "a\tb";
    QTest::newRow("percent") << "100%1%2.txt";
    QTest::newRow("markup") << "<b>bold<b>&amp;.txt";
    QTest::newRow("wildcards") << "*?[a-z].txt";
    QTest::newRow("equals sign") << "a=b.txt";
    QTest::newRow("hidden") << ".profile";
    QTest::newRow("umlauts") << QString::fromUtf8("\xC3\x84\xC3\xB6\xC3\xBC\xC3\x9F.txt");
    QTest::newRow("chinese") << QString::fromUtf8("\xE4\xB8\xAD\xE6\x96\x87.txt");
    QTest::newRow("beyond the basic plane") << QString::fromUtf8("\xF0\x9F\x98\x80.txt");
    QTest::newRow("combining") << QString::fromUtf8("e\xCC\x81.txt");
    QTest::newRow("longest") << QString(255, 'n');
}

void TstCPage3Names::fileOfAnyNameIsShownStagedAndRemoved()
{
    QFETCH(QString, name);
    fixture->addFiles({fixture->makeFile("source/" + name, "content")});
    QCOMPARE(fixture->outline(), QStringList(name));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(), (QMap<QString, QByteArray>{{name, "content"}}));
    fixture->remove({name});
    QCOMPARE(fixture->outline(), QStringList());
    QVERIFY(fixture->finish());
    QVERIFY(fixture->staged().isEmpty());
}

void TstCPage3Names::folderOfAnyNameIsShownStagedAndRemoved_data()
{
    fileOfAnyNameIsShownStagedAndRemoved_data();
}

void TstCPage3Names::folderOfAnyNameIsShownStagedAndRemoved()
{
    QFETCH(QString, name);
    fixture->makeFile("source/" + name + "/inside", "content");
    fixture->addFolders({fixture->path("source/" + name)});
    QCOMPARE(fixture->row({name, "inside"})->text(1), name);
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().value(name + "/inside"), QByteArray("content"));
    fixture->remove({name});
    QVERIFY(fixture->finish());
    QVERIFY(fixture->staged().isEmpty());
}

void TstCPage3Names::rowWithBlanksAtItsEndsIsStagedButCannotBeRemoved_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("leading") << " a.txt";
    QTest::newRow("trailing") << "a.txt ";
    QTest::newRow("newline at the end") << "a.txt\n";
}

// The column's text is trimmed for the look-up.
void TstCPage3Names::rowWithBlanksAtItsEndsIsStagedButCannotBeRemoved()
{
    QFETCH(QString, name);
    fixture->addFiles({fixture->makeFile(name, "content")});
    QVERIFY(fixture->finish());
    fixture->remove({name});
    QCOMPARE(fixture->outline(), QStringList(name));
    QCOMPARE(fixture->totalText(), QString("Total Size: 7 B"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged(), (QMap<QString, QByteArray>{{name, "content"}}));
}

void TstCPage3Names::rowOfBlanksOnlyCannotBeRemoved()
{
    fixture->addFiles({fixture->makeFile("  "), fixture->makeFile("a.txt")});
    fixture->remove({"  "});
    QCOMPARE(fixture->outline(), QStringList({"  ", "a.txt"}));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList({"  ", "a.txt"}));
}

void TstCPage3Names::rowBelowAFolderWithBlanksAtItsEndsCannotBeRemoved()
{
    fixture->makeFile("folder /a.txt");
    fixture->addFolders({fixture->path("folder ")});
    fixture->remove({"folder ", "a.txt"});
    QCOMPARE(fixture->outline(), QStringList({"folder ", "folder  > a.txt"}));
}

void TstCPage3Names::trimmedNameOfAnotherRowRemovesThatEntryAndTheSelectedRow()
{
    fixture->addFiles({fixture->makeFile("a.txt", "1"), fixture->makeFile("a.txt ", "22")});
    QVERIFY(fixture->finish());
    fixture->remove({"a.txt "});
    QCOMPARE(fixture->outline(), QStringList("a.txt"));
    QCOMPARE(fixture->totalText(), QString("Total Size: 2 B"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(), QStringList("a.txt "));
}

void TstCPage3Names::fileBelowARowInAFolderWithBlanksGoesIntoAFolderWithoutThem()
{
    fixture->makeFile("folder /a.txt");
    fixture->addFolders({fixture->path("folder ")});
    fixture->setSelected(fixture->row({"folder ", "a.txt"}));
    fixture->addFiles({fixture->makeFile("b.txt")});
    QCOMPARE(fixture->row({"folder ", "a.txt", "b.txt"})->text(1), QString("folder"));
    QVERIFY(fixture->finish());
    QCOMPARE(fixture->staged().keys(),
             QStringList({"folder /", "folder /a.txt", "folder/", "folder/b.txt"}));
}

void TstCPage3Names::gaugeShowsHowFullTheImageIs_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<int>("percent");
    QTest::addColumn<QString>("text");
    constexpr qint64 full = 5368709120;
    QTest::newRow("nothing") << qint64(0) << 0 << "0 B";
    QTest::newRow("one byte") << qint64(1) << 0 << "1 B";
    QTest::newRow("just below one percent") << full / 100 << 0 << "51.20 MB";
    QTest::newRow("one percent") << full / 100 + 1 << 1 << "51.20 MB";
    QTest::newRow("half") << full / 2 << 50 << "2.50 GB";
    QTest::newRow("one byte below 5 GB") << full - 1 << 99 << "5 GB";
    QTest::newRow("5 GB") << full << 100 << "5 GB";
    QTest::newRow("one byte above 5 GB") << full + 1 << 100 << "5 GB";
    QTest::newRow("twice") << 2 * full << 100 << "10 GB";
    QTest::newRow("very much") << 100 * full << 100 << "500 GB";
}

void TstCPage3Names::gaugeShowsHowFullTheImageIs()
{
    QFETCH(qint64, bytes);
    QVERIFY(fixture->holdQueue());
    fixture->addFiles({fixture->makeSparseFile("large", bytes)});
    QTEST(fixture->gaugeValue(), "percent");
    QFETCH(QString, text);
    QCOMPARE(fixture->totalText(), "Total Size: " + text);
    // No size is refused.
    QCOMPARE(fixture->outline(), QStringList("large"));
}

void TstCPage3Names::gaugeGoesBackWhenARowIsRemoved()
{
    QVERIFY(fixture->holdQueue());
    fixture->addFiles({fixture->makeSparseFile("large", 5368709120), fixture->makeFile("small")});
    QCOMPARE(fixture->gaugeValue(), 100);
    fixture->remove({"large"});
    QCOMPARE(fixture->gaugeValue(), 0);
    QCOMPARE(fixture->totalText(), QString("Total Size: 1 B"));
}

void TstCPage3Names::totalIsMeasuredAnewOnEachChange()
{
    const QString file = fixture->makeFile("a.txt", "12345");
    fixture->addFiles({file});
    fixture->makeFile("a.txt", "1234567890");
    QCOMPARE(fixture->totalText(), QString("Total Size: 5 B"));
    fixture->addFiles({fixture->makeFile("b.txt")});
    QCOMPARE(fixture->totalText(), QString("Total Size: 11 B"));
}

KORVEX_TEST_MAIN(TstCPage3Names)
#include "tst_cpage3_names.moc"
