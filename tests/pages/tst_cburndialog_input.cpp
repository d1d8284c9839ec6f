// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnpagefixture.h"
#include "cimagebutton.h"
#include "drivescenario.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "usermouse.h"

#include <QLabel>
#include <QRadioButton>

// The Burn page under the mouse and the keyboard.
class TstCBurnDialogInput : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void tabGoesThroughWhatTheTargetNeeds_data();
    void tabGoesThroughWhatTheTargetNeeds();
    void clickOnATitleChoosesItsTarget();
    void otherMouseButtonsOnATitleChooseNothing();
    void titleLetGoOutsideIsNotChosen();
    void arrowKeyChoosesTheOtherTarget();
    void keyboardOpensAListAfterLookingForDrives();
    void spaceOnBackLeavesThePage();
    void escapeDoesNotLeaveThePage();

private:
    template<class Widget>
    Widget* child(const char* name) const
    {
        return fixture->page->findChild<Widget*>(name);
    }

    std::unique_ptr<DriveScenario> drives;
    std::unique_ptr<BurnPageFixture> fixture;
};

void TstCBurnDialogInput::initTestCase()
{
    setApplicationLook();
}

void TstCBurnDialogInput::init()
{
    TestCase::init();
    drives = std::make_unique<DriveScenario>();
    fixture = std::make_unique<BurnPageFixture>();
    QVERIFY(QTest::qWaitForWindowActive(&fixture->window));
}

void TstCBurnDialogInput::cleanup()
{
    fixture.reset();
    drives.reset();
    TestCase::cleanup();
}

void TstCBurnDialogInput::tabGoesThroughWhatTheTargetNeeds_data()
{
    QTest::addColumn<bool>("usb");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("disc") << false
                          << QStringList({"isofile", "browser", "rdvd", "dvdlist", "back", "burn"});
    QTest::newRow("usb") << true
                         << QStringList({"isofile", "browser", "rusb", "usblist", "ptlist",
                                         "sysfilelist", "volumelab", "back", "burn"});
}

// The marks are one group: Tab goes to the chosen one, the arrow keys to the other.
void TstCBurnDialogInput::tabGoesThroughWhatTheTargetNeeds()
{
    QFETCH(bool, usb);
    QFETCH(QStringList, names);
    if (usb)
        fixture->chooseUsb();
    fixture->line("isofile")->setFocus();
    QStringList visited;
    for (int i = 0; i < names.size(); ++i) {
        visited.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(visited, names);
    QCOMPARE(QApplication::focusWidget(), fixture->line("isofile"));
}

void TstCBurnDialogInput::clickOnATitleChoosesItsTarget()
{
    UserMouse::click(child<QLabel>("bootUSB"));
    QVERIFY(child<QRadioButton>("rusb")->isChecked());
    QVERIFY(fixture->list("usblist")->isEnabled());
    UserMouse::click(child<QLabel>("bootDVD"));
    QVERIFY(child<QRadioButton>("rdvd")->isChecked());
    QVERIFY(!fixture->list("usblist")->isEnabled());
}

void TstCBurnDialogInput::otherMouseButtonsOnATitleChooseNothing()
{
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton})
        QTest::mouseClick(child<QLabel>("bootUSB"), button);
    QVERIFY(child<QRadioButton>("rdvd")->isChecked());
}

void TstCBurnDialogInput::titleLetGoOutsideIsNotChosen()
{
    auto* const title = child<QLabel>("bootUSB");
    UserMouse::press(title, title->rect().center());
    UserMouse::release(title, {5, 300});
    QVERIFY(child<QRadioButton>("rdvd")->isChecked());
}

void TstCBurnDialogInput::arrowKeyChoosesTheOtherTarget()
{
    child<QRadioButton>("rdvd")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QVERIFY(child<QRadioButton>("rusb")->isChecked());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    QVERIFY(child<QRadioButton>("rdvd")->isChecked());
}

void TstCBurnDialogInput::keyboardOpensAListAfterLookingForDrives()
{
    drives->addOptical(" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk3");
    fixture->list("dvdlist")->setFocus();
    QTest::keyClick(fixture->list("dvdlist"), Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(fixture->list("dvdlist")->count(), 1);
    QVERIFY(fixture->list("dvdlist")->findChild<QFrame*>()->isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(fixture->page->isVisible());
}

void TstCBurnDialogInput::spaceOnBackLeavesThePage()
{
    fixture->button("back")->setFocus();
    QTest::keyClick(fixture->button("back"), Qt::Key_Space);
    QTRY_VERIFY_WITH_TIMEOUT(fixture->page.isNull(), patienceMs);
}

void TstCBurnDialogInput::escapeDoesNotLeaveThePage()
{
    fixture->line("isofile")->setFocus();
    QTest::keyClick(fixture->line("isofile"), Qt::Key_Escape);
    QVERIFY(fixture->page->isVisible());
}

KORVEX_TEST_MAIN(TstCBurnDialogInput)
#include "tst_cburndialog_input.moc"
