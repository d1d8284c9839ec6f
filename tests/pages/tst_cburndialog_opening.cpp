// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnpagefixture.h"
#include "cimagebutton.h"
#include "drivescenario.h"
#include "mainwindow.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "usermouse.h"
#include "whencalled.h"

// The Burn page as the main window opens it, while the tools that look for drives take their time.
class TstCBurnDialogOpening : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void pageOpensOverTheHomeScreen();
    void driveChangeReachesThePage();
    void burnPressedTwiceOpensOnePage_data();
    void burnPressedTwiceOpensOnePage();
    void closedPageCanBeOpenedAgain();
    void windowClosedMeanwhileIsSurvived();

private:
    CImageButton* burnTile() const
    {
        return window->findChild<CImageButton*>("burn", Qt::FindDirectChildrenOnly);
    }
    CBurnDialog* page() const { return window->findChild<CBurnDialog*>(); }

    std::unique_ptr<DriveScenario> drives;
    std::unique_ptr<MainWindow> window;
};

namespace
{

const QStringList listing = {"diskutil", "list"};
const QStringList describing = {"diskutil", "info", "/dev/disk2"};
const QStringList status = {"drutil", "status"};

} // namespace

void TstCBurnDialogOpening::initTestCase()
{
    setApplicationLook();
}

void TstCBurnDialogOpening::init()
{
    TestCase::init();
    drives = std::make_unique<DriveScenario>();
    drives->addUsbDisk("/dev/disk2");
    window = std::make_unique<MainWindow>(nullptr);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

void TstCBurnDialogOpening::cleanup()
{
    if (window->isVisible())
        UserMouse::moveAway(window.get());
    window.reset();
    drives.reset();
    TestCase::cleanup();
}

void TstCBurnDialogOpening::pageOpensOverTheHomeScreen()
{
    UserMouse::click(burnTile());
    QVERIFY(page());
    QVERIFY(page()->isVisible());
    QVERIFY(!page()->isWindow());
    QCOMPARE(page()->pos(), QPoint(195, 107));
    QVERIFY(window->rect().contains(page()->geometry()));
    QCOMPARE(BurnPageFixture::textsOf(page()->findChild<QComboBox*>("usblist")),
             QStringList("/dev/disk2"));
    QVERIFY(!QApplication::overrideCursor());
}

void TstCBurnDialogOpening::driveChangeReachesThePage()
{
    UserMouse::click(burnTile());
    drives->addUsbDisk("/dev/disk3");
    QMetaObject::invokeMethod(window.get(), "sigdrivechange");
    QCOMPARE(BurnPageFixture::textsOf(page()->findChild<QComboBox*>("usblist")),
             QStringList({"/dev/disk2", "/dev/disk3"}));
}

void TstCBurnDialogOpening::burnPressedTwiceOpensOnePage_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<QString>("answer");
    QTest::newRow("listing") << listing << DriveTexts::listedUsbDisk("/dev/disk2", {});
    QTest::newRow("description") << describing << DriveTexts::diskInfo("/dev/disk2", {});
    QTest::newRow("status") << status << "";
}

void TstCBurnDialogOpening::burnPressedTwiceOpensOnePage()
{
    QFETCH(QStringList, command);
    QFETCH(QString, answer);
    drives->on(command.first(), command.mid(1),
               {drives->holding("tool"), DriveScenario::printing(answer)});
    bool isBusy = false;
    const WhenCalled pressAgain(*drives, command, [&] {
        isBusy = QApplication::overrideCursor();
        UserMouse::click(burnTile());
        drives->release("tool");
    });
    UserMouse::click(burnTile());
    QVERIFY(pressAgain.isDone());
    QVERIFY(isBusy);
    // A click that had to wait comes only now, and not to the tile that the page covers.
    QCoreApplication::processEvents();
    QCOMPARE(window->findChildren<CBurnDialog*>().size(), 1);
    QCOMPARE(drives->callsOf("drutil").size(), 1);
    QCOMPARE(BurnPageFixture::textsOf(page()->findChild<QComboBox*>("usblist")),
             QStringList("/dev/disk2"));
    QVERIFY(!QApplication::overrideCursor());
}

void TstCBurnDialogOpening::closedPageCanBeOpenedAgain()
{
    for (int i = 0; i < 2; ++i) {
        UserMouse::click(burnTile());
        const QPointer<CBurnDialog> opened = page();
        QVERIFY(opened);
        UserMouse::click(opened->findChild<QWidget*>("back"));
        QTRY_VERIFY_WITH_TIMEOUT(opened.isNull(), patienceMs);
    }
}

void TstCBurnDialogOpening::windowClosedMeanwhileIsSurvived()
{
    drives->on("drutil", {"status"}, {drives->holding("tool")});
    const WhenCalled leave(*drives, status, [this] {
        window->close();
        drives->release("tool");
    });
    UserMouse::click(burnTile());
    QVERIFY(leave.isDone());
    QVERIFY(!window->isVisible());
    QVERIFY(!page()->isVisible());
}

KORVEX_TEST_MAIN(TstCBurnDialogOpening)
#include "tst_cburndialog_opening.moc"
