// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "disccopytest.h"
#include "testfiles.h"
#include "testmain.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

// How the Copy Disk page finds the place where a disc is mounted.
class TstCPage5MountPoint : public DiscCopyTest
{
    Q_OBJECT

private slots:
    void init();
    void mountPointIsRead_data();
    void mountPointIsRead();
    void mountPointIsFoundInTheTable_data();
    void mountPointIsFoundInTheTable();
    void realTablesAreRead_data();
    void realTablesAreRead();
    void earlierMountPointIsForgotten();
    void missingMountToolLeavesAnEmptyMountPoint();
    void discWithAccentsInItsNameIsLookedForUnderAnother();
    void lateLinesOfMountAreReadOnce();

private:
    // Presses Start; the image tool ends at once and the message is closed.
    void copy();
    // The mount point that the image was made of.
    QString copiedVolume() const;
};

void TstCPage5MountPoint::init()
{
    DiscCopyTest::init();
    openReadyPage();
}

void TstCPage5MountPoint::copy()
{
    QCOMPARE(copyToEnd(), copySuccess());
}

QString TstCPage5MountPoint::copiedVolume() const
{
    const QList<QStringList> calls = scenario->callsOf("hdiutil");
    return calls.isEmpty() ? "no call" : calls.last().last();
}

void TstCPage5MountPoint::mountPointIsRead_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("mountPoint");
    const QString options = " (cd9660, local, nodev, nosuid, read-only, noowners)";
    QTest::newRow("plain") << "/dev/disk4 on /Volumes/DISC" + options << "/Volumes/DISC";
    QTest::newRow("blanks") << "/dev/disk4 on /Volumes/MY  OWN DISC" + options
                            << "/Volumes/MY  OWN DISC";
    QTest::newRow("partition of it") << "/dev/disk4s1 on /Volumes/P" + options << "/Volumes/P";
    QTest::newRow("longer number") << "/dev/disk40 on /Volumes/FORTY" + options << "/Volumes/FORTY";
    QTest::newRow("parentheses cut it")
        << "/dev/disk4 on /Volumes/My Disc (2)" + options << "/Volumes/My Disc";
    QTest::newRow("the word on") << "/dev/disk4 on /Volumes/on on" + options << "/Volumes/on on";
    QTest::newRow("no options cut its end") << "/dev/disk4 on /Volumes/DISC"
                                            << "/Volumes/DIS";
    QTest::newRow("options at once") << "/dev/disk4 on /(x)"
                                     << "/";
    QTest::newRow("other disk") << "/dev/disk5 on /Volumes/DISC" + options << "";
    QTest::newRow("other case") << "/dev/DISK4 on /Volumes/DISC" + options << "";
    QTest::newRow("not at the beginning") << " /dev/disk4 on /Volumes/DISC" + options << "";
    QTest::newRow("no mount point") << "/dev/disk4 on (cd9660)"
                                    << "";
    QTest::newRow("device alone") << "/dev/disk4"
                                  << "";
    QTest::newRow("empty") << ""
                           << "";
}

void TstCPage5MountPoint::mountPointIsRead()
{
    QFETCH(QString, line);
    scenario->on("mount", {}, {DriveScenario::printing(line + '\n')});
    copy();
    QTEST(copiedVolume(), "mountPoint");
}

void TstCPage5MountPoint::mountPointIsFoundInTheTable_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("mountPoint");
    const auto volume = [](const QString& device, const QString& mountPoint) {
        return DriveTexts::mountedVolume(device, mountPoint, "cd9660");
    };
    const QString system = DriveTexts::systemVolumes();
    QTest::newRow("none") << system << "";
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("among others") << system + volume("/dev/disk4", "/Volumes/A") + system
                                  << "/Volumes/A";
    QTest::newRow("the last wins")
        << volume("/dev/disk4", "/Volumes/A") + volume("/dev/disk4s1", "/Volumes/B") +
               volume("/dev/disk4s0", "/Volumes/C")
        << "/Volumes/C";
    QTest::newRow("the last wins although it is another disk")
        << volume("/dev/disk4", "/Volumes/A") + volume("/dev/disk41", "/Volumes/B") << "/Volumes/B";
    QTest::newRow("carriage returns") << "/dev/disk4 on /Volumes/A (cd9660)\r\n"
                                      << "/Volumes/A";
    QTest::newRow("no line end") << "/dev/disk4 on /Volumes/A (cd9660)"
                                 << "/Volumes/A";
    QTest::newRow("huge") << volume("/dev/disk4", "/Volumes/A") + system.repeated(3000)
                          << "/Volumes/A";
}

void TstCPage5MountPoint::mountPointIsFoundInTheTable()
{
    QFETCH(QString, table);
    scenario->on("mount", {}, {DriveScenario::printing(table)});
    copy();
    QTEST(copiedVolume(), "mountPoint");
}

void TstCPage5MountPoint::realTablesAreRead_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("mountPoint");
    QTest::newRow("mount-parentheses-in-name.txt") << "/dev/disk4"
                                                   << "/Volumes/My Disc";
    QTest::newRow("mount-word-on-in-name.txt") << "/dev/disk3"
                                               << "/Volumes/OpenZFS on OS X 1.6.1";
    QTest::newRow("mount-system-and-image-macos10.15.txt") << "/dev/disk2"
                                                           << "/Volumes/GuestAirMedia";
    QTest::newRow("mount-fskit-macos15.txt") << "/dev/disk6"
                                             << "/Volumes/MIC CARD";
}

void TstCPage5MountPoint::realTablesAreRead()
{
    QFETCH(QString, device);
    const QByteArray table =
        readFile(QString(KORVEX_TEST_DATA "/mount/") + QTest::currentDataTag());
    QVERIFY(!table.isEmpty());
    scenario->on("mount", {}, {DriveScenario::printing(QString::fromUtf8(table))});
    drives()->setItemData(0, device);
    copy();
    QTEST(copiedVolume(), "mountPoint");
}

// The disc has been taken out since: its old place is not copied once more.
void TstCPage5MountPoint::earlierMountPointIsForgotten()
{
    copy();
    QCOMPARE(copiedVolume(), QString("/Volumes/DISC"));
    scenario->on("mount", {}, {DriveScenario::printing(DriveTexts::systemVolumes())});
    copy();
    QCOMPARE(copiedVolume(), QString());
}

void TstCPage5MountPoint::missingMountToolLeavesAnEmptyMountPoint()
{
    scenario->missing("mount");
    copy();
    QCOMPARE(scenario->callsOf("hdiutil"), QList<QStringList>({imageArguments(imagePath, "")}));
}

// The table is read byte by byte as Latin-1, so the tool gets a folder that there is not.
void TstCPage5MountPoint::discWithAccentsInItsNameIsLookedForUnderAnother()
{
    const QString mountPoint = QString::fromUtf8("/Volumes/Été");
    scenario->on(
        "mount", {},
        {DriveScenario::printing(DriveTexts::mountedVolume("/dev/disk4", mountPoint, "cd9660"))});
    copy();
    QCOMPARE(copiedVolume(), QString::fromLatin1(mountPoint.toUtf8()));
    QVERIFY(copiedVolume() != mountPoint);
}

// In collect mode the lines come at the end, not once more each on its own.
void TstCPage5MountPoint::lateLinesOfMountAreReadOnce()
{
    const auto volume = [](const QString& mountPoint) {
        return DriveScenario::printing(
            DriveTexts::mountedVolume("/dev/disk4", mountPoint, "cd9660"));
    };
    scenario->on("mount", {}, {volume("/Volumes/A"), "sleep 50", volume("/Volumes/B")});
    copy();
    QCOMPARE(copiedVolume(), QString("/Volumes/B"));
}

KORVEX_TEST_MAIN(TstCPage5MountPoint)
#include "tst_cpage5_mountpoint.moc"
