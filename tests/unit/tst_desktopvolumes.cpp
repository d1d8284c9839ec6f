// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "desktopvolumes.h"
#include "diskservice.h"
#include "mountedvolumes.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QFileInfo>

// What is asked of the desktop's disk service for those who are not root, and how its answers are
// taken, against a stand-in on a bus of its own.
class TstDesktopVolumes : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void imageIsMountedReadOnly();
    void pathWithBlanksGetsALink();
    void fileSystemMayAppearLate();
    void imageThatHoldsNoneIsReleased();
    void refusalIsPassedOn();
    void missingImage();
    void imageIsUnmountedByItsPath_data();
    void imageIsUnmountedByItsPath();
    void linkIsRemovedWithItsImage();
    void linkStaysWhenUnmountingFails();
    void diskBecomesOneVolume();
    void failedTableIsTheEnd();
    void unknownDevice();
    void partitionIsMountedByTheDesktop();
    void mountedByTheDesktopAlready();
    void discIsEjected();
    void noServiceIsAFailure();

private:
    // The calls without the look-ups of devices.
    QStringList changes() const;

    std::unique_ptr<DiskService> service;
    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<DesktopVolumes> volumes;
};

namespace
{

const QStringList tooEarly{"org.freedesktop.DBus.Error.UnknownMethod",
                           "org.freedesktop.DBus.Error.UnknownObject",
                           "org.freedesktop.DBus.Error.UnknownInterface"};
const QString notAuthorized = "org.freedesktop.UDisks2.Error.NotAuthorizedDismissed";
const QString says = "the service says no";

} // namespace

void TstDesktopVolumes::init()
{
    TestCase::init();
    service = std::make_unique<DiskService>();
    folder = std::make_unique<QTemporaryDir>();
    volumes =
        std::make_unique<DesktopVolumes>(QDBusConnection::sessionBus(), folder->filePath("links"));
    writeFile(folder->filePath("x.iso"), "content");
}

void TstDesktopVolumes::cleanup()
{
    volumes.reset();
    service.reset();
    TestCase::cleanup();
}

QStringList TstDesktopVolumes::changes() const
{
    QStringList found;
    for (const QString& call : service->calls())
        if (!call.startsWith("Manager Manager.ResolveDevice"))
            found << call;
    return found;
}

void TstDesktopVolumes::imageIsMountedReadOnly()
{
    const MountResult result = volumes->mountImage(folder->filePath("x.iso"));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.device, QString("/dev/loop3"));
    QCOMPARE(result.path, QString("/media/user/X"));
    QCOMPARE(service->receivedFile(), QByteArray("content"));
    QCOMPARE(changes(),
             QStringList({"Manager Manager.LoopSetup file, {no-part-scan=true read-only=true}",
                          "block_devices/loop3 Filesystem.Mount {options=ro}",
                          "block_devices/loop3 Loop.SetAutoclear true, {}"}));
}

void TstDesktopVolumes::pathWithBlanksGetsALink()
{
    QVERIFY(QDir().mkpath(folder->filePath("My Image\t1")));
    service->setMountPath(folder->filePath("My Image\t1"));
    for (int time = 0; time < 2; ++time) {
        const MountResult result = volumes->mountImage(folder->filePath("x.iso"));
        QCOMPARE(result.path, folder->filePath("links/loop3"));
        QCOMPARE(QFileInfo(result.path).symLinkTarget(), folder->filePath("My Image\t1"));
    }
}

void TstDesktopVolumes::fileSystemMayAppearLate()
{
    volumes->setPatience(60'000);
    service->fail("Mount", tooEarly);
    QCOMPARE(volumes->mountImage(folder->filePath("x.iso")).error, QString());
    QCOMPARE(changes().filter("Filesystem.Mount").size(), tooEarly.size() + 1);
}

void TstDesktopVolumes::imageThatHoldsNoneIsReleased()
{
    volumes->setPatience(1);
    service->fail("Mount", tooEarly + tooEarly + tooEarly);
    QCOMPARE(volumes->mountImage(folder->filePath("x.iso")).error, says);
    QCOMPARE(changes().last(), QString("block_devices/loop3 Loop.Delete {}"));
}

void TstDesktopVolumes::refusalIsPassedOn()
{
    service->fail("LoopSetup", {notAuthorized});
    QCOMPARE(volumes->mountImage(folder->filePath("x.iso")).error, says);
    QCOMPARE(changes().size(), 1);
}

void TstDesktopVolumes::missingImage()
{
    QVERIFY(!volumes->mountImage(folder->filePath("missing.iso")).error.isEmpty());
    QCOMPARE(service->calls(), QStringList());
}

void TstDesktopVolumes::imageIsUnmountedByItsPath_data()
{
    QTest::addColumn<bool>("force");
    QTest::addColumn<QString>("call");
    QTest::newRow("plain") << false << "Filesystem.Unmount {}";
    QTest::newRow("forced") << true << "Filesystem.Unmount {force=true}";
}

void TstDesktopVolumes::imageIsUnmountedByItsPath()
{
    QFETCH(bool, force);
    QFETCH(QString, call);
    // Something that is mounted on every machine.
    QCOMPARE(volumes->unmountImage("/proc", force), QString());
    QCOMPARE(changes(), QStringList("block_devices/proc " + call));
    QCOMPARE(volumes->unmountImage("/proc/no-such-folder", force),
             QString("Nothing is mounted at /proc/no-such-folder"));
    QCOMPARE(changes().size(), 1);
}

void TstDesktopVolumes::linkIsRemovedWithItsImage()
{
    const QString link = folder->filePath("links/loop3");
    QVERIFY(QDir().mkpath(folder->filePath("links")) && QFile::link("/proc", link));
    QCOMPARE(volumes->unmountImage(link, false), QString());
    QCOMPARE(changes(), QStringList("block_devices/proc Filesystem.Unmount {}"));
    QVERIFY(!QFileInfo(link).isSymLink());
}

void TstDesktopVolumes::linkStaysWhenUnmountingFails()
{
    const QString link = folder->filePath("links/loop3");
    QVERIFY(QDir().mkpath(folder->filePath("links")) && QFile::link("/proc", link));
    service->fail("Unmount", {"org.freedesktop.UDisks2.Error.DeviceBusy"});
    QCOMPARE(volumes->unmountImage(link, false), says);
    QVERIFY(QFileInfo(link).isSymLink());
}

void TstDesktopVolumes::diskBecomesOneVolume()
{
    FatVolume volume;
    volume.label = "X";
    service->fail("CreatePartition", tooEarly.mid(0, 1));
    QCOMPARE(volumes->createPartition("/dev/sdb", volume), QString());
    QCOMPARE(volumes->format("/dev/sdb1", volume), QString());
    const QString create = "block_devices/sdb PartitionTable.CreatePartition 1048576, 0, 0x0c, , "
                           "{}";
    QCOMPARE(changes(),
             QStringList(
                 {"block_devices/sdb Block.Format dos, {}", create, create,
                  "block_devices/sdb1 Block.Format vfat, {label=X update-partition-type=true}"}));
}

void TstDesktopVolumes::failedTableIsTheEnd()
{
    service->fail("Format", {notAuthorized});
    QCOMPARE(volumes->createPartition("/dev/sdb", {}), says);
    QCOMPARE(changes(), QStringList("block_devices/sdb Block.Format dos, {}"));
}

void TstDesktopVolumes::unknownDevice()
{
    const QString error = "The disk service does not know /dev/unknown";
    QCOMPARE(volumes->createPartition("/dev/unknown", {}), error);
    QCOMPARE(volumes->format("/dev/unknown", {}), error);
    QCOMPARE(volumes->mount("/dev/unknown", "X").error, error);
    QCOMPARE(volumes->unmount("/dev/unknown"), error);
    QCOMPARE(volumes->eject("/dev/unknown"), error);
    QCOMPARE(changes(), QStringList());
}

void TstDesktopVolumes::partitionIsMountedByTheDesktop()
{
    const MountResult result = volumes->mount("/dev/sdb1", "X");
    QCOMPARE(result.error, QString());
    QCOMPARE(result.device, QString("/dev/sdb1"));
    QCOMPARE(result.path, QString("/media/user/X"));
    QCOMPARE(changes(), QStringList("block_devices/sdb1 Filesystem.Mount {}"));
}

void TstDesktopVolumes::mountedByTheDesktopAlready()
{
    service->fail("Mount", {"org.freedesktop.UDisks2.Error.AlreadyMounted", notAuthorized});
    const MountResult result = volumes->mount("proc", "X");
    QCOMPARE(result.error, QString());
    QCOMPARE(result.path, QString("/proc"));
    QCOMPARE(volumes->mount("/dev/sdb1", "X").error, says);
}

void TstDesktopVolumes::discIsEjected()
{
    QCOMPARE(volumes->eject("/dev/sr0"), QString());
    QCOMPARE(changes(), QStringList({"block_devices/sr0 Properties.Get "
                                     "org.freedesktop.UDisks2.Block, Drive",
                                     "drives/Cruzer Drive.Eject {}"}));
}

void TstDesktopVolumes::noServiceIsAFailure()
{
    service.reset();
    QVERIFY(!volumes->mountImage(folder->filePath("x.iso")).error.isEmpty());
    QVERIFY(!volumes->createPartition("/dev/sdb", {}).isEmpty());
}

KORVEX_TEST_MAIN(TstDesktopVolumes)

#include "tst_desktopvolumes.moc"
