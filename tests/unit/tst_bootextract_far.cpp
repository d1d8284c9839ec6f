// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootextracttest.h"
#include "bootimages.h"
#include "testfiles.h"
#include "testmain.h"

namespace
{

// A hole of that size with the sectors of a sound image.
void writeSparseImage(const QString& path, qint64 size, quint32 catalogSector,
                      const QByteArray& entry)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(size));
    file.seek(17 * sectorBytes);
    file.write(bootRecord(catalogSector));
    file.seek(qint64(catalogSector) * sectorBytes);
    file.write(bootCatalog(entry));
}

} // namespace

// Boot catalogs and boot images on both sides of 2 GiB, where the reader's world ends. The images
// are holes for the most part.
class TstBootExtractFar : public BootExtractTest
{
    Q_OBJECT

private slots:
    void theLastSectorBelow2GiBIsRead();
    void aCatalogFrom2GiBOnIsRefused_data();
    void aCatalogFrom2GiBOnIsRefused();
    void aRefusedSectorNumberDoesNotWrapToTheFilesBegin_data();
    void aRefusedSectorNumberDoesNotWrapToTheFilesBegin();

    void aBootImageFrom2GiBOnIsAcceptedButNotWritten_data();
    void aBootImageFrom2GiBOnIsAcceptedButNotWritten();
    void aBootImageThatBeginsBelow2GiBMayReachBeyond();
};

void TstBootExtractFar::theLastSectorBelow2GiBIsRead()
{
    const quint32 sector = (1U << 20) - 1;
    writeSparseImage(path("image.iso"), qint64(1) << 31, sector, bootEntry(0x88, 0, 4, sector));
    const Run run = extract();
    QVERIFY(run.accepted);
    QCOMPARE(run.debug,
             QStringList({"\nReading boot-catalog from sector 1048575", "No emulation\n"}));
    QCOMPARE(run.content, bootCatalog(bootEntry(0x88, 0, 4, sector)));
}

void TstBootExtractFar::aCatalogFrom2GiBOnIsRefused_data()
{
    QTest::addColumn<quint32>("sector");

    QTest::newRow("2 GiB") << (1U << 20);
    QTest::newRow("2 GiB and one sector") << (1U << 20) + 1;
    QTest::newRow("beyond 4 GiB") << (1U << 21) + 100;
}

void TstBootExtractFar::aCatalogFrom2GiBOnIsRefused()
{
    QFETCH(quint32, sector);
    writeSparseImage(path("image.iso"), qint64(5) << 30, sector, bootEntry(0x88, 0, 4, 30));
    const Run run = extract();
    QVERIFY(!run.accepted);
    QCOMPARE(run.debug, QStringList({QString("\nReading boot-catalog from sector %1").arg(sector),
                                     "Could not read the file/drive "}));
    QCOMPARE(run.printed, QByteArray());
    QVERIFY(!run.written);
}

void TstBootExtractFar::aRefusedSectorNumberDoesNotWrapToTheFilesBegin_data()
{
    QTest::addColumn<quint32>("sector");

    QTest::newRow("4 GiB") << (1U << 21) + 20;
    QTest::newRow("6 GiB") << 3 * (1U << 20) + 20;
    QTest::newRow("8 GiB") << (1U << 22) + 20;
    QTest::newRow("the last that wraps there") << 0xffe00000U + 20;
    QTest::newRow("all ones") << 0xffffffffU;
}

void TstBootExtractFar::aRefusedSectorNumberDoesNotWrapToTheFilesBegin()
{
    QFETCH(quint32, sector);
    QByteArray image = bootableImage(bootEntry(0x88, 0, 4, 30));
    overwrite(image, 17 * sectorBytes, bootRecord(sector));
    const Run run = extract(image);
    QVERIFY(!run.accepted);
    QCOMPARE(run.debug, QStringList({QString("\nReading boot-catalog from sector %1").arg(sector),
                                     "Could not read the file/drive "}));
    QVERIFY(!run.written);
}

void TstBootExtractFar::aBootImageFrom2GiBOnIsAcceptedButNotWritten_data()
{
    QTest::addColumn<quint32>("sector");

    QTest::newRow("2 GiB") << (1U << 20);
    QTest::newRow("wraps to the file's begin") << (1U << 21) + 30;
    QTest::newRow("all ones") << 0xffffffffU;
}

void TstBootExtractFar::aBootImageFrom2GiBOnIsAcceptedButNotWritten()
{
    QFETCH(quint32, sector);
    writeFile(path("image.iso"), bootableImage(bootEntry(0x88, 0, 4, sector)));
    QVERIFY(QFile::resize(path("image.iso"), qint64(5) << 30));
    const Run run = extract();
    QVERIFY(run.accepted);
    QVERIFY(!run.written);
    QCOMPARE(run.printed, QByteArray("  Boot-Indicator: Bootable\n"));
    QCOMPARE(run.debug, QStringList({"\nReading boot-catalog from sector 20", "No emulation\n"}));
}

void TstBootExtractFar::aBootImageThatBeginsBelow2GiBMayReachBeyond()
{
    writeFile(path("image.iso"), bootableImage(bootEntry(0x88, 0, 8, (1U << 20) - 1)));
    QFile file(path("image.iso"));
    QVERIFY(file.open(QIODevice::ReadWrite) && file.seek((qint64(1) << 31) - 2048));
    const QByteArray content = patternBytes(4096);
    QCOMPARE(file.write(content), content.size());
    file.close();
    QCOMPARE(extract().content, content);
}

KORVEX_TEST_MAIN(TstBootExtractFar)

#include "tst_bootextract_far.moc"
