// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "otherlimit.h"
#include "processcounts.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "usbwritefixture.h"
#include "whencalled.h"

// Tools that never end, or pause. The half minute that the program waits for some is over as soon
// as they hang.
class TstCBurnDialogHang : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void descriptionThatHangsIsReadAsFarAsItGot();
    void imageToolThatHangsLeavesTheImageUnmounted();
    void pauseInALineLosesNoDrive();
};

namespace
{

constexpr int limitMs = 60000;

bool areToolsGone()
{
    return processesOf("scripteddrive").isEmpty();
}

// Ends the program's patience with the tool that has been called like this once it is held there.
// When the tool has been killed, the program is as patient as before; what it does next begins only
// after that, as it waits for this to return.
class OverdueCall
{
public:
    OverdueCall(const DriveScenario& drives, const QStringList& command, const QString& gate)
        : called(drives, command, [this, &drives, gate] {
            const bool isHanging = drives.isHeld(gate);
            const OtherLimit over(toolLimits().answerMs, 0);
            isOver = isHanging && QTest::qWaitFor(areToolsGone, limitMs);
        })
    {
    }
    bool hasEnded() const { return isOver; }

private:
    bool isOver = false;
    WhenCalled called;
};

} // namespace

void TstCBurnDialogHang::initTestCase()
{
    setApplicationLook();
}

void TstCBurnDialogHang::descriptionThatHangsIsReadAsFarAsItGot()
{
    DriveScenario drives;
    drives.addUsbDisk("/dev/disk2");
    drives.on("diskutil", {"info", "/dev/disk2"},
              {DriveScenario::printing("   Protocol:  USB\n   Removable Media:  Removable\n"),
               drives.holding("for good")});
    // It is in the window's own thread that the end is brought about, while the page waits.
    const OverdueCall info(drives, {"diskutil", "info", "/dev/disk2"}, "for good");
    const BurnPageFixture fixture;
    QVERIFY(info.hasEnded());
    QCOMPARE(BurnPageFixture::textsOf(fixture.list("usblist")), QStringList{"/dev/disk2"});
}

void TstCBurnDialogHang::imageToolThatHangsLeavesTheImageUnmounted()
{
    UsbWriteFixture fixture;
    fixture.addInstallWim(1LL << 32);
    fixture.drives.on("hdiutil", {"mount", fixture.image()}, {fixture.drives.holding("for good")});
    const OverdueCall mount(fixture.drives, {"hdiutil", "mount", fixture.image()}, "for good");
    QCOMPARE(fixture.write(limitMs).last(), QString("Burning Successfully..."));
    QVERIFY(mount.hasEnded());
    // It was not looked into, so it is copied whole and nothing is unmounted.
    QList<QStringList> expected = fixture.wholeRun(fixture.image(), false);
    expected.removeAll({"hdiutil", "unmount" + fixture.mountedImage()});
    QCOMPARE(fixture.commands(), expected);
}

void TstCBurnDialogHang::pauseInALineLosesNoDrive()
{
    const OtherLimit quick(toolLimits().stepMs, 10);
    DriveScenario drives;
    drives.addUsbDisk("/dev/disk2");
    drives.addOptical(" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk4", "/a");
    const QString disks = "/dev/disk2 (external, physical):\n";
    const QString discs =
        DriveTexts::opticalStatus({" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk4", "/a"});
    const int cut = discs.indexOf("/dev/disk4") + 5;
    drives.on("diskutil", {"list"},
              {DriveScenario::printing(disks.left(12)), drives.holding("disk"),
               DriveScenario::printing(disks.mid(12))});
    drives.on("drutil", {"status"},
              {DriveScenario::printing(discs.left(cut)), drives.holding("disc"),
               DriveScenario::printing(discs.mid(cut))});
    const auto releaseAfterAPause = [&drives](const QString& gate) {
        if (!drives.isHeld(gate))
            return;
        const qint64 waits = runnerThreadWaits();
        if (QTest::qWaitFor([waits] { return runnerThreadWaits() >= waits + 10; }, limitMs))
            drives.release(gate);
    };
    const WhenCalled list(drives, {"diskutil", "list"}, [&] { releaseAfterAPause("disk"); });
    const WhenCalled status(drives, {"drutil", "status"}, [&] { releaseAfterAPause("disc"); });
    const BurnPageFixture fixture;
    QCOMPARE(BurnPageFixture::textsOf(fixture.list("usblist")), QStringList{"/dev/disk2"});
    QCOMPARE(BurnPageFixture::textsOf(fixture.list("dvdlist")),
             QStringList{"HL-DT-ST DVDRAM GP65NS60 PF00 (/dev/disk4)"});
}

KORVEX_TEST_MAIN(TstCBurnDialogHang)
#include "tst_cburndialog_hang.moc"
