// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskutilinfo.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// Reading what "diskutil info" prints, from captured texts and from what may be made of them.
class TstDiskutilInfo : public TestCase
{
    Q_OBJECT

private slots:
    void capturedText_data();
    void capturedText();
    void size_data();
    void size();
    void mountPoint_data();
    void mountPoint();
    void everyCutTextIsReadWithoutHarm();
};

namespace
{

QString captured(const QString& name)
{
    return QString::fromUtf8(readFile(KORVEX_TEST_DATA "/diskutil/info-" + name + ".txt"));
}

} // namespace

void TstDiskutilInfo::capturedText_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<QString>("mountPoint");

    QTest::newRow("whole-stick-macos11") << 31914983424LL << "";
    QTest::newRow("mounted-partition-macos11") << 62533926912LL << "/Volumes/SETUPWIZ";
    QTest::newRow("fixed-hard-disk-macos10.12") << 500107862016LL << "";
    QTest::newRow("card-reader-reconstructed") << 15635841024LL << "";
    QTest::newRow("internal-ssd-macos12") << 251000193024LL << "";
    QTest::newRow("optical-dvd-macos11") << 1561296896LL << "/Volumes/Untitled";
    QTest::newRow("unmounted-partition-macos10.15") << 149732458496LL << "";
    // Old systems call the size otherwise, which is not read.
    QTest::newRow("old-labels-macos10.5") << 0LL << "/Volumes/NO NAME";
    QTest::newRow("old-labels-tail-macos10.11") << 0LL << "";
}

void TstDiskutilInfo::capturedText()
{
    const QString text = captured(QTest::currentDataTag());
    QVERIFY(!text.isEmpty());
    QTEST(diskSizeOf(text), "size");
    QTEST(mountPointOf(text), "mountPoint");
}

void TstDiskutilInfo::size_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("bytes");

    QTest::newRow("nothing") << "" << 0LL;
    QTest::newRow("other text") << "Could not find disk: disk9\n" << 0LL;
    QTest::newRow("sectors of a CD")
        << "   Disk Size:  310.6 MB (310635696 Bytes) (606710 512-Byte-Units + 176 Byte(s))"
        << 310635696LL;
    QTest::newRow("zero") << "Disk Size: 0 B (0 Bytes) (exactly 0 512-Byte-Units)" << 0LL;
    QTest::newRow("blanks inside") << "Disk Size: x (   42   Bytes)" << 42LL;
    QTest::newRow("last parenthesis before the count") << "Disk Size: (about) (42 Bytes)" << 42LL;
    QTest::newRow("no parenthesis") << "Disk Size: 42 Bytes)" << 0LL;
    QTest::newRow("parenthesis at the line's start") << "(42 Bytes) Disk Size:" << 0LL;
    QTest::newRow("no number") << "Disk Size: x (many Bytes)" << 0LL;
    QTest::newRow("grouped number is none") << "Disk Size: x (1,024 Bytes)" << 0LL;
    QTest::newRow("only the word") << "Disk Size:\nx (42 Bytes)" << 0LL;
    QTest::newRow("another size") << "Total Size: x (42 Bytes)" << 0LL;
    QTest::newRow("case counts") << "disk size: x (42 Bytes)\nDisk Size: x (42 bytes)" << 0LL;
    QTest::newRow("first line that names it")
        << "Disk Size: 1 Bytes)\nDisk Size: x (2 Bytes)\nDisk Size: x (3 Bytes)" << 2LL;
    QTest::newRow("carriage returns") << "a\r\nDisk Size: x (42 Bytes)\r\nb" << 42LL;
    QTest::newRow("beyond 64 bits") << "Disk Size: x (99999999999999999999 Bytes)" << 0LL;
}

void TstDiskutilInfo::size()
{
    QFETCH(QString, text);
    QTEST(diskSizeOf(text), "bytes");
}

void TstDiskutilInfo::mountPoint_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("path");

    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("blanks inside") << "   Mount Point:  /Volumes/MY DISC 1"
                                   << "/Volumes/MY DISC 1";
    QTest::newRow("blanks at the end are not kept") << "Mount Point:  /Volumes/X  \r"
                                                    << "/Volumes/X";
    QTest::newRow("unicode") << QString::fromUtf8("Mount Point: /Volumes/光盘 e\u0301")
                             << QString::fromUtf8("/Volumes/光盘 e\u0301");
    QTest::newRow("root") << "Mount Point:              /"
                          << "/";
    QTest::newRow("not mounted") << "   Mount Point:              Not applicable"
                                 << "";
    QTest::newRow("case counts") << "Mount point: /Volumes/X"
                                 << "";
    QTest::newRow("path at the line's start") << "/Volumes/X Mount Point:"
                                              << "";
    QTest::newRow("colons and slashes inside") << "Mount Point: /Volumes/a:b/c"
                                               << "/Volumes/a:b/c";
    QTest::newRow("first line that names it")
        << "Mount Point: none\nMount Point: /a\nMount Point: /b"
        << "/a";
    QTest::newRow("free text without a key")
        << "   This disk is an APFS Volume.  APFS Information:\nMount Point: /a"
        << "/a";
}

void TstDiskutilInfo::mountPoint()
{
    QFETCH(QString, text);
    QTEST(mountPointOf(text), "path");
}

// A text that breaks off never gives another value than a part of the right one.
void TstDiskutilInfo::everyCutTextIsReadWithoutHarm()
{
    const QString text = captured("mounted-partition-macos11");
    for (int length = 0; length <= text.size(); ++length) {
        const QString cut = text.left(length);
        const qint64 bytes = diskSizeOf(cut);
        QVERIFY2(bytes == 0 || bytes == 62533926912, qPrintable(cut));
        QVERIFY(QString("/Volumes/SETUPWIZ").startsWith(mountPointOf(cut)));
    }
}

KORVEX_TEST_MAIN(TstDiskutilInfo)

#include "tst_diskutilinfo.moc"
