// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "request.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QDir>
#include <QTemporaryDir>

// What mkbootable is asked, where it mounts, and the command lines it makes of that.
class TstBootRequest : public TestCase
{
    Q_OBJECT

private slots:
    void arguments_data();
    void arguments();
    void refusedArguments_data();
    void refusedArguments();
    void systemFolders_data();
    void systemFolders();
    void absentFolderIsTaken();
    void emptyFolderIsTaken();
    void folderWithFilesIsRefused();
    void folderWithAHiddenFileIsRefused();
    void folderOfThePartitionIsTaken();
    void fileIsRefused();
    void linkIntoTheSystemIsRefused();
    void linkThatLeadsNowhereIsRefused();
    void mountPointsAreTold();
    void commandLines();
    void leadingDashIsNoSwitch();
};

namespace
{

// The platform's folder for temporary files may lie where no medium is mounted.
const QString placeForMedia = QStringLiteral("/tmp/tst_bootrequest-XXXXXX");

QString mountRefusal(const QString& mountPoint, const QStringList& mounted = {})
{
    BlockDevice partition;
    partition.path = "/dev/sdb1";
    partition.mountPoints = mounted;
    return mountPointRefusal(mountPoint, partition);
}

} // namespace

void TstBootRequest::arguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("mountPoint");
    QTest::newRow("one word") << QStringList{"/dev/sdb", "/media/user/STICK"}
                              << "/media/user/STICK";
    QTest::newRow("label with blanks")
        << QStringList{"/dev/sdb", "/media/user/MY", "USB", "STICK"} << "/media/user/MY USB STICK";
    QTest::newRow("quoted by the shell")
        << QStringList{"/dev/sdb", "/media/user/MY  STICK"} << "/media/user/MY  STICK";
    QTest::newRow("dash in the label")
        << QStringList{"/dev/sdb", "/media/user/A", "-x", "--"} << "/media/user/A -x --";
    QTest::newRow("Unicode") << QStringList{"/dev/sdb", QString::fromUtf8("/media/u/\u00c4\u4e2d")}
                             << QString::fromUtf8("/media/u/\u00c4\u4e2d");
}

void TstBootRequest::arguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, mountPoint);
    const Request request = readRequest(arguments);
    QCOMPARE(request.error, QString());
    QCOMPARE(request.disk, QString("/dev/sdb"));
    QCOMPARE(request.mountPoint, mountPoint);
}

void TstBootRequest::refusedArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("part");
    QTest::newRow("none") << QStringList{} << "Usage: ";
    QTest::newRow("no disk") << QStringList{"", "/media/user/X"} << "Usage: ";
    QTest::newRow("file as disk") << QStringList{"/home/user/disk.img", "/media/x"} << "Usage: ";
    QTest::newRow("switch") << QStringList{"--help", "/media/x"} << "Usage: ";
    QTest::newRow("no mount point") << QStringList{"/dev/sdb"} << "No mount point was named";
    QTest::newRow("empty mount point") << QStringList{"/dev/sdb", ""} << "No mount point was named";
    QTest::newRow("relative") << QStringList{"/dev/sdb", "media/x"} << "is no absolute path";
    QTest::newRow("blanks only") << QStringList{"/dev/sdb", "", ""} << "is no absolute path";
    QTest::newRow("line feed") << QStringList{"/dev/sdb", "/media/a\nb"} << "control character";
    QTest::newRow("zero in the disk")
        << QStringList{"/dev/s\tb", "/media/a"} << "control character";
}

void TstBootRequest::refusedArguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, part);
    const QString error = readRequest(arguments).error;
    QVERIFY2(error.contains(part), qPrintable(error));
}

void TstBootRequest::systemFolders_data()
{
    QTest::addColumn<QString>("folder");
    for (const char* folder :
         {"/", "/usr", "/home", "/home/user", "/etc", "/boot", "/root", "/media", "/media/", "/tmp",
          "/media/../etc", "/tmp/../usr/lib", "/media/x/../../var"})
        QTest::newRow(folder) << folder;
}

void TstBootRequest::systemFolders()
{
    QFETCH(QString, folder);
    QVERIFY(mountRefusal(folder).endsWith("is no place to mount a USB disk at"));
    // Not even where the system says that the partition is there already.
    QVERIFY(mountRefusal(folder, {folder}).endsWith("is no place to mount a USB disk at"));
}

void TstBootRequest::absentFolderIsTaken()
{
    const QTemporaryDir folder(placeForMedia);
    QCOMPARE(mountRefusal(folder.filePath("user/MY STICK")), QString());
    QCOMPARE(mountRefusal("/media/nobody of that name/MY STICK"), QString());
}

void TstBootRequest::emptyFolderIsTaken()
{
    const QTemporaryDir folder(placeForMedia);
    QCOMPARE(mountRefusal(folder.path()), QString());
}

void TstBootRequest::folderWithFilesIsRefused()
{
    const QTemporaryDir folder(placeForMedia);
    QVERIFY(QDir(folder.path()).mkdir("sub"));
    QVERIFY(mountRefusal(folder.path()).endsWith("is a folder with files in it"));
}

void TstBootRequest::folderWithAHiddenFileIsRefused()
{
    const QTemporaryDir folder(placeForMedia);
    writeFile(folder.filePath(".hidden"), "x");
    QVERIFY(mountRefusal(folder.path()).endsWith("is a folder with files in it"));
}

void TstBootRequest::folderOfThePartitionIsTaken()
{
    const QTemporaryDir folder(placeForMedia);
    writeFile(folder.filePath("file"), "x");
    QCOMPARE(mountRefusal(folder.path(), {"/elsewhere", folder.path()}), QString());
    QCOMPARE(mountRefusal(folder.path() + "/", {folder.path()}), QString());
    QVERIFY(!mountRefusal(folder.path(), {folder.path() + "x"}).isEmpty());
}

void TstBootRequest::fileIsRefused()
{
    const QTemporaryDir folder(placeForMedia);
    writeFile(folder.filePath("file"), "x");
    QVERIFY(mountRefusal(folder.filePath("file")).endsWith("is no folder"));
}

void TstBootRequest::linkIntoTheSystemIsRefused()
{
    const QTemporaryDir folder(placeForMedia);
    QVERIFY(QFile::link("/usr", folder.filePath("link")));
    QVERIFY(!mountRefusal(folder.filePath("link")).isEmpty());
    QVERIFY(mountRefusal(folder.filePath("link/absent")).endsWith("to mount a USB disk at"));
    QVERIFY(mountRefusal(folder.filePath("link/lib")).endsWith("to mount a USB disk at"));
}

void TstBootRequest::linkThatLeadsNowhereIsRefused()
{
    const QTemporaryDir folder(placeForMedia);
    QVERIFY(QFile::link("/etc/not there yet", folder.filePath("link")));
    QVERIFY(mountRefusal(folder.filePath("link")).endsWith("to mount a USB disk at"));
    QVERIFY(mountRefusal(folder.filePath("link/x")).endsWith("to mount a USB disk at"));
}

void TstBootRequest::mountPointsAreTold()
{
    const QTemporaryDir folder(placeForMedia);
    QVERIFY(isMountPoint("/"));
    QVERIFY(isMountPoint("/proc"));
    QVERIFY(!isMountPoint(folder.path()));
    QVERIFY(!isMountPoint(folder.filePath("absent")));
}

void TstBootRequest::commandLines()
{
    QCOMPARE(unmountArguments("/media/user/MY STICK"), QStringList({"--", "/media/user/MY STICK"}));
    QCOMPARE(syncArguments("/media/user/X"), QStringList({"--file-system", "--", "/media/user/X"}));
    QCOMPARE(installArguments("/dev/sdb1"), QStringList({"--install", "/dev/sdb1"}));
    QCOMPARE(mountArguments("/dev/sdb1", "/media/user/MY STICK", 1000, 1001),
             QStringList({"-t", "vfat", "-o",
                          "rw,nosuid,nodev,uid=1000,gid=1001,fmask=0022,dmask=0022,utf8,flush",
                          "--", "/dev/sdb1", "/media/user/MY STICK"}));
}

void TstBootRequest::leadingDashIsNoSwitch()
{
    QCOMPARE(serviceMountArguments("/dev/sdb1", 1000, 1001),
             QStringList({"--reuid=1000", "--regid=1001", "--init-groups", "--", "udisksctl",
                          "mount", "--no-user-interaction", "--block-device", "/dev/sdb1"}));
    QCOMPARE(unmountArguments("-a").first(), QString("--"));
    QCOMPARE(mountArguments("-a", "-b", 0, 0).indexOf("--"), 4);
}

KORVEX_TEST_MAIN(TstBootRequest)
#include "tst_bootrequest.moc"
