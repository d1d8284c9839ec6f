// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskrefusal.h"
#include "lsblk.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QDir>

// Which disks must not be overwritten, over the devices in tests/data/lsblk.
class TstDiskRefusal : public TestCase
{
    Q_OBJECT

private slots:
    void devices_data();
    void devices();
    void everyDeviceOfTheDataIsJudged();
    void deviceWithoutFactsIsRefused();
    void placesForMedia_data();
    void placesForMedia();
};

namespace
{

const QString dataFolder = QStringLiteral(KORVEX_TEST_DATA "/lsblk");

} // namespace

void TstDiskRefusal::devices_data()
{
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* reason) {
        QTest::newRow(name) << QString(reason);
    };
    row("usb-stick", "");
    row("usb-stick-old-form", "");
    row("usb-stick-without-partitions", "");
    row("usb-stick-with-luks-data", "");
    row("usb-ssd", "");
    row("nvme-system-disk",
        "The system runs from /dev/nvme0n1: /dev/nvme0n1p1 is in use as /boot/efi");
    row("sata-data-disk", "/dev/sda is neither a USB disk nor a removable one");
    row("sata-disk-in-hot-swap-bay", "/dev/sdc is neither a USB disk nor a removable one");
    row("live-stick-debian",
        "The system runs from /dev/sdb: /dev/sdb1 is in use as /run/live/medium");
    row("live-stick-ubuntu", "The system runs from /dev/sdb: /dev/sdb1 is in use as /cdrom");
    row("installed-usb-ssd-luks-lvm",
        "The system runs from /dev/sda: /dev/mapper/vg-root is in use as /");
    row("usb-raid-member-of-system", "The system runs from /dev/sdb: /dev/md0 is in use as /home");
    row("usb-stick-mounted-as-root-too", "The system runs from /dev/sdb: /dev/sdb1 is in use as /");
    row("loop-device", "/dev/loop0 is not a whole disk");
    row("zram", "The system runs from /dev/zram0: /dev/zram0 is in use as [SWAP]");
    row("cd-drive", "/dev/sr0 is an optical drive");
    row("card-reader-without-medium", "There is no medium in /dev/sdd");
    row("card-in-built-in-reader", "/dev/mmcblk0 is neither a USB disk nor a removable one");
    row("write-protected-stick", "/dev/sdb is write-protected");
    row("partition-of-usb-stick", "/dev/sdb1 is not a whole disk");
}

void TstDiskRefusal::devices()
{
    QFETCH(QString, reason);
    const QString file = QStringLiteral("%1/%2.json").arg(dataFolder, QTest::currentDataTag());
    const BlockDevices read = readBlockDevices(readFile(file));
    QCOMPARE(read.error, QString());
    QCOMPARE(read.devices.size(), 1);
    QCOMPARE(refusal(read.devices.first()), reason);
}

void TstDiskRefusal::everyDeviceOfTheDataIsJudged()
{
    // Count of the rows above: a new file needs its row.
    QCOMPARE(QDir(dataFolder).entryList({"*.json"}).size(), 20);
}

void TstDiskRefusal::deviceWithoutFactsIsRefused()
{
    QVERIFY(!refusal(BlockDevice()).isEmpty());
}

void TstDiskRefusal::placesForMedia_data()
{
    QTest::addColumn<bool>("forMedia");
    for (const char* place :
         {"/media/user/MY STICK", "/media/x", "/run/media/user/x", "/mnt", "/mnt/usb", "/Volumes/X",
          "/home/user/usb", "/tmp/x", "/media/user/-x"})
        QTest::newRow(place) << true;
    for (const char* place : {"",
                              "/",
                              "[SWAP]",
                              "/boot",
                              "/boot/efi",
                              "/usr",
                              "/usr/local",
                              "/var",
                              "/var/lib/docker",
                              "/home",
                              "/home/user",
                              "/home/user/",
                              "/media",
                              "/media/",
                              "/run/media",
                              "/tmp",
                              "/etc",
                              "/opt",
                              "/root",
                              "/srv",
                              "/nix/store",
                              "/cdrom",
                              "/run/live/medium",
                              "/lib/live/mount/medium",
                              "/run/initramfs/live",
                              "/run/archiso/bootmnt",
                              "/mnt-system",
                              "/media/../usr",
                              "/media/x/../..",
                              "/mnt/../home",
                              "//",
                              "media/user/x"})
        QTest::newRow(place) << false;
}

void TstDiskRefusal::placesForMedia()
{
    QFETCH(bool, forMedia);
    QCOMPARE(isPlaceForMedia(QString::fromUtf8(QTest::currentDataTag())), forMedia);
}

KORVEX_TEST_MAIN(TstDiskRefusal)
#include "tst_diskrefusal.moc"
