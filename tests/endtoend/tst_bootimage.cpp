// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagemaker.h"
#include "outputcapture.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QCryptographicHash>

namespace
{

const QString loaderPath = "/usr/lib/ISOLINUX/isolinux.bin";

QByteArray hashOf(const QByteArray& content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
}

} // namespace

// Boot images out of images that the authoring tool has made, against the archiver's reading.
class TstBootImage : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aLoaderWithoutEmulationIsItsFirst2048Bytes();
    void aDisketteImageComesOutWhole();
    void aDisketteFileOnAPlainDataDiscIsNoBootImage();

private:
    // Makes an image of the tree with these options; it is then the one to read from.
    void make(const QStringList& options);
    // Extracts its boot image; standard output is taken along.
    bool extract();

    QTemporaryDir folder;
    QString image;
    QString output;
    QByteArray printed;
};

void TstBootImage::initTestCase()
{
    writeFile(folder.filePath("tree/read me.txt"), "content");
    writeRandomFile(folder.filePath("tree/boot/floppy.img"), 1'474'560, 20261121);
    const QByteArray loader = readFile(loaderPath);
    QVERIFY(loader.size() > 2048);
    writeFile(folder.filePath("tree/boot/isolinux.bin"), loader);
    image = folder.filePath("bootable image.iso");
    output = folder.filePath("boot image.bin");
}

void TstBootImage::make(const QStringList& options)
{
    makeImage(folder.filePath("tree"), image, options);
    QFile::remove(output);
}

bool TstBootImage::extract()
{
    bool accepted = false;
    printed = standardOutputOf([&] { accepted = Util::BootExtract(image, output); });
    return accepted;
}

void TstBootImage::aLoaderWithoutEmulationIsItsFirst2048Bytes()
{
    make({"-b", "boot/isolinux.bin", "-c", "boot/boot.cat", "-no-emul-boot", "-boot-load-size", "4",
          "-boot-info-table"});
    QVERIFY(extract());
    QCOMPARE(printed, QByteArray("  Boot-Indicator: Bootable\n"));
    QCOMPARE(debugLines().last(), QString("No emulation\n"));

    // The authoring tool has written the table into the loader, beginning at byte 8.
    const QByteArray patched = extractedFile(image, "boot/isolinux.bin");
    const QByteArray loader = readFile(loaderPath);
    QCOMPARE(patched.size(), loader.size());
    QCOMPARE(hashOf(patched.mid(64)), hashOf(loader.mid(64)));
    QVERIFY(patched.mid(8, 56) != loader.mid(8, 56));
    QCOMPARE(readFile(output).size(), 2048);
    QCOMPARE(hashOf(readFile(output)), hashOf(patched.left(2048)));
}

void TstBootImage::aDisketteImageComesOutWhole()
{
    make({"-b", "boot/floppy.img", "-c", "boot/boot.cat"});
    QVERIFY(extract());
    QVERIFY(printed.startsWith("  Boot-Indicator: Bootable\n"));
    QCOMPARE(debugLines().last(), QString("1.44 meg diskette\n"));

    const QByteArray original = readFile(folder.filePath("tree/boot/floppy.img"));
    QCOMPARE(readFile(output).size(), original.size());
    QCOMPARE(hashOf(readFile(output)), hashOf(original));
    QCOMPARE(hashOf(extractedFile(image, "boot/floppy.img")), hashOf(original));
}

void TstBootImage::aDisketteFileOnAPlainDataDiscIsNoBootImage()
{
    make({});
    QVERIFY(!extract());
    QCOMPARE(debugLines(), QStringList("Invalid boot-record-volume!\n"));
    QVERIFY(!QFile::exists(output));
}

KORVEX_TEST_MAIN(TstBootImage)

#include "tst_bootimage.moc"
