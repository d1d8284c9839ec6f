// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "discburner.h"
#include "imagemaker.h"
#include "standins.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// Burning: which drive, which command line, what is said, and the real tool writing to a file that
// it takes for a drive.
class TstDiscBurner : public TestCase
{
    Q_OBJECT

private slots:
    void blankDiscIsChosen();
    void noOtherDiscIsChosen();
    void commandLine_data();
    void commandLine();
    void progressIsTold();
    void failureIsTold();
    void imageThatCannotBeBurnt_data();
    void imageThatCannotBeBurnt();
    void realToolWritesTheImage();
    void realToolWithoutADriveFails();
};

namespace
{

OpticalDrive driveOf(const char* device, const char* medium, bool isBlank)
{
    OpticalDrive drive;
    drive.device = device;
    drive.medium = medium;
    drive.isBlank = isBlank;
    return drive;
}

// What burning says, its exit code last.
QStringList burnt(const QString& image, const QString& drive)
{
    int code = -1;
    const QStringList lines =
        spokenLines([&] { code = burnImage(image, drive, ProgressTeller(0)); });
    return lines + QStringList(QString::number(code));
}

} // namespace

void TstDiscBurner::blankDiscIsChosen()
{
    QCOMPARE(
        blankDiscDrive({driveOf("/dev/sr0", "", false), driveOf("/dev/sr1", "DVD-RW", false),
                        driveOf("/dev/sr2", "CD-R", true), driveOf("/dev/sr3", "DVD-R", true)}),
        QString("/dev/sr2"));
}

void TstDiscBurner::noOtherDiscIsChosen()
{
    QCOMPARE(blankDiscDrive({driveOf("/dev/sr0", "DVD+RW", false)}), QString());
    QCOMPARE(blankDiscDrive({}), QString());
}

void TstDiscBurner::commandLine_data()
{
    QTest::addColumn<QString>("image");
    QTest::addColumn<QString>("argument");
    QTest::newRow("plain") << "/a/b.iso"
                           << "/a/b.iso";
    QTest::newRow("blanks and quotes") << "/a b/\"c\" 'd'.iso"
                                       << "/a b/\"c\" 'd'.iso";
    QTest::newRow("option") << "-eject" << QDir::currentPath() + "/-eject";
}

void TstDiscBurner::commandLine()
{
    QFETCH(QString, image);
    QFETCH(QString, argument);
    QCOMPARE(burnArguments(image, "/dev/sr0"),
             QStringList({"-no_rc", "-pacifier", "interval=0.25", "-as", "cdrecord", "-v",
                          "dev=/dev/sr0", "-eject", argument}));
}

void TstDiscBurner::progressIsTold()
{
    const StandIns tools;
    tools.add("xorriso", "echo 'xorriso : UPDATE :    1 of    4 MB written (fifo 99%)' >&2; "
                         "echo 'xorriso : UPDATE :    4 of    4 MB written (fifo 99%)' >&2");
    writeFile(tools.filePath("x.iso"), "x");
    QCOMPARE(
        burnt(tools.filePath("x.iso"), "/dev/sr0"),
        QStringList({"Preparing data for burn", "Opening session", "Opening track", "Writing track",
                     "DRStatusPercentCompleteKey: 0.25", "DRStatusPercentCompleteKey: 0.9999999",
                     "Closing session", "Finishing burn", "DRStatusPercentCompleteKey: 1",
                     "Burn completed successfully", "hdiutil: burn: completed", "0"}));
}

void TstDiscBurner::failureIsTold()
{
    const StandIns tools;
    tools.add("xorriso", "echo 'xorriso : UPDATE :    1 of    4 MB written' >&2; "
                         "echo 'libburn : FAILURE : Medium error' >&2; exit 32");
    writeFile(tools.filePath("x.iso"), "x");
    const QStringList lines = burnt(tools.filePath("x.iso"), "/dev/sr0");
    QCOMPARE(lines.mid(4), QStringList({"DRStatusPercentCompleteKey: 0.25", "Burn failed",
                                        "hdiutil: burn failed - Medium error", "1"}));
}

void TstDiscBurner::imageThatCannotBeBurnt_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "missing.iso"
                             << "No such file or directory";
    QTest::newRow("folder") << "folder"
                            << "No such file or directory";
    QTest::newRow("empty") << "empty.iso"
                           << "The image is empty";
}

void TstDiscBurner::imageThatCannotBeBurnt()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    const StandIns tools;
    tools.add("xorriso");
    writeFile(tools.filePath("empty.iso"), "");
    writeFile(tools.filePath("folder/x"), "");
    QCOMPARE(burnt(tools.filePath(name), "/dev/sr0").mid(1),
             QStringList({"Burn failed", "hdiutil: burn failed - " + reason, "1"}));
    QCOMPARE(tools.calls(), QStringList());
}

void TstDiscBurner::realToolWritesTheImage()
{
    const QTemporaryDir folder;
    writeRandomFile(folder.filePath("source/a b.bin"), 20'000'000, 7);
    const QString image = folder.filePath("-\"an\" image.iso");
    makeImage(folder.filePath("source"), image);
    const QStringList lines = burnt(image, "stdio:" + folder.filePath("drive"));
    QCOMPARE(lines.mid(lines.size() - 4),
             QStringList({"DRStatusPercentCompleteKey: 1", "Burn completed successfully",
                          "hdiutil: burn: completed", "0"}));
    double last = 0;
    for (const QString& line : lines.filter("DRStatusPercentCompleteKey: ")) {
        const double part = line.section(' ', 1).toDouble();
        QVERIFY2(part > last, qPrintable(line));
        last = part;
    }
    const QByteArray written = readFile(image);
    QVERIFY(written.size() > 20'000'000);
    QVERIFY(readFile(folder.filePath("drive")).startsWith(written));
}

void TstDiscBurner::realToolWithoutADriveFails()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath("x.iso"), QByteArray(4096, 'x'));
    const QStringList lines = burnt(folder.filePath("x.iso"), "/dev/no-such-drive");
    QCOMPARE(lines.mid(4, 1), QStringList("Burn failed"));
    QVERIFY(lines[5].contains("/dev/no-such-drive"));
    QCOMPARE(lines.last(), QString("1"));
}

KORVEX_TEST_MAIN(TstDiscBurner)

#include "tst_discburner.moc"
