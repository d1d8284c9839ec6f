// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "modaldriver.h"
#include "testcase.h"
#include "testmain.h"
#include "usbwritehold.h"
#include "usermouse.h"

#include <QCoreApplication>

// What else may happen to the page while it writes a USB disk.
class TstCBurnDialogUsbLeave : public TestCase
{
    Q_OBJECT

private slots:
    void closed_data();
    void closed();
    void closedDuringTheQuestion();
    void pressedAgainAndDriveChange_data();
    void pressedAgainAndDriveChange();
    void chosenDiskStaysThoughTheListHasChanged();
    void diskPulledOutDuringTheQuestion();
    void programQuits_data();
    void programQuits();
};

namespace
{

const QString success("Burning Successfully...");

UsbWriteHold::Step fetchStep()
{
    QFETCH(int, index);
    return UsbWriteHold::steps().at(index);
}

// Answers the question first, then does something with the page, before the answer counts.
void sayYesAfter(ModalDriver& driver, const std::function<void()>& action)
{
    driver.run("CommDialog", [action](QWidget* dialog) {
        action();
        UserMouse::click(dialog->findChild<QWidget*>("btnok"));
    });
}

// Without what a refresh of both lists runs in between. It asks about the disk once.
QList<QStringList> withoutRefresh(QList<QStringList> commands)
{
    commands.removeAll({"diskutil", "list"});
    commands.removeAll({"drutil", "status"});
    commands.removeOne({"diskutil", "info", "/dev/disk2"});
    return commands;
}

// The same tools, in whatever order a refresh has left them.
QList<QStringList> withoutInfo(QList<QStringList> commands)
{
    commands.removeOne({"diskutil", "info", "/dev/disk2"});
    return commands;
}

} // namespace

void TstCBurnDialogUsbLeave::closed_data()
{
    UsbWriteHold::addRows();
}

void TstCBurnDialogUsbLeave::closed()
{
    const UsbWriteHold::Step step = fetchStep();
    UsbWriteFixture fixture;
    const UsbWriteHold hold(fixture, step, [&fixture] {
        fixture.page->close();
        return true;
    });
    {
        ModalDriver driver;
        if (!step.isEarly || step.program == "diskutil")
            driver.press("CommDialog", "btnok");
        if (!step.isEarly)
            driver.press("CommDialog", "btnok");
        fixture.press("burn");
    }
    QVERIFY(hold.isDone());
    if (step.isEarly)
        QVERIFY(fixture.isDiskUntouched());
    else
        QCOMPARE(fixture.commands(), fixture.wholeRun(fixture.image(), step.isLarge));
    QTRY_VERIFY_WITH_TIMEOUT(!fixture.page, patienceMs);
    QVERIFY(!fixture.progress());
    QVERIFY(fixture.window.isVisible());
}

void TstCBurnDialogUsbLeave::closedDuringTheQuestion()
{
    UsbWriteFixture fixture;
    {
        ModalDriver driver;
        sayYesAfter(driver, [&fixture] { fixture.page->close(); });
        fixture.press("burn");
    }
    QVERIFY(fixture.isDiskUntouched());
    QTRY_VERIFY_WITH_TIMEOUT(!fixture.page, patienceMs);
}

void TstCBurnDialogUsbLeave::pressedAgainAndDriveChange_data()
{
    UsbWriteHold::addRows();
}

void TstCBurnDialogUsbLeave::pressedAgainAndDriveChange()
{
    const UsbWriteHold::Step step = fetchStep();
    UsbWriteFixture fixture;
    // The tool that is held is the one that the refresh asks about the disk.
    const bool isSameTool = step.arguments == QStringList{"info", fixture.device};
    const UsbWriteHold hold(fixture, step, [&fixture, isSameTool] {
        fixture.press("burn");
        fixture.page->onBurn();
        if (isSameTool)
            QTimer::singleShot(0, [&fixture] { fixture.notifyDriveChange(); });
        else
            fixture.notifyDriveChange();
        return true;
    });
    QCOMPARE(fixture.write().value(1), success);
    QVERIFY(hold.isDone());
    QCOMPARE(fixture.drives.callsOf("drutil").size(), 3);
    // The question about the disk that remains is the burn's or the refresh's.
    QCOMPARE(withoutInfo(withoutRefresh(fixture.commands())),
             withoutInfo(fixture.wholeRun(fixture.image(), step.isLarge)));
    QCOMPARE(BurnPageFixture::textsOf(fixture.list("usblist")), QStringList(fixture.device));
}

void TstCBurnDialogUsbLeave::chosenDiskStaysThoughTheListHasChanged()
{
    UsbWriteFixture fixture;
    {
        ModalDriver driver;
        sayYesAfter(driver, [&fixture] {
            fixture.list("usblist")->clear();
            fixture.list("usblist")->addItem("/dev/disk7");
        });
        driver.press("CommDialog", "btnok");
        fixture.press("burn");
    }
    QCOMPARE(fixture.commands(), fixture.wholeRun(fixture.image(), false));
}

void TstCBurnDialogUsbLeave::diskPulledOutDuringTheQuestion()
{
    UsbWriteFixture fixture;
    ModalDriver driver;
    sayYesAfter(driver, [&fixture] {
        fixture.drives.removeDisk(fixture.device);
        fixture.notifyDriveChange();
    });
    driver.press("GerneralDialog", "btnok");
    fixture.press("burn");
    QCOMPARE(driver.texts().value(1), QString("Insufficient space on disk, please change a "
                                              "large-capacity USB or CD/DVD."));
    QVERIFY(!fixture.commands().contains({"sync"}));
    QVERIFY(fixture.drives.callsOf("sudo").isEmpty());
}

void TstCBurnDialogUsbLeave::programQuits_data()
{
    QTest::addColumn<int>("index");

    for (const char* const name : {"mount the image", "sync before all", "boot tool", "copy"})
        QTest::newRow(name) << UsbWriteHold::indexOf(name);
}

// Before the disk is touched the question is not put any more; after that the disk is finished.
void TstCBurnDialogUsbLeave::programQuits()
{
    const UsbWriteHold::Step step = fetchStep();
    UsbWriteFixture fixture;
    const UsbWriteHold hold(fixture, step, [] {
        QCoreApplication::quit();
        return true;
    });
    ModalDriver driver;
    const bool isAsked = !step.isEarly || step.program == "diskutil";
    if (isAsked)
        driver.press("CommDialog", "btnok");
    bool isBurnOver = false;
    QTimer::singleShot(0, [&] {
        fixture.press("burn");
        isBurnOver = true;
    });
    QCoreApplication::exec();
    QVERIFY(isBurnOver);
    QVERIFY(hold.isDone());
    QVERIFY(driver.done());
    QVERIFY(!fixture.progress()->isVisible());
    if (isAsked)
        QCOMPARE(fixture.commands(), fixture.wholeRun(fixture.image(), step.isLarge));
    else
        QVERIFY(fixture.isDiskUntouched());
}

KORVEX_TEST_MAIN(TstCBurnDialogUsbLeave)
#include "tst_cburndialog_usbleave.moc"
