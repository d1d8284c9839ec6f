// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "hybridimage.h"
#include "imagemaker.h"
#include "standins.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QFile>
#include <QFileInfo>

// Making an image of a disc's files: the command line, what is said, and the real tool's image.
class TstHybridImage : public TestCase
{
    Q_OBJECT

private slots:
    void commandLine();
    void largeFilesNeedUdf();
    void largeFileIsFound();
    void imageHoldsTheFiles();
    void existingImageIsReplaced();
    void failureLeavesTheExistingImage();
    void otherFilesAreNotTouched();
    void refused_data();
    void refused();
    void labelIsThatOfTheDisc();
    void labelOfAnUnmountedFolderIsItsName();
};

namespace
{

// What making the image says, its exit code last.
QStringList made(const QString& image, const QString& folder)
{
    int code = -1;
    const QStringList lines =
        spokenLines([&] { code = makeHybridImage(image, folder, ProgressTeller(0)); });
    return lines + QStringList(QString::number(code));
}

} // namespace

void TstHybridImage::commandLine()
{
    QCOMPARE(hybridArguments("/o/x.iso", "/media/a b", QString(40, 'L'), false),
             QStringList({"-gui", "-iso-level", "3", "-r", "-J", "-joliet-long", "-input-charset",
                          "utf-8", "-V", QString(32, 'L'), "-o", "/o/x.iso", "/media/a b"}));
}

void TstHybridImage::largeFilesNeedUdf()
{
    QCOMPARE(hybridArguments("/o/x.iso", "/m", "L", true).mid(10),
             QStringList({"-udf", "-allow-limited-size", "-o", "/o/x.iso", "/m"}));
}

void TstHybridImage::largeFileIsFound()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath("sub/.hidden"), "x");
    QVERIFY(!holdsLargeFile(folder.path()));
    // Sparse.
    QVERIFY(QFile::resize(folder.filePath("sub/.hidden"), (1LL << 32) - 2048));
    QVERIFY(!holdsLargeFile(folder.path()));
    QVERIFY(QFile::resize(folder.filePath("sub/.hidden"), 1LL << 32));
    QVERIFY(holdsLargeFile(folder.path()));
}

void TstHybridImage::imageHoldsTheFiles()
{
    const QTemporaryDir folder;
    const QString source = folder.filePath("My Disc");
    writeRandomFile(source + "/a b.bin", 6'000'000, 1);
    writeRandomFile(source + QString::fromUtf8("/sub folder/\u00e9\u5149 \"q\".bin"), 3'000'000, 2);
    writeFile(source + "/sub folder/deeper/" + QString(90, 'n') + ".txt", "text");
    writeFile(source + "/-option", "");
    const QString image = folder.filePath("an image.iso");
    const QStringList lines = made(image, source);
    QCOMPARE(lines.first(), QString("Creating hybrid image..."));
    QCOMPARE(lines.mid(lines.size() - 2), QStringList({"DRStatusPercentCompleteKey: 1", "0"}));
    const QStringList progress = lines.filter("DRStatusPercentCompleteKey: ");
    QVERIFY(progress.size() > 3);
    double last = 0;
    for (const QString& line : progress) {
        const double part = line.section(' ', 1).toDouble();
        QVERIFY2(part > last, qPrintable(line));
        last = part;
    }
    extractImage(image, folder.filePath("extracted"));
    QCOMPARE(hashesBelow(folder.filePath("extracted")), hashesBelow(source));
    QVERIFY(readFile(image).mid(0x8000, 0x800).contains("My Disc"));
}

void TstHybridImage::existingImageIsReplaced()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath("source/a"), "new");
    writeFile(folder.filePath("x.iso"), QByteArray(10'000'000, 'x'));
    QCOMPARE(made(folder.filePath("x.iso"), folder.filePath("source")).last(), QString("0"));
    QVERIFY(QFile(folder.filePath("x.iso")).size() < 10'000'000);
    QCOMPARE(extractedFile(folder.filePath("x.iso"), "a"), QByteArray("new"));
    QCOMPARE(entriesOf(folder.path()), QStringList({"source", "x.iso"}));
}

void TstHybridImage::failureLeavesTheExistingImage()
{
    const StandIns tools;
    tools.add("mkisofs", "while [ \"$1\" != -o ]; do shift; done; echo half >\"$2\"; "
                         "echo 'mkisofs: Input/output error.' >&2; exit 5");
    writeFile(tools.filePath("source/a"), "new");
    writeFile(tools.filePath("out/x.iso"), "old");
    QCOMPARE(made(tools.filePath("out/x.iso"), tools.filePath("source")),
             QStringList({"Creating hybrid image...",
                          "hdiutil: makehybrid failed - mkisofs: Input/output error.", "1"}));
    QCOMPARE(readFile(tools.filePath("out/x.iso")), QByteArray("old"));
    QCOMPARE(entriesOf(tools.filePath("out")), QStringList("x.iso"));
}

void TstHybridImage::otherFilesAreNotTouched()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath("source/a"), "new");
    writeFile(folder.filePath("x.iso.unfinished"), "mine");
    QVERIFY(QFile::link("nowhere", folder.filePath("x.iso.unfinished2")));
    QCOMPARE(made(folder.filePath("x.iso"), folder.filePath("source")).last(), QString("0"));
    QCOMPARE(readFile(folder.filePath("x.iso.unfinished")), QByteArray("mine"));
    QCOMPARE(QFile::symLinkTarget(folder.filePath("x.iso.unfinished2")),
             folder.filePath("nowhere"));
    QCOMPARE(extractedFile(folder.filePath("x.iso"), "a"), QByteArray("new"));
    QVERIFY(!QFile::exists(folder.filePath("x.iso.unfinished3")));
}

void TstHybridImage::refused_data()
{
    QTest::addColumn<QString>("image");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("reason");
    QTest::newRow("disc that is not mounted") << "x.iso"
                                              << ""
                                              << "No such file or directory";
    QTest::newRow("missing folder") << "x.iso"
                                    << "missing"
                                    << "No such file or directory";
    QTest::newRow("no image") << ""
                              << "source"
                              << "Is a directory";
    QTest::newRow("folder as image") << "source"
                                     << "source"
                                     << "Is a directory";
    QTest::newRow("image in its source") << "source/x.iso"
                                         << "source"
                                         << "The image lies inside of what it is made of";
}

void TstHybridImage::refused()
{
    QFETCH(QString, image);
    QFETCH(QString, source);
    QFETCH(QString, reason);
    const StandIns tools;
    tools.add("mkisofs");
    writeFile(tools.filePath("source/a"), "x");
    QCOMPARE(made(image.isEmpty() ? image : tools.filePath(image),
                  source.isEmpty() ? source : tools.filePath(source)),
             QStringList({"hdiutil: makehybrid failed - " + reason, "1"}));
    QCOMPARE(tools.calls(), QStringList());
}

void TstHybridImage::labelIsThatOfTheDisc()
{
    const StandIns tools;
    tools.add("lsblk", "echo '{\"blockdevices\":[{\"path\":\"/dev/sr0\",\"label\":\"MY DISC\"}]}'");
    writeFile(tools.filePath("folder/x"), "x");
    const QString path = QFileInfo(tools.filePath("folder")).canonicalFilePath();
    QCOMPARE(volumeLabelOf(path + '/', {{"/dev/sr0", path, "udf", {}}}), QString("MY DISC"));
    QVERIFY(tools.calls().first().endsWith("|--|/dev/sr0"));
    tools.add("lsblk", "echo '{\"blockdevices\":[{\"path\":\"/dev/sr0\",\"label\":null}]}'");
    QCOMPARE(volumeLabelOf(path, {{"/dev/sr0", path, "udf", {}}}), QString("folder"));
}

void TstHybridImage::labelOfAnUnmountedFolderIsItsName()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath("A folder/x"), "x");
    QCOMPARE(volumeLabelOf(folder.filePath("A folder"), {}), QString("A folder"));
    QCOMPARE(volumeLabelOf(folder.filePath("A folder/"), {}), QString("A folder"));
}

KORVEX_TEST_MAIN(TstHybridImage)

#include "tst_hybridimage.moc"
