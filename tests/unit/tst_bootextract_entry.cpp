// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootextracttest.h"
#include "bootimages.h"
#include "outputcapture.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QDataStream>

namespace
{

const QByteArray bootable = "  Boot-Indicator: Bootable\n";

// Large enough for every diskette behind sector 30.
constexpr int imageSectors = 1500;

} // namespace

// What is copied for an entry of the boot catalog.
class TstBootExtractEntry : public BootExtractTest
{
    Q_OBJECT

private slots:
    void theMediaTypeSaysWhatIsCopied_data();
    void theMediaTypeSaysWhatIsCopied();
    void aDisketteThatNamesItsOwnSizeIsNotWorthALine_data();
    void aDisketteThatNamesItsOwnSizeIsNotWorthALine();
    void aDisketteHasItsSizeWhateverTheEntryNames_data();
    void aDisketteHasItsSizeWhateverTheEntryNames();
    void onlyOneIndicatorIsBootable();
    void anEntryThatIsNotBootableIsAcceptedButNothingWritten();
    void theLargestCountIsUnsigned();
    void noSectorsMakeAnEmptyFile();
    void noSectorsFarOutsideMakeAnEmptyFileToo();

    void aBootImageThatIsNotWhollyThereIsAcceptedButNotWritten_data();
    void aBootImageThatIsNotWhollyThereIsAcceptedButNotWritten();
    void theBootImageMayEndWithTheFile();

    void anOutputThatCannotBeOpenedIsAcceptedAllTheSame();
    void oneEntryAloneCanBeProcessed();
    void anEntryWithoutDeviceWritesNothing();
};

void TstBootExtractEntry::theMediaTypeSaysWhatIsCopied_data()
{
    QTest::addColumn<int>("media");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("bytes");
    QTest::addColumn<QByteArray>("printed");

    for (const int upper : {0x00, 0x10, 0x40, 0xf0}) {
        const auto row = [=](int media, const char* text, int bytes, const QByteArray& line) {
            QTest::addRow("0x%02x", upper + media) << upper + media << text << bytes << line;
        };
        row(0, "No emulation\n", 7 * 512, {});
        row(1, "1.2 meg diskette\n", 1228800, "  Sector count to read: 2400 (1228800 bytes)\n");
        row(2, "1.44 meg diskette\n", 1474560, "  Sector count to read: 2880 (1474560 bytes)\n");
        row(3, "2.88 meg diskette\n", 2949120, "  Sector count to read: 5760 (2949120 bytes)\n");
        row(4, "Hard disk (drive 80)\n", 7 * 512, {});
        for (int media = 5; media < 16; ++media)
            row(media, "Unknown\n", 7 * 512, {});
    }
}

void TstBootExtractEntry::theMediaTypeSaysWhatIsCopied()
{
    QFETCH(int, media);
    QFETCH(QString, text);
    QFETCH(int, bytes);
    QFETCH(QByteArray, printed);
    const QByteArray image = bootableImage(bootEntry(0x88, media, 7, 30), imageSectors);
    const Run run = extract(image);
    QVERIFY(run.accepted);
    QCOMPARE(run.debug, QStringList({"\nReading boot-catalog from sector 20", text}));
    QCOMPARE(run.printed, bootable + printed);
    QCOMPARE(run.content.size(), bytes);
    QVERIFY(run.content == image.mid(61440, bytes));
}

void TstBootExtractEntry::aDisketteThatNamesItsOwnSizeIsNotWorthALine_data()
{
    QTest::addColumn<int>("media");
    QTest::addColumn<int>("sectors");

    QTest::newRow("1.2") << 1 << 2400;
    QTest::newRow("1.44") << 2 << 2880;
    QTest::newRow("2.88") << 3 << 5760;
}

void TstBootExtractEntry::aDisketteThatNamesItsOwnSizeIsNotWorthALine()
{
    QFETCH(int, media);
    QFETCH(int, sectors);
    const Run run = extract(bootableImage(bootEntry(0x88, media, sectors, 30), imageSectors));
    QCOMPARE(run.printed, bootable);
    QCOMPARE(run.content.size(), sectors * 512);
}

void TstBootExtractEntry::aDisketteHasItsSizeWhateverTheEntryNames_data()
{
    QTest::addColumn<int>("sectors");

    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("one less") << 2879;
    QTest::newRow("one more") << 2881;
    QTest::newRow("all") << 65535;
}

void TstBootExtractEntry::aDisketteHasItsSizeWhateverTheEntryNames()
{
    QFETCH(int, sectors);
    const QByteArray image = bootableImage(bootEntry(0x88, 2, sectors, 30), imageSectors);
    const Run run = extract(image);
    QCOMPARE(run.content.size(), 1474560);
    QVERIFY(run.content == image.mid(61440, 1474560));
    QCOMPARE(run.printed, bootable + "  Sector count to read: 2880 (1474560 bytes)\n");
}

void TstBootExtractEntry::onlyOneIndicatorIsBootable()
{
    for (int indicator = 0; indicator < 256; ++indicator) {
        const Run run = extract(bootableImage(bootEntry(indicator, 0, 4, 30)));
        QVERIFY(run.accepted);
        QCOMPARE(run.written, indicator == 0x88);
    }
}

void TstBootExtractEntry::anEntryThatIsNotBootableIsAcceptedButNothingWritten()
{
    const Run run = extract(bootableImage(bootEntry(0, 2, 4, 30), imageSectors));
    QVERIFY(run.accepted);
    QVERIFY(!run.written);
    QCOMPARE(run.printed, QByteArray("  Boot-Indicator: Not Bootable\n"));
    QCOMPARE(run.debug, QStringList("\nReading boot-catalog from sector 20"));
}

void TstBootExtractEntry::theLargestCountIsUnsigned()
{
    const QByteArray image = bootableImage(bootEntry(0x88, 0, 65535, 30), 30 + 16384);
    const Run run = extract(image);
    QCOMPARE(run.content.size(), 65535 * 512);
    QVERIFY(run.content == image.mid(61440, 65535 * 512));
}

void TstBootExtractEntry::noSectorsMakeAnEmptyFile()
{
    const Run run = extract(bootableImage(bootEntry(0x88, 0, 0, 30)));
    QVERIFY(run.accepted);
    QVERIFY(run.written);
    QCOMPARE(run.content, QByteArray());
}

void TstBootExtractEntry::noSectorsFarOutsideMakeAnEmptyFileToo()
{
    const Run run = extract(bootableImage(bootEntry(0x88, 4, 0, 500'000)));
    QVERIFY(run.accepted);
    QVERIFY(run.written);
    QCOMPARE(run.content, QByteArray());
}

void TstBootExtractEntry::aBootImageThatIsNotWhollyThereIsAcceptedButNotWritten_data()
{
    QTest::addColumn<QByteArray>("entry");

    QTest::newRow("ends one sector too late") << bootEntry(0x88, 0, 5, 39);
    QTest::newRow("begins at the end") << bootEntry(0x88, 0, 1, 40);
    QTest::newRow("begins far outside") << bootEntry(0x88, 0, 4, 1'000'000);
    QTest::newRow("diskette") << bootEntry(0x88, 2, 4, 30);
    QTest::newRow("largest") << bootEntry(0x88, 4, 65535, 1'000'000);
}

void TstBootExtractEntry::aBootImageThatIsNotWhollyThereIsAcceptedButNotWritten()
{
    QFETCH(QByteArray, entry);
    const Run run = extract(bootableImage(entry, 40));
    QVERIFY(run.accepted);
    QVERIFY(!run.written);
    QCOMPARE(run.debug.size(), 3);
    QCOMPARE(run.debug.last(), QString("Util::Read error"));
    QVERIFY(run.printed.startsWith(bootable));
}

void TstBootExtractEntry::theBootImageMayEndWithTheFile()
{
    const QByteArray image = bootableImage(bootEntry(0x88, 0, 4, 39), 40);
    QCOMPARE(extract(image).content, image.right(2048));
}

void TstBootExtractEntry::anOutputThatCannotBeOpenedIsAcceptedAllTheSame()
{
    writeFile(path("image.iso"), bootableImage(bootEntry(0x88, 0, 4, 30)));
    QVERIFY(Util::BootExtract(path("image.iso"), path("missing/boot.bin")));
    QCOMPARE(debugLines().last(), QString("Util::WriteData can not open file"));
    QVERIFY(!QFile::exists(path("missing")));
}

void TstBootExtractEntry::oneEntryAloneCanBeProcessed()
{
    const QByteArray content = patternBytes(8 * 2048);
    QDataStream stream(content);
    QByteArray entry = bootEntry(0x88, 4, 3, 2);
    QString output = path("one.bin");
    const QByteArray printed = standardOutputOf([&] {
        Util::ProcessEntry(output, stream, reinterpret_cast<unsigned char*>(entry.data()));
    });
    QCOMPARE(readFile(output), content.mid(4096, 1536));
    QCOMPARE(printed, bootable);
    QCOMPARE(debugLines(), QStringList("Hard disk (drive 80)\n"));
}

void TstBootExtractEntry::anEntryWithoutDeviceWritesNothing()
{
    QDataStream stream;
    QByteArray entry = bootEntry(0x88, 0, 0, 0);
    QString output = path("none.bin");
    Util::ProcessEntry(output, stream, reinterpret_cast<unsigned char*>(entry.data()));
    QVERIFY(!QFile::exists(output));
}

KORVEX_TEST_MAIN(TstBootExtractEntry)

#include "tst_bootextract_entry.moc"
