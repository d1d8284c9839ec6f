// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "awaitresult.h"
#include "foldertest.h"
#include "otherlimit.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"
#include "util.h"

#include <csignal>

// Asking the disk tool: a script stands in for it, or nothing does.
class TstUtilDisk : public FolderTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void missingToolGivesZeroAndNothing();
    void toolInTheCurrentFolderIsNotTaken();
    void toolIsAskedForTheDisk();
    void diskWithBlanksIsSplitUnlessQuoted();
    void textIsUtf8AndEndsAtAZeroByte();
    void failingToolGivesZeroAndNothing();
    void outputReachesTheDebugStream();
    void noisyToolIsReadToItsEnd();
    void toolBeyondItsLimitIsKilledAndItsTextDropped();
    void limitIsHalfAMinute();

private:
    void installTool(const QByteArray& body) { writeScript(folder->filePath("diskutil"), body); }

    QByteArray systemPath;
    QString currentFolder;
};

void TstUtilDisk::init()
{
    FolderTest::init();
    currentFolder = QDir::currentPath();
    systemPath = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder->path()) + ':' + systemPath);
}

void TstUtilDisk::cleanup()
{
    qputenv("PATH", systemPath);
    QDir::setCurrent(currentFolder);
    FolderTest::cleanup();
}

void TstUtilDisk::missingToolGivesZeroAndNothing()
{
    qputenv("PATH", QFile::encodeName(folder->path()));
    QCOMPARE(Util::DiskSpaceTotal("disk2"), qint64(0));
    QCOMPARE(Util::GetMountPoint("disk2s1"), QString());
}

void TstUtilDisk::toolInTheCurrentFolderIsNotTaken()
{
    installTool("echo 'Disk Size: x (42 Bytes)'; echo 'Mount Point: /a'");
    qputenv("PATH", "/missing");
    QVERIFY(QDir::setCurrent(folder->path()));
    QCOMPARE(Util::DiskSpaceTotal("disk2"), qint64(0));
    QCOMPARE(Util::GetMountPoint("disk2s1"), QString());
}

void TstUtilDisk::toolIsAskedForTheDisk()
{
    installTool("printf '%s|' \"$@\" >>\"$0.asked\"\n"
                "/bin/cat '" KORVEX_TEST_DATA "/diskutil/info-mounted-partition-macos11.txt'");
    QCOMPARE(Util::DiskSpaceTotal("/dev/disk6"), qint64(62533926912));
    QCOMPARE(Util::GetMountPoint("disk6s1"), QString("/Volumes/SETUPWIZ"));
    QCOMPARE(readFile(folder->filePath("diskutil.asked")),
             QByteArray("info|/dev/disk6|info|disk6s1|"));
}

void TstUtilDisk::diskWithBlanksIsSplitUnlessQuoted()
{
    installTool("printf '%s|' \"$@\" >>\"$0.asked\"");
    Util::GetMountPoint("a b");
    Util::GetMountPoint("\"c d\"");
    QCOMPARE(readFile(folder->filePath("diskutil.asked")), QByteArray("info|a|b|info|c d|"));
}

void TstUtilDisk::textIsUtf8AndEndsAtAZeroByte()
{
    installTool("printf 'Mount Point: /Volumes/光\\nx\\000\\nDisk Size: x (42 Bytes)\\n'");
    QCOMPARE(Util::GetMountPoint("d"), QString::fromUtf8("/Volumes/光"));
    QCOMPARE(Util::DiskSpaceTotal("d"), qint64(0));
}

void TstUtilDisk::failingToolGivesZeroAndNothing()
{
    installTool("echo 'Disk Size: x (42 Bytes) Mount Point: /a' >&2; exit 1");
    QCOMPARE(Util::DiskSpaceTotal("d"), qint64(0));
    QCOMPARE(Util::GetMountPoint("d"), QString());
}

void TstUtilDisk::outputReachesTheDebugStream()
{
    installTool("echo 'some text'");
    Util::DiskSpaceTotal("d");
    QCOMPARE(debugLines().filter("some text").size(), 1);
}

void TstUtilDisk::noisyToolIsReadToItsEnd()
{
    installTool("/usr/bin/head -c 3000000 /dev/zero | /usr/bin/tr '\\0' 'x' | /usr/bin/tee "
                "/dev/stderr\necho; echo 'Disk Size: x (42 Bytes)'");
    QCOMPARE(Util::DiskSpaceTotal("d"), qint64(42));
}

void TstUtilDisk::toolBeyondItsLimitIsKilledAndItsTextDropped()
{
    installTool("trap '' TERM HUP INT\necho 'Disk Size: x (42 Bytes)'\n"
                "echo $$ >\"$0.id\"; exec /bin/sleep 600");
    const QString idFile = folder->filePath("diskutil.id");
    const int limit = toolLimits().answerMs;
    // The time is over as soon as the tool hangs.
    const Trigger overdue([&idFile] { return readFile(idFile).endsWith('\n'); },
                          [] { toolLimits().answerMs = 0; });
    const qint64 size = awaitResult([] { return Util::DiskSpaceTotal("d"); });
    toolLimits().answerMs = limit;
    QCOMPARE(size, qint64(0));
    const int id = readFile(idFile).trimmed().toInt();
    QVERIFY(id > 1);
    QCOMPARE(::kill(id, 0), -1);
    QCOMPARE(errno, ESRCH);
}

void TstUtilDisk::limitIsHalfAMinute()
{
    QCOMPARE(toolLimits().answerMs.load(), 30000);
}

KORVEX_TEST_MAIN(TstUtilDisk)

#include "tst_util_disk.moc"
