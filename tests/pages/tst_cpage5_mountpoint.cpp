// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "disccopytest.h"
#include "testmain.h"
#include "trigger.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

// How the Copy Disk page finds the place where a disc is mounted.
class TstCPage5MountPoint : public DiscCopyTest
{
    Q_OBJECT

private slots:
    void init();
    void mountPointIsFoundInTheTable_data();
    void mountPointIsFoundInTheTable();
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

void TstCPage5MountPoint::mountPointIsFoundInTheTable_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("mountPoint");
    const auto volume = [](const QString& device, const QString& mountPoint) {
        return DriveTexts::mountedVolume(device, mountPoint, "cd9660");
    };
    const QString system = DriveTexts::systemVolumes();
    QTest::newRow("none") << system << "";
    QTest::newRow("among others") << system + volume("/dev/disk4", "/Volumes/A") + system
                                  << "/Volumes/A";
    QTest::newRow("the last wins")
        << volume("/dev/disk4", "/Volumes/A") + volume("/dev/disk4s1", "/Volumes/B") +
               volume("/dev/disk4s0", "/Volumes/C")
        << "/Volumes/C";
    QTest::newRow("the last wins although it is another disk")
        << volume("/dev/disk4", "/Volumes/A") + volume("/dev/disk41", "/Volumes/B") << "/Volumes/B";
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
    scenario->on("mount", {},
                 {volume("/Volumes/A"), scenario->holding("late"), volume("/Volumes/B")});
    const Trigger release([&] { return scenario->callsOf("mount").size() == 1; },
                          [&] {
                              QVERIFY(scenario->isHeld("late"));
                              scenario->release("late");
                          });
    copy();
    QVERIFY(release.hasFired());
    QCOMPARE(copiedVolume(), QString("/Volumes/B"));
}

KORVEX_TEST_MAIN(TstCPage5MountPoint)
#include "tst_cpage5_mountpoint.moc"
