// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "modaldriver.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usbwritefixture.h"
#include "usermouse.h"

#include <QDir>

// What keeps the page from writing a USB disk: each refusal with its picture and text, and the disk
// as it was.
class TstCBurnDialogUsbRefusals : public TestCase
{
    Q_OBJECT

private slots:
    void picturesDiffer();
    void noImage_data();
    void noImage();
    void noDisk();
    void diskThatWentAwayIsNoneAfterItsListIsOpened();
    void userSaysNo_data();
    void userSaysNo();
    void questionShowsItsPicture();
    void diskTooSmallByOneByte();
    void diskJustLargeEnough();
    void imageOfSeveralGibibytesNeedsALargerDisk();
    void diskOfUnknownSizeIsTooSmall();
    void noticeClosesInEveryWay_data();
    void noticeClosesInEveryWay();
    void refusedBurnCanBeRepeated();
};

namespace
{

const qint64 headroom = 52428800;
const qint64 imageBytes = 1000003;

const QString question("Your USB drive will be formatted and all data in it will be deleted! Do "
                       "you want to continue?");
const QString noSpace("Insufficient space on disk, please change a large-capacity USB or CD/DVD.");

// Closes the next notice with OK after a look at its picture.
void expectNotice(ModalDriver& driver, const QString& picture)
{
    driver.run("GerneralDialog", [picture](QWidget* dialog) {
        if (!BurnPageFixture::hasPicture(dialog, picture))
            QTest::qFail(qPrintable("not painted with " + picture), __FILE__, __LINE__);
        UserMouse::click(dialog->findChild<QWidget*>("btnok"));
    });
}

// All that is done before the disk is looked at.
QList<QStringList> looksAtImage(const UsbWriteFixture& fixture)
{
    return {{"hdiutil", "mount", fixture.image()}, {"hdiutil", "unmount" + fixture.mountedImage()}};
}

UsbDisk diskOf(qint64 bytes)
{
    UsbDisk disk;
    disk.size = bytes;
    return disk;
}

} // namespace

void TstCBurnDialogUsbRefusals::picturesDiffer()
{
    const QStringList pictures = {":/nwu/burn-fails", ":/nwu/insert_usb", ":/nwu/format_usb",
                                  ":/nwu/insufficient_space"};
    for (const QString& painted : pictures) {
        ImageDialog dialog;
        dialog.SetBackGround(painted);
        for (const QString& picture : pictures)
            QCOMPARE(BurnPageFixture::hasPicture(&dialog, picture), picture == painted);
    }
}

void TstCBurnDialogUsbRefusals::noImage_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << "   ";
    QTest::newRow("missing") << "/no/such/image.iso";
    QTest::newRow("folder") << "folder.iso";
    QTest::newRow("broken link") << "link.iso";
}

void TstCBurnDialogUsbRefusals::noImage()
{
    QFETCH(QString, path);
    UsbWriteFixture fixture;
    QVERIFY(QDir(fixture.path("")).mkpath("folder.iso"));
    QVERIFY(QFile::link(fixture.path("nowhere"), fixture.path("link.iso")));
    const bool isBelow = path.endsWith(".iso") && !path.startsWith('/');
    fixture.setImage(isBelow ? fixture.path(path) : path);
    ModalDriver driver;
    expectNotice(driver, ":/nwu/burn-fails");
    fixture.press("burn");
    QCOMPARE(driver.texts(), QStringList("Burn Failed! Do as following:\n1.Try to burn again.\n"
                                         "2.Change another USB drive or DVD."));
    QCOMPARE(fixture.commands(), QList<QStringList>());
    QVERIFY(fixture.isDiskUntouched());
}

void TstCBurnDialogUsbRefusals::noDisk()
{
    UsbWriteFixture fixture;
    fixture.list("usblist")->clear();
    ModalDriver driver;
    expectNotice(driver, ":/nwu/insert_usb");
    fixture.press("burn");
    QCOMPARE(driver.texts(), QStringList("Please insert your USB drive to computer"));
    QCOMPARE(fixture.commands(), looksAtImage(fixture));
    QVERIFY(fixture.isDiskUntouched());
}

void TstCBurnDialogUsbRefusals::diskThatWentAwayIsNoneAfterItsListIsOpened()
{
    UsbWriteFixture fixture;
    fixture.drives.removeDisk(fixture.device);
    fixture.notifyDriveChange();
    QCOMPARE(fixture.list("usblist")->count(), 0);
    ModalDriver driver;
    expectNotice(driver, ":/nwu/insert_usb");
    fixture.press("burn");
    QVERIFY(fixture.drives.callsOf("sudo").isEmpty());
    QVERIFY(!fixture.commands().contains({"sync"}));
}

void TstCBurnDialogUsbRefusals::userSaysNo_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isEscape");

    QTest::newRow("No") << "btncancel" << false;
    QTest::newRow("close") << "btnclose" << false;
    QTest::newRow("Escape") << "" << true;
}

void TstCBurnDialogUsbRefusals::userSaysNo()
{
    QFETCH(QString, button);
    QFETCH(bool, isEscape);
    UsbWriteFixture fixture;
    ModalDriver driver;
    if (isEscape)
        driver.key("CommDialog", Qt::Key_Escape);
    else
        driver.press("CommDialog", button);
    fixture.press("burn");
    QCOMPARE(driver.texts(), QStringList(question));
    QCOMPARE(fixture.commands(), looksAtImage(fixture));
    QVERIFY(fixture.isDiskUntouched());
}

void TstCBurnDialogUsbRefusals::questionShowsItsPicture()
{
    UsbWriteFixture fixture;
    bool isPainted = false;
    ModalDriver driver;
    driver.run("CommDialog", [&isPainted](QWidget* dialog) {
        isPainted = BurnPageFixture::hasPicture(dialog, ":/nwu/format_usb");
        UserMouse::click(dialog->findChild<QWidget*>("btncancel"));
    });
    fixture.press("burn");
    QVERIFY(isPainted);
}

void TstCBurnDialogUsbRefusals::diskTooSmallByOneByte()
{
    UsbWriteFixture fixture(diskOf(imageBytes + headroom - 1));
    fixture.useImage(fixture.image(), QByteArray(imageBytes, 'x'));
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    expectNotice(driver, ":/nwu/insufficient_space");
    fixture.press("burn");
    QCOMPARE(driver.texts(), (QStringList{question, noSpace}));
    auto expected = looksAtImage(fixture);
    expected.append({"diskutil", "info", fixture.device});
    QCOMPARE(fixture.commands(), expected);
    QVERIFY(fixture.isDiskUntouched());
}

void TstCBurnDialogUsbRefusals::diskJustLargeEnough()
{
    UsbWriteFixture fixture(diskOf(imageBytes + headroom));
    fixture.useImage(fixture.image(), QByteArray(imageBytes, 'x'));
    QCOMPARE(fixture.write(), (QStringList{question, "Burning Successfully..."}));
    QCOMPARE(fixture.commands(), fixture.wholeRun(fixture.image(), false));
}

void TstCBurnDialogUsbRefusals::imageOfSeveralGibibytesNeedsALargerDisk()
{
    const qint64 sixGibibytes = 6LL << 30;
    UsbWriteFixture fixture(diskOf(sixGibibytes + headroom - 1));
    QVERIFY(QFile::resize(fixture.image(), sixGibibytes));
    {
        ModalDriver driver;
        driver.press("CommDialog", "btnok");
        driver.press("GerneralDialog", "btnok");
        fixture.press("burn");
        QCOMPARE(driver.texts(), (QStringList{question, noSpace}));
    }
    QVERIFY(fixture.isDiskUntouched());
    UsbDisk larger = diskOf(sixGibibytes + headroom);
    larger.mountPoint = fixture.stick();
    fixture.changeDisk(larger);
    QCOMPARE(fixture.write(), (QStringList{question, "Burning Successfully..."}));
}

void TstCBurnDialogUsbRefusals::diskOfUnknownSizeIsTooSmall()
{
    UsbWriteFixture fixture;
    fixture.drives.on("diskutil", {"info", fixture.device}, {"exit 1"});
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    expectNotice(driver, ":/nwu/insufficient_space");
    fixture.press("burn");
    QCOMPARE(driver.texts(), (QStringList{question, noSpace}));
    QVERIFY(fixture.isDiskUntouched());
}

void TstCBurnDialogUsbRefusals::noticeClosesInEveryWay_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("button");

    QTest::newRow("Escape") << int(Qt::Key_Escape) << "";
    QTest::newRow("Return") << int(Qt::Key_Return) << "";
    QTest::newRow("close") << 0 << "btnclose";
}

void TstCBurnDialogUsbRefusals::noticeClosesInEveryWay()
{
    QFETCH(int, key);
    QFETCH(QString, button);
    UsbWriteFixture fixture(diskOf(headroom));
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    if (key)
        driver.key("GerneralDialog", Qt::Key(key));
    else
        driver.press("GerneralDialog", button);
    fixture.press("burn");
    QVERIFY(driver.done());
    QVERIFY(fixture.isDiskUntouched());
    QVERIFY(!fixture.progress()->isVisible());
}

void TstCBurnDialogUsbRefusals::refusedBurnCanBeRepeated()
{
    UsbWriteFixture fixture;
    {
        ModalDriver driver;
        driver.press("CommDialog", "btncancel");
        fixture.press("burn");
    }
    QVERIFY(fixture.isDiskUntouched());
    QCOMPARE(fixture.write(), (QStringList{question, "Burning Successfully..."}));
    QCOMPARE(fixture.commands(), looksAtImage(fixture) + fixture.wholeRun(fixture.image(), false));
}

KORVEX_TEST_MAIN(TstCBurnDialogUsbRefusals)
#include "tst_cburndialog_usbrefusals.moc"
