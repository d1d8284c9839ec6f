// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "heartbeat.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "usbwritefixture.h"

#include <QElapsedTimer>

// Tools that never end, waited for as long as the program waits for them: half a minute each.
class TstCBurnDialogHang : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void descriptionThatHangsIsReadAsFarAsItGot();
    void imageToolThatHangsLeavesTheImageUnmounted();
};

namespace
{

constexpr int limitMs = 30000;
const QString forGood = "sleep 120000";

} // namespace

void TstCBurnDialogHang::initTestCase()
{
    setApplicationLook();
}

void TstCBurnDialogHang::descriptionThatHangsIsReadAsFarAsItGot()
{
    DriveScenario drives;
    drives.addUsbDisk("/dev/disk2");
    drives.on(
        "diskutil", {"info", "/dev/disk2"},
        {DriveScenario::printing("   Protocol:  USB\n   Removable Media:  Removable\n"), forGood});
    const Heartbeat heartbeat;
    QElapsedTimer waited;
    waited.start();
    const BurnPageFixture fixture;
    QVERIFY(waited.hasExpired(limitMs));
    QCOMPARE(BurnPageFixture::textsOf(fixture.list("usblist")), QStringList{"/dev/disk2"});
    // The window was alive all the time.
    QVERIFY(heartbeat.count() > 100);
}

void TstCBurnDialogHang::imageToolThatHangsLeavesTheImageUnmounted()
{
    UsbWriteFixture fixture;
    fixture.addInstallWim(1LL << 32);
    fixture.drives.on("hdiutil", {"mount", fixture.image()}, {forGood});
    QElapsedTimer waited;
    waited.start();
    QCOMPARE(fixture.write(2 * limitMs).last(), QString("Burning Successfully..."));
    QVERIFY(waited.hasExpired(limitMs));
    // It was not looked into, so it is copied whole and nothing is unmounted.
    QList<QStringList> expected = fixture.wholeRun(fixture.image(), false);
    expected.removeAll({"hdiutil", "unmount" + fixture.mountedImage()});
    QCOMPARE(fixture.commands(), expected);
}

KORVEX_TEST_MAIN(TstCBurnDialogHang)
#include "tst_cburndialog_hang.moc"
