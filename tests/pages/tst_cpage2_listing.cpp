// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "extractpagefixture.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"

#include <QApplication>

// Sends lines as a runner does.
class LineSender : public QObject
{
    Q_OBJECT

signals:
    void standoutputline(QString line);
};

// What the Extract page makes of the archiver's lines.
class TstCPage2Listing : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void folderAboveAFileIsCreated();
    void bannerHeaderAndTotalsAddNothing();
    void entryNeedsANameOfOneCharacter();
    void lineEndsOfTheOtherPlatformAreNoPartOfTheName();
    void nameWithNineteenDashesIsTakenForTheEnd();
    void duplicateEntryIsDropped();
    void emptyImageShowsItsNameOnly();
    void listingWithCutLinesArrivesWhole_data();
    void listingWithCutLinesArrivesWhole();
    void capturedListingIsShown();
    void linesWithoutARunnerAreReadAsWell();
    void senderIsReleasedAtTheSecondSeparator();

private:
    QStringList childrenOf(const QString& path) const;

    std::unique_ptr<ExtractPageFixture> fixture;
};

void TstCPage2Listing::initTestCase()
{
    setApplicationLook();
}

void TstCPage2Listing::init()
{
    TestCase::init();
    fixture = std::make_unique<ExtractPageFixture>();
}

void TstCPage2Listing::cleanup()
{
    fixture.reset();
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
    TestCase::cleanup();
}

// Names in the table once the folder with this path has been opened, one level at a time.
QStringList TstCPage2Listing::childrenOf(const QString& path) const
{
    fixture->clickNode(fixture->topNode());
    if (!path.isEmpty())
        fixture->enter(path);
    return fixture->shownNames();
}

void TstCPage2Listing::folderAboveAFileIsCreated()
{
    QVERIFY(fixture->load({"2019-03-19 13:42:43 .....         2048         2048  "
                           "boot/grub/font.pf2"}));
    QCOMPARE(childrenOf({}), QStringList("boot"));
    QCOMPARE(childrenOf("boot"), QStringList("grub"));
    QCOMPARE(childrenOf("boot/grub"), QStringList("font.pf2"));
    QCOMPARE(fixture->table()->item(0, 1)->text(), QString("2 KB"));
    QCOMPARE(fixture->table()->item(0, 3)->text(), QString("2019-03-19 13:42:43"));
}

void TstCPage2Listing::bannerHeaderAndTotalsAddNothing()
{
    QVERIFY(fixture->load({ExtractPageFixture::fileLine("only.txt")}));
    QVERIFY(PageFixture::waitUntilToolsGone()); // the totals line comes after the end
    QCOMPARE(fixture->shownNames(), QStringList("only.txt"));
    fixture->clickNode(fixture->topNode());
    QCOMPARE(fixture->shownNames(), QStringList("only.txt"));
}

void TstCPage2Listing::entryNeedsANameOfOneCharacter()
{
    QVERIFY(fixture->load({ExtractPageFixture::fileLine({}), ExtractPageFixture::fileLine("x"),
                           "short line", QString()}));
    QCOMPARE(fixture->shownNames(), QStringList("x"));
}

void TstCPage2Listing::lineEndsOfTheOtherPlatformAreNoPartOfTheName()
{
    QVERIFY(fixture->load({ExtractPageFixture::fileLine("a.txt") + '\r',
                           ExtractPageFixture::folderLine("b") + '\r'}));
    QCOMPARE(fixture->shownNames(), QStringList({"a.txt", "b"}));
}

void TstCPage2Listing::nameWithNineteenDashesIsTakenForTheEnd()
{
    QVERIFY(fixture->load({ExtractPageFixture::fileLine("before"),
                           ExtractPageFixture::fileLine(QString(19, '-') + ".txt"),
                           ExtractPageFixture::fileLine("after")}));
    QCOMPARE(fixture->shownNames(), QStringList("before"));
    QVERIFY(PageFixture::waitUntilToolsGone()); // the rest of the listing
    QVERIFY(fixture->button("loadiso")->isEnabled());
    // The next image is read from its beginning, however the last one ended.
    QVERIFY(fixture->load());
    QCOMPARE(fixture->shownNames(), QStringList({"boot", "readme.txt", "docs", "autorun.inf"}));
}

void TstCPage2Listing::duplicateEntryIsDropped()
{
    QVERIFY(fixture->load({ExtractPageFixture::fileLine("a.txt", 1),
                           ExtractPageFixture::fileLine("a.txt", 2),
                           ExtractPageFixture::fileLine("A.TXT", 3)}));
    QCOMPARE(fixture->shownNames(), QStringList({"a.txt", "A.TXT"}));
    QCOMPARE(fixture->table()->item(0, 1)->text(), QString("1 B"));
}

void TstCPage2Listing::emptyImageShowsItsNameOnly()
{
    QVERIFY(fixture->load({}));
    QCOMPARE(fixture->tree()->topLevelItemCount(), 1);
    QCOMPARE(fixture->topNode()->childCount(), 0);
    QCOMPARE(fixture->table()->rowCount(), 0);
}

void TstCPage2Listing::listingWithCutLinesArrivesWhole_data()
{
    QTest::addColumn<int>("block");
    QTest::newRow("7 bytes") << 7;
    QTest::newRow("100 bytes") << 100;
    QTest::newRow("4096 bytes") << 4096;
}

void TstCPage2Listing::listingWithCutLinesArrivesWhole()
{
    QFETCH(int, block);
    QStringList entries;
    QStringList names;
    for (int i = 0; i < (block < 4096 ? 10 : 3000); ++i) {
        names.append(QString::fromUtf8("日本 файл %1").arg(i));
        entries.append(ExtractPageFixture::fileLine(names.last()));
    }
    fixture->setListing(entries);
    fixture->tool.setScript({QString("file %1 %2").arg(block).arg(fixture->path("listing.txt"))});
    fixture->startLoading();
    QVERIFY(fixture->waitUntilLoaded());
    QCOMPARE(fixture->shownNames(), names);
}

void TstCPage2Listing::capturedListingIsShown()
{
    fixture->tool.setScript({"file 4096 " KORVEX_TEST_DATA "/7z/list-unicode-26.02.txt"});
    fixture->startLoading("u.iso");
    QVERIFY(fixture->waitUntilLoaded());
    QCOMPARE(fixture->topNode()->text(0), QString("u.iso"));
    QCOMPARE(fixture->shownNames(),
             QStringList({"-dash.txt", "@list", "empty folder", "empty.txt",
                          QString::fromUtf8("Документы"), QString::fromUtf8("日本語")}));
    QCOMPARE(childrenOf(QString::fromUtf8("日本語")),
             QStringList(QString::fromUtf8("文書 \"1\".txt")));
}

void TstCPage2Listing::linesWithoutARunnerAreReadAsWell()
{
    const QStringList lines{ExtractPageFixture::separatorLine(),
                            ExtractPageFixture::fileLine("a.txt"),
                            ExtractPageFixture::separatorLine()};
    for (const QString& line : lines)
        fixture->page->OnLineOutput(line + "\n");
    QCOMPARE(fixture->shownNames(), QStringList("a.txt"));
    QVERIFY(debugLines().contains("finished unzip"));
}

void TstCPage2Listing::senderIsReleasedAtTheSecondSeparator()
{
    QPointer<LineSender> sender = new LineSender;
    connect(sender, SIGNAL(standoutputline(QString)), fixture->page, SLOT(OnLineOutput(QString)));
    for (const QString& line :
         {ExtractPageFixture::separatorLine(), ExtractPageFixture::fileLine("a.txt")}) {
        emit sender->standoutputline(line);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY2(sender, "there are lines to come");
    }
    emit sender->standoutputline(ExtractPageFixture::separatorLine());
    QVERIFY2(sender, "deleted while it sends its signal");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!sender);
    QCOMPARE(fixture->shownNames(), QStringList("a.txt"));
}

KORVEX_TEST_MAIN(TstCPage2Listing)
#include "tst_cpage2_listing.moc"
