// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootextracttest.h"
#include "bootimages.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

namespace
{

constexpr int record = 17 * sectorBytes;
constexpr int catalog = 20 * sectorBytes;
const QString announced = "\nReading boot-catalog from sector 20";

QByteArray soundImage()
{
    return bootableImage(bootEntry(0x88, 0, 4, 30));
}

} // namespace

// The way from the image to its boot catalog, with every failure's message.
class TstBootExtract : public BootExtractTest
{
    Q_OBJECT

private slots:
    void fourSectorsAtLoadSector30AreTheBytesFrom61440();
    void everyByteThatMattersIsChecked_data();
    void everyByteThatMattersIsChecked();
    void bytesThatDoNotMatterAreNotChecked_data();
    void bytesThatDoNotMatterAreNotChecked();
    void aVolumeDescriptorSetTerminatorIsNoBootRecord();
    void aWrongChecksumAloneDoesNotMatter();

    void aFileThatCannotBeOpened_data();
    void aFileThatCannotBeOpened();
    void aPathWithoutNameCannotBeOpened();
    void aDeviceWithoutPlacesCannotBeRead();
    void aFileThatEndsBeforeTheBootRecordDoes_data();
    void aFileThatEndsBeforeTheBootRecordDoes();
    void aCatalogThatIsNotWhollyThere_data();
    void aCatalogThatIsNotWhollyThere();
    void theCatalogMayEndWithTheFile();

    void pathsMayHoldAnything_data();
    void pathsMayHoldAnything();
    void theImageMayBeReadOnlyAndStaysAsItIs();
};

void TstBootExtract::fourSectorsAtLoadSector30AreTheBytesFrom61440()
{
    const QByteArray image = soundImage();
    const Run run = extract(image);
    QVERIFY(run.accepted);
    QCOMPARE(run.content.size(), 2048);
    QCOMPARE(run.content, image.mid(61440, 2048));
    QCOMPARE(run.printed, QByteArray("  Boot-Indicator: Bootable\n"));
    QCOMPARE(run.debug, QStringList({announced, "No emulation\n"}));
}

void TstBootExtract::everyByteThatMattersIsChecked_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QStringList>("debug");

    const QStringList noRecord("Invalid boot-record-volume!\n");
    const QStringList noSignature("Invalid signature in boot-record-volume!\n");
    const QStringList noEntry({announced, "Invalid validation-entry in boot-catalog!\n"});
    for (const int offset : {0, 6})
        QTest::addRow("record byte %d", offset) << record + offset << noRecord;
    for (const int offset : {1, 2, 3, 4, 5})
        QTest::addRow("identifier byte %d", offset) << record + offset << noSignature;
    for (int offset = 7; offset < 30; ++offset)
        QTest::addRow("system byte %d", offset) << record + offset << noSignature;
    for (const int offset : {0, 30, 31})
        QTest::addRow("catalog byte %d", offset) << catalog + offset << noEntry;
}

void TstBootExtract::everyByteThatMattersIsChecked()
{
    QFETCH(int, offset);
    QByteArray image = soundImage();
    for (const int change : {0x01, 0x20, 0x80, 0xff}) {
        image[offset] = char(image.at(offset) ^ change);
        const Run run = extract(image);
        QVERIFY(!run.accepted);
        QTEST(run.debug, "debug");
        QCOMPARE(run.printed, QByteArray());
        QVERIFY(!run.written);
        image[offset] = char(image.at(offset) ^ change);
    }
    QVERIFY(extract(image).accepted);
}

void TstBootExtract::bytesThatDoNotMatterAreNotChecked_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("size");

    QTest::newRow("before the record") << 0 << record;
    QTest::newRow("padding of the system and boot identifier") << record + 30 << 41;
    QTest::newRow("rest of the record") << record + 75 << sectorBytes - 75;
    QTest::newRow("platform, identifier, checksum") << catalog + 1 << 29;
    QTest::newRow("fields of the entry that name no sectors") << catalog + 34 << 4;
    QTest::newRow("further entries") << catalog + 44 << sectorBytes - 44;
}

void TstBootExtract::bytesThatDoNotMatterAreNotChecked()
{
    QFETCH(int, offset);
    QFETCH(int, size);
    QByteArray image = soundImage();
    overwrite(image, offset, QByteArray(size, '\xff'));
    const Run run = extract(image);
    QVERIFY(run.accepted);
    QCOMPARE(run.content, image.mid(61440, 2048));
}

void TstBootExtract::aVolumeDescriptorSetTerminatorIsNoBootRecord()
{
    QByteArray image = soundImage();
    overwrite(image, record,
              QByteArray("\xff"
                         "CD001\1")
                  .leftJustified(sectorBytes, '\0'));
    const Run run = extract(image);
    QVERIFY(!run.accepted);
    QCOMPARE(run.debug, QStringList("Invalid boot-record-volume!\n"));
    QVERIFY(!run.written);
}

void TstBootExtract::aWrongChecksumAloneDoesNotMatter()
{
    QByteArray image = soundImage();
    overwrite(image, catalog + 28, "\x12\x34");
    const Run run = extract(image);
    QVERIFY(run.accepted);
    QCOMPARE(run.content, image.mid(61440, 2048));
}

void TstBootExtract::aFileThatCannotBeOpened_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("missing") << "missing.iso";
    QTest::newRow("a folder") << ".";
    QTest::newRow("below a file") << "file/below.iso";
}

void TstBootExtract::aFileThatCannotBeOpened()
{
    QFETCH(QString, name);
    writeFile(path("file"), "content");
    QVERIFY(!Util::BootExtract(path(name), path("none.bin")));
    QCOMPARE(debugLines(), QStringList("Util::BootExtract open file error!"));
    QVERIFY(!QFile::exists(path("none.bin")));
}

void TstBootExtract::aPathWithoutNameCannotBeOpened()
{
    allowWarning("No file name specified");
    QVERIFY(!Util::BootExtract("", path("none.bin")));
    QCOMPARE(debugLines().last(), QString("Util::BootExtract open file error!"));
}

void TstBootExtract::aDeviceWithoutPlacesCannotBeRead()
{
    allowWarning("sequential device");
    QVERIFY(!Util::BootExtract("/dev/zero", path("none.bin")));
    QCOMPARE(debugLines().last(), QString("Could not read the file/drive\n"));
}

void TstBootExtract::aFileThatEndsBeforeTheBootRecordDoes_data()
{
    QTest::addColumn<int>("size");

    QTest::newRow("empty") << 0;
    QTest::newRow("one byte") << 1;
    QTest::newRow("ends where the record begins") << 34816;
    QTest::newRow("holds all of the record that matters") << 34816 + 75;
    QTest::newRow("one byte short") << 36863;
}

void TstBootExtract::aFileThatEndsBeforeTheBootRecordDoes()
{
    QFETCH(int, size);
    const Run run = extract(soundImage().left(size));
    QVERIFY(!run.accepted);
    QCOMPARE(run.debug, QStringList({"Util::Read error", "Could not read the file/drive\n"}));
    QCOMPARE(run.printed, QByteArray());
    QVERIFY(!run.written);
}

void TstBootExtract::aCatalogThatIsNotWhollyThere_data()
{
    QTest::addColumn<int>("size");

    QTest::newRow("the file ends with the record") << 36864;
    QTest::newRow("the file ends where the catalog begins") << catalog;
    QTest::newRow("holds all of the catalog that matters") << catalog + 64;
    QTest::newRow("one byte short") << catalog + 2047;
}

void TstBootExtract::aCatalogThatIsNotWhollyThere()
{
    QFETCH(int, size);
    const Run run = extract(soundImage().left(size));
    QVERIFY(!run.accepted);
    QCOMPARE(run.debug,
             QStringList({announced, "Util::Read error", "Could not read the file/drive "}));
    QVERIFY(!run.written);
}

void TstBootExtract::theCatalogMayEndWithTheFile()
{
    const QByteArray image = bootableImage(bootEntry(0x88, 0, 4, 1), 21);
    const Run run = extract(image);
    QVERIFY(run.accepted);
    QCOMPARE(run.content, image.mid(2048, 2048));
}

void TstBootExtract::pathsMayHoldAnything_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("blanks") << "  my  image .iso ";
    QTest::newRow("quotes") << "a\"b'c`d\\e.iso";
    QTest::newRow("dash") << "-image.iso";
    QTest::newRow("patterns") << "%1 *?[a-z] $HOME %s %n.iso";
    QTest::newRow("unicode") << QString::fromUtf8("é e\xcc\x81 光盘 😀.iso");
    QTest::newRow("line end") << "a\nb.iso";
}

void TstBootExtract::pathsMayHoldAnything()
{
    QFETCH(QString, name);
    const QByteArray image = soundImage();
    writeFile(path(name), image);
    QVERIFY(QDir(path(".")).mkpath("out"));
    QVERIFY(Util::BootExtract(path(name), path("out/" + name)));
    QCOMPARE(entriesOf(path("out")), QStringList(name));
    QCOMPARE(readFile(path("out/" + name)), image.mid(61440, 2048));
    QVERIFY(QFile::remove(path("out/" + name)));
}

void TstBootExtract::theImageMayBeReadOnlyAndStaysAsItIs()
{
    const QByteArray image = soundImage();
    writeFile(path("image.iso"), image);
    QVERIFY(QFile::setPermissions(path("image.iso"), QFile::ReadOwner));
    QVERIFY(extract().written);
    QCOMPARE(readFile(path("image.iso")), image);
    QVERIFY(QFile::remove(path("image.iso")));
}

KORVEX_TEST_MAIN(TstBootExtract)

#include "tst_bootextract.moc"
