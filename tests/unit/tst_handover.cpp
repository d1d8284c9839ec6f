// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "handover.h"
#include "imagedisk.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QDir>

// The mount of a finished disk passes from root to the user's desktop, or stays root's.
class TstHandOver : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void serviceMountsAtTheSamePlace();
    void withoutServiceItIsMountedAsBefore();
    void otherPlaceOfTheServiceIsNotKept();
    void busyPartitionStaysMounted();
    void mountThatFailsIsTold();

private:
    QString handOverDisk() const;
    // What the service does when it is asked to mount.
    void letServiceMountAt(const QString& place) const;

    std::unique_ptr<ImageDisk> stick;
    QString service;
    QString mount;
    QString unmount;
};

void TstHandOver::init()
{
    stick = std::make_unique<ImageDisk>();
    QVERIFY(QDir().mkpath(stick->mountPoint()));
    stick->setMounted({stick->mountPoint()});
    stick->setFacts(R"({"blockdevices":[{"path":"DISK1","type":"part","mountpoints":)");
    stick->behave("lsblk", "cat '" + stick->path("facts").toUtf8() + "' '" +
                               stick->path("mounted").toUtf8() + "'; echo '}]}'");
    service = "setpriv --reuid=1000 --regid=1001 --init-groups -- udisksctl mount "
              "--no-user-interaction --block-device " +
              stick->partition();
    mount = "mount -t vfat -o rw,nosuid,nodev,uid=1000,gid=1001,fmask=0022,dmask=0022,utf8,flush "
            "-- " +
            stick->partition() + ' ' + stick->mountPoint();
    unmount = "umount -- " + stick->mountPoint();
}

void TstHandOver::cleanup()
{
    stick.reset();
}

QString TstHandOver::handOverDisk() const
{
    return handOver(stick->disk(), stick->mountPoint(), 1000, 1001);
}

void TstHandOver::letServiceMountAt(const QString& place) const
{
    stick->behave("setpriv", "[ ! -e '" + stick->mountPoint().toUtf8() +
                                 "' ] || exit 1\necho '[\"" + place.toUtf8() + "\"]' >'" +
                                 stick->path("mounted").toUtf8() + "'");
}

void TstHandOver::serviceMountsAtTheSamePlace()
{
    letServiceMountAt(stick->mountPoint());
    QCOMPARE(handOverDisk(), QString());
    QCOMPARE(stick->calls(), QStringList({unmount, service}));
}

void TstHandOver::withoutServiceItIsMountedAsBefore()
{
    QCOMPARE(handOverDisk(), QString());
    QCOMPARE(stick->calls(), QStringList({unmount, service, mount}));
    QVERIFY(QFileInfo(stick->mountPoint()).isDir());
}

void TstHandOver::otherPlaceOfTheServiceIsNotKept()
{
    letServiceMountAt("/media/user/MY STICK1");
    QCOMPARE(handOverDisk(), QString());
    QCOMPARE(stick->calls(),
             QStringList({unmount, service, "umount -- /media/user/MY STICK1", mount}));
}

void TstHandOver::busyPartitionStaysMounted()
{
    stick->behave("umount", "exit 32");
    QCOMPARE(handOverDisk(), QString());
    QCOMPARE(stick->calls(), QStringList(unmount));
}

void TstHandOver::mountThatFailsIsTold()
{
    stick->behave("mount", "echo no >&2; exit 32");
    QCOMPARE(handOverDisk(), QString("mount failed with exit code 32: no"));
}

KORVEX_TEST_MAIN(TstHandOver)
#include "tst_handover.moc"
