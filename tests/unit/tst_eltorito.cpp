// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootimages.h"
#include "eltorito.h"
#include "testcase.h"
#include "testmain.h"

namespace
{

const unsigned char* bytesOf(const QByteArray& bytes)
{
    return reinterpret_cast<const unsigned char*>(bytes.constData());
}

} // namespace

// The structures on the disc. What they are good for is tested with Util::BootExtract().
class TstElTorito : public TestCase
{
    Q_OBJECT

private slots:
    void sectorsBelow2GiBHaveAnOffset_data();
    void sectorsBelow2GiBHaveAnOffset();
    void numbersAreUnsignedAndLittleEndian();
    void aMediaTypeIsTheLowerHalfOfItsByte();
    void theVersionIsCheckedBeforeTheSignature();
};

void TstElTorito::sectorsBelow2GiBHaveAnOffset_data()
{
    QTest::addColumn<quint32>("sector");
    QTest::addColumn<int>("offset");

    QTest::newRow("first") << 0U << 0;
    QTest::newRow("boot record") << 17U << 34816;
    QTest::newRow("last") << 0xfffffU << 2147481600;
    QTest::newRow("2 GiB") << 0x100000U << -1;
    QTest::newRow("4 GiB") << 0x200000U << -1;
    QTest::newRow("largest signed") << 0x7fffffffU << -1;
    QTest::newRow("smallest signed") << 0x80000000U << -1;
    QTest::newRow("all ones") << 0xffffffffU << -1;
}

void TstElTorito::sectorsBelow2GiBHaveAnOffset()
{
    QFETCH(quint32, sector);
    QTEST(isoSectorOffset(sector), "offset");
}

void TstElTorito::numbersAreUnsignedAndLittleEndian()
{
    QCOMPARE(bootCatalogSector(bytesOf(bootRecord(0xfedcba98U))), 0xfedcba98U);
    QByteArray bytes(32, 0);
    overwrite(bytes, 0, QByteArray::fromHex("88000000000001ff04030281"));
    const BootEntry entry = readBootEntry(bytesOf(bytes));
    QVERIFY(entry.bootable);
    QCOMPARE(entry.namedSectors, 0xff01);
    QCOMPARE(entry.sectors, 0xff01);
    QCOMPARE(entry.loadSector, 0x81020304U);
}

void TstElTorito::aMediaTypeIsTheLowerHalfOfItsByte()
{
    for (int value = 0; value < 256; ++value) {
        const BootEntry whole = readBootEntry(bytesOf(bootEntry(0x88, value, 9, 0)));
        const BootEntry half = readBootEntry(bytesOf(bootEntry(0x88, value & 15, 9, 0)));
        QCOMPARE(whole.media, half.media);
        QCOMPARE(whole.sectors, half.sectors);
        QCOMPARE(whole.namedSectors, 9);
    }
}

void TstElTorito::theVersionIsCheckedBeforeTheSignature()
{
    const QByteArray nothing(sectorBytes, 0);
    QCOMPARE(bootRecordFault(bytesOf(nothing)), "Invalid boot-record-volume!\n");
    QByteArray versionOnly = nothing;
    versionOnly[6] = 1;
    QCOMPARE(bootRecordFault(bytesOf(versionOnly)), "Invalid signature in boot-record-volume!\n");
    QVERIFY(!bootRecordFault(bytesOf(bootRecord(0))));
}

KORVEX_TEST_MAIN(TstElTorito)

#include "tst_eltorito.moc"
