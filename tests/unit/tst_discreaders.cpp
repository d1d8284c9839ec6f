// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "discburncommand.h"
#include "discprogress.h"
#include "imagemount.h"
#include "mounttable.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QProcess>

// What the disk image tool is asked for and what it and the mount table tell.
class TstDiscReaders : public TestCase
{
    Q_OBJECT

private slots:
    void progress_data();
    void progress();
    void capturedProgress_data();
    void capturedProgress();
    void mountPointInTable_data();
    void mountPointInTable();
    void capturedTable_data();
    void capturedTable();
    void mountedImage_data();
    void mountedImage();
    void capturedMount_data();
    void capturedMount();
    void mountCommandHandsOverThePath_data();
    void mountCommandHandsOverThePath();
    void commands();
};

namespace
{

QString captured(const QString& path)
{
    return QString::fromUtf8(readFile(KORVEX_TEST_DATA + ('/' + path) + ".txt"));
}

} // namespace

void TstDiscReaders::progress_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("percent");
    const int none = -1;

    QTest::newRow("half") << "DRStatusPercentCompleteKey: 0.5\n" << 50;
    QTest::newRow("truncated") << "DRStatusPercentCompleteKey: 0.999\r\n" << 99;
    QTest::newRow("all") << "DRStatusPercentCompleteKey: 1" << 100;
    QTest::newRow("no blank") << "DRStatusPercentCompleteKey:0.25" << 25;
    QTest::newRow("indented") << "   DRStatusPercentCompleteKey: 0.25" << 25;
    QTest::newRow("exponent") << "DRStatusPercentCompleteKey: 5e-1" << 50;
    QTest::newRow("below a percent") << "DRStatusPercentCompleteKey: 0.001" << 0;
    QTest::newRow("nothing yet changes nothing") << "DRStatusPercentCompleteKey: 0" << none;
    QTest::newRow("preparing") << "DRStatusPercentCompleteKey: -1" << none;
    QTest::newRow("no number") << "DRStatusPercentCompleteKey: soon" << none;
    QTest::newRow("decimal comma") << "DRStatusPercentCompleteKey: 0,5" << none;
    QTest::newRow("empty") << "DRStatusPercentCompleteKey:" << none;
    QTest::newRow("without the colon") << "DRStatusPercentCompleteKey 0.5" << none;
    QTest::newRow("other case") << "drstatuspercentcompletekey: 0.5" << none;
    QTest::newRow("other key") << "DRStatusStateKey: 0.5" << none;
    QTest::newRow("not a number") << "DRStatusPercentCompleteKey: nan" << none;
    QTest::newRow("infinite") << "DRStatusPercentCompleteKey: inf" << none;
    QTest::newRow("huge") << "DRStatusPercentCompleteKey: 1e300" << none;
    QTest::newRow("no line") << QString() << none;
}

void TstDiscReaders::progress()
{
    QFETCH(QString, line);
    QTEST(readDiscProgress(line, 100).value_or(-1), "percent");
}

void TstDiscReaders::capturedProgress_data()
{
    QTest::addColumn<QList<int>>("hundredths");

    QTest::newRow("hdiutil/burn-progress-reconstructed") << QList<int>{1234, 10000};
    QTest::newRow("hdiutil/makehybrid-debug-reconstructed") << QList<int>{823, 5176, 10000};
    for (const char* const silent :
         {"hdiutil/burn-german", "hdiutil/burn-macos10.15", "hdiutil/burn-medium-error",
          "hdiutil/burn-puppetstrings", "hdiutil/burn-verbose-beginning", "hdiutil/makehybrid"})
        QTest::newRow(silent) << QList<int>();
}

void TstDiscReaders::capturedProgress()
{
    const QString text = captured(QTest::currentDataTag());
    QVERIFY(!text.isEmpty());
    QList<int> hundredths;
    for (const QString& line : text.split('\n')) {
        if (const auto done = readDiscProgress(line, 10000))
            hundredths.append(*done);
    }
    QTEST(hundredths, "hundredths");
}

void TstDiscReaders::mountPointInTable_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("isFound");
    QTest::addColumn<QString>("mountPoint");

    QTest::newRow("disc") << "/dev/disk3 on /Volumes/DISC (cd9660, local)" << true
                          << "/Volumes/DISC";
    QTest::newRow("blanks are kept")
        << "/dev/disk3 on /Volumes/My  Disc (udf)" << true << "/Volumes/My  Disc";
    QTest::newRow("a partition of it")
        << "/dev/disk3s1 on /Volumes/PART (hfs)" << true << "/Volumes/PART";
    QTest::newRow("a disk whose name goes on")
        << "/dev/disk30 on /Volumes/X (hfs)" << true << "/Volumes/X";
    QTest::newRow("another disk") << "/dev/disk4 on /Volumes/DISC (udf)" << false << QString();
    QTest::newRow("not at the start") << " /dev/disk3 on /Volumes/DISC (udf)" << false << QString();
    QTest::newRow("up to the first parenthesis")
        << "/dev/disk3 on /Volumes/My Disc (on) (udf)" << true << "/Volumes/My Disc";
    // Then the last character does not belong to it.
    QTest::newRow("no options") << "/dev/disk3 on /Volumes/DISCx" << true << "/Volumes/DISC";
    QTest::newRow("no mount point") << "/dev/disk3 on nothing (udf)" << false << QString();
    QTest::newRow("nothing else") << "/dev/disk3" << false << QString();
    QTest::newRow("empty") << QString() << false << QString();
}

void TstDiscReaders::mountPointInTable()
{
    QFETCH(QString, line);
    QFETCH(bool, isFound);
    const auto mountPoint = mountPointInLine(line, "/dev/disk3");
    QCOMPARE(mountPoint.has_value(), isFound);
    QTEST(mountPoint.value_or(QString()), "mountPoint");
}

void TstDiscReaders::capturedTable_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QStringList>("mountPoints");

    QTest::newRow("mount/mount-optical-discs")
        << "/dev/disk4"
        << QStringList{"/Volumes/MEGADRIVE_GAME_SPECIAL", "/Volumes/Ecco: The Tides Of Time",
                       "/Volumes/PLANET51"};
    QTest::newRow("mount/mount-word-on-in-name")
        << "/dev/disk3" << QStringList{"/Volumes/OpenZFS on OS X 1.6.1"};
    QTest::newRow("mount/mount-parentheses-in-name")
        << "/dev/disk4" << QStringList{"/Volumes/My Disc"};
    QTest::newRow("mount/mount-fskit-macos15") << "/dev/disk6" << QStringList{"/Volumes/MIC CARD"};
    QTest::newRow("mount/mount-system-and-image-macos10.15")
        << "/dev/disk2" << QStringList{"/Volumes/GuestAirMedia"};
}

void TstDiscReaders::capturedTable()
{
    QFETCH(QString, device);
    const QString text = captured(QTest::currentDataTag());
    QVERIFY(!text.isEmpty());
    QStringList mountPoints;
    for (const QString& line : text.split('\n')) {
        if (const auto mountPoint = mountPointInLine(line, device))
            mountPoints.append(*mountPoint);
    }
    QTEST(mountPoints, "mountPoints");
}

void TstDiscReaders::mountedImage_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<bool>("isMounted");
    QTest::addColumn<QString>("mountPoint");

    QTest::newRow("plain") << "/dev/disk3 \t \t/Volumes/WIN\n" << true << "/Volumes/WIN";
    QTest::newRow("blanks are lost") << "/dev/disk3 \t \t/Volumes/My Image\n"
                                     << true << "/Volumes/MyImage";
    QTest::newRow("carriage return") << "a\tb\t/v\r\n" << true << "/v";
    QTest::newRow("two fields") << "/dev/disk3 \t/Volumes/WIN\n" << false << QString();
    QTest::newRow("nothing") << QString() << false << QString();
    QTest::newRow("empty third") << "a\tb\t\n" << true << "";
}

void TstDiscReaders::mountedImage()
{
    QFETCH(QString, output);
    QFETCH(bool, isMounted);
    const auto mountPoint = imageMountPointOf(output);
    QCOMPARE(mountPoint.has_value(), isMounted);
    QTEST(mountPoint.value_or(QString()), "mountPoint");
}

void TstDiscReaders::capturedMount_data()
{
    QTest::addColumn<QString>("mountPoint");

    QTest::newRow("hdiutil/mount-plain-iso") << "/Volumes/sample";
    QTest::newRow("hdiutil/mount-given-mount-point-macos10.11")
        << "/Users/user/Downloads/work/source";
    QTest::newRow("hdiutil/mount-blanks-in-name") << "/Volumes/taiOSBOOT";
    // Where the first line has no volume, the next line's device is taken in its place: an image
    // with partitions is not looked into.
    QTest::newRow("hdiutil/mount-blanks-in-partition-name") << "/dev/disk1s1";
    QTest::newRow("hdiutil/mount-apple-partitions-unmounted") << "/dev/disk4s1";
    QTest::newRow("hdiutil/mount-isohybrid-unmounted") << "/dev/disk3s2";
    QTest::newRow("hdiutil/mount-mbr-one-volume") << "/dev/disk2s1";
    QTest::newRow("hdiutil/mount-nothing-mountable") << "/dev/disk4s1";
    QTest::newRow("hdiutil/mount-truncated-guids") << "/dev/disk5s1";
    QTest::newRow("hdiutil/mount-errors") << "none";
}

void TstDiscReaders::capturedMount()
{
    const QString text = captured(QTest::currentDataTag());
    QVERIFY(!text.isEmpty());
    QTEST(imageMountPointOf(text).value_or("none"), "mountPoint");
}

void TstDiscReaders::mountCommandHandsOverThePath_data()
{
    QTest::addColumn<QString>("path");

    for (const QString path : {"/a.iso", "/a  b/c d.iso", "/a/\"b\".iso", "\"", "/it's.iso",
                               "/\u00e9\u4e2d.iso", "/a\\b.iso", "/tab\there.iso"})
        QTest::newRow(qPrintable(path)) << path;
}

void TstDiscReaders::mountCommandHandsOverThePath()
{
    QFETCH(QString, path);
    QCOMPARE(QProcess::splitCommand(mountImageCommand(path)),
             (QStringList{"hdiutil", "mount", path}));
}

void TstDiscReaders::commands()
{
    QCOMPARE(mountImageCommand("/a b.iso"), QString("hdiutil mount \"/a b.iso\""));
    QCOMPARE(unmountImageCommand("/Volumes/WIN"), QString("hdiutil unmount/Volumes/WIN"));
    QCOMPARE(forceUnmountImageCommand("/Volumes/WIN"),
             QString("hdiutil unmount -force /Volumes/WIN"));
    QCOMPARE(discImageProgram(), QString("hdiutil"));
    QCOMPARE(burnDiscArguments("/a b.iso"),
             (QStringList{"burn", "-verbose", "-noverifyburn", "/a b.iso"}));
    QCOMPARE(imageOfDiscArguments("/o.iso", "/Volumes/My Disc"),
             (QStringList{"makehybrid", "-iso", "-joliet", "-debug", "-ov", "-o", "/o.iso",
                          "/Volumes/My Disc"}));
    QCOMPARE(ejectDiscArguments("/dev/disk3"), (QStringList{"eject", "/dev/disk3"}));
}

KORVEX_TEST_MAIN(TstDiscReaders)
#include "tst_discreaders.moc"
