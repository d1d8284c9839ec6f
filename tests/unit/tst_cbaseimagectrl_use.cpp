// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagectrltest.h"
#include "onscreen.h"
#include "receiver.h"
#include "testmain.h"
#include "usermouse.h"

#include <QAccessible>
#include <QPointer>
#include <QSignalSpy>
#include <QWindow>

class TstCBaseImageCtrlUse : public ImageCtrlTest
{
    Q_OBJECT

private slots:
    void clickEmitsBothSignalsOnce();
    void releaseOutsideEmitsNothing();
    void draggingOffAndBackIsAClick();
    void releaseWithoutPressEmitsNothing();
    void otherMouseButtonsEmitNothing();
    void disabledIgnoresTheMouse();
    void aReceiverMayDeleteTheButton();
    void mouseIsOnlyInWhileItIsOverTheControl();
    void screenFollowsTheMouse();
    void screenFollowsTheButtonWhileItIsDragged();
    void keysClickOnce_data();
    void keysClickOnce();
    void keyHeldDownIsOneClick();
    void otherKeysAreLeftToTheWindow();
    void disabledIgnoresKeys();
    void tabReachesItAndAClickDoesNotFocusIt();
    void focusMarkShowsOnlyForTheKeyboard();
    void screenReadersSeeAButton();
    void screenReadersCanPressIt();
    void captionIsTheAccessibleName();
    void buttonWithoutCaptionKeepsItsAccessibleName();
};

void TstCBaseImageCtrlUse::clickEmitsBothSignalsOnce()
{
    QSignalSpy plain(button, SIGNAL(clicked()));
    QSignalSpy withState(button, SIGNAL(clicked(bool)));
    UserMouse::click(button);
    QCOMPARE(plain.count(), 1);
    QCOMPARE(withState.count(), 1);
    QCOMPARE(withState.first().first().toBool(), false);
}

void TstCBaseImageCtrlUse::releaseOutsideEmitsNothing()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    UserMouse::press(button, QPoint(5, 5));
    UserMouse::move(button, QPoint(-30, 5));
    UserMouse::release(button, QPoint(-30, 5));
    QCOMPARE(spy.count(), 0);
}

void TstCBaseImageCtrlUse::draggingOffAndBackIsAClick()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    UserMouse::press(button, QPoint(5, 5));
    UserMouse::move(button, QPoint(-30, 5));
    UserMouse::move(button, QPoint(5, 5));
    UserMouse::release(button, QPoint(5, 5));
    QCOMPARE(spy.count(), 1);
}

void TstCBaseImageCtrlUse::releaseWithoutPressEmitsNothing()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    UserMouse::press(window.get(), QPoint(5, 5));
    UserMouse::release(button, QPoint(5, 5));
    QTest::mouseRelease(button, Qt::LeftButton); // as after a double click that closed a window
    QCOMPARE(spy.count(), 0);
}

void TstCBaseImageCtrlUse::otherMouseButtonsEmitNothing()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    UserMouse::move(button, QPoint(5, 5));
    QTest::mouseClick(button, Qt::RightButton);
    QTest::mouseClick(button, Qt::MiddleButton);
    QCOMPARE(spy.count(), 0);
}

void TstCBaseImageCtrlUse::disabledIgnoresTheMouse()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    button->setEnabled(false);
    UserMouse::click(button);
    button->click();
    QCOMPARE(spy.count(), 0);
}

void TstCBaseImageCtrlUse::aReceiverMayDeleteTheButton()
{
    const QPointer<CImageButton> watched(button);
    Receiver receiver([this] { delete button; });
    connect(button, SIGNAL(clicked()), &receiver, SLOT(call()));
    QTest::keyClick(button, Qt::Key_Space);
    QVERIFY(watched.isNull());
}

void TstCBaseImageCtrlUse::mouseIsOnlyInWhileItIsOverTheControl()
{
    QVERIFY(!button->isMouseIn());
    UserMouse::move(button, QPoint(5, 5));
    QVERIFY(button->isMouseIn());
    button->move(0, 0); // away from below the cursor, before any leave event
    QVERIFY(!button->isMouseIn());
    button->move(corner);
    QVERIFY(button->isMouseIn());
    QEvent leave(QEvent::Leave); // as when another window covers the button
    QApplication::sendEvent(button, &leave);
    QVERIFY(!button->isMouseIn());
}

// Each of these is what one event has to make the control paint itself for.
void TstCBaseImageCtrlUse::screenFollowsTheMouse()
{
    const QPoint inside(5, 5);
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(button, inside), QColor(Qt::red), 30'000);
    UserMouse::move(button, inside); // enters
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(button, inside), QColor(Qt::green), 30'000);
    UserMouse::moveAway(button); // leaves
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(button, inside), QColor(Qt::red), 30'000);
    UserMouse::move(button, inside);
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(button, inside), QColor(Qt::green), 30'000);
    QTest::mousePress(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, corner + inside);
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(button, inside), QColor(Qt::blue), 30'000);
    QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, corner + inside);
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(button, inside), QColor(Qt::green), 30'000);
}

void TstCBaseImageCtrlUse::screenFollowsTheButtonWhileItIsDragged()
{
    const QPoint inside(5, 5);
    UserMouse::press(button, inside);
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(button, inside), QColor(Qt::blue), 30'000);
    // The held mouse neither leaves nor enters, it only moves.
    UserMouse::move(button, {-30, 5});
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(button, inside), QColor(Qt::red), 30'000);
    UserMouse::move(button, inside);
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(button, inside), QColor(Qt::blue), 30'000);
    UserMouse::release(button, inside);
}

void TstCBaseImageCtrlUse::keysClickOnce_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Space") << int(Qt::Key_Space);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void TstCBaseImageCtrlUse::keysClickOnce()
{
    QFETCH(int, key);
    QSignalSpy plain(button, SIGNAL(clicked()));
    QSignalSpy withState(button, SIGNAL(clicked(bool)));
    QTest::keyClick(button, static_cast<Qt::Key>(key));
    QCOMPARE(plain.count(), 1);
    QCOMPARE(withState.count(), 1);
}

void TstCBaseImageCtrlUse::keyHeldDownIsOneClick()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    QTest::keyPress(button, Qt::Key_Space);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
        QApplication::sendEvent(button, &repeat);
    }
    QTest::keyRelease(button, Qt::Key_Space);
    QCOMPARE(spy.count(), 1);
}

void TstCBaseImageCtrlUse::otherKeysAreLeftToTheWindow()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(button, &escape);
    QVERIFY(!escape.isAccepted());
    QCOMPARE(spy.count(), 0);
}

void TstCBaseImageCtrlUse::disabledIgnoresKeys()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    button->setEnabled(false);
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ");
    QApplication::sendEvent(button, &space);
    QCOMPARE(spy.count(), 0);
}

void TstCBaseImageCtrlUse::tabReachesItAndAClickDoesNotFocusIt()
{
    UserMouse::click(button);
    QVERIFY(!button->hasFocus());
    QTest::keyClick(window.get(), Qt::Key_Tab);
    QVERIFY(button->hasFocus());
}

void TstCBaseImageCtrlUse::focusMarkShowsOnlyForTheKeyboard()
{
    button->resize(100, 50);
    const QImage without = window->grab(button->geometry()).toImage();
    button->setFocus(Qt::OtherFocusReason);
    QVERIFY(button->hasFocus());
    QCOMPARE(window->grab(button->geometry()).toImage(), without);
    button->clearFocus();
    button->setFocus(Qt::TabFocusReason);
    const QImage with = window->grab(button->geometry()).toImage();
    QVERIFY(with != without);
    button->clearFocus();
    QCOMPARE(window->grab(button->geometry()).toImage(), without);
}

void TstCBaseImageCtrlUse::screenReadersSeeAButton()
{
    const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(button);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::Button);
    QVERIFY(!interface->state().disabled);
    button->setEnabled(false);
    QVERIFY(interface->state().disabled);
}

void TstCBaseImageCtrlUse::screenReadersCanPressIt()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    QAccessibleActionInterface* actions =
        QAccessible::queryAccessibleInterface(button)->actionInterface();
    QVERIFY(actions);
    const QString press = QAccessibleActionInterface::pressAction();
    QVERIFY(actions->actionNames().contains(press));
    QVERIFY(!actions->keyBindingsForAction(press).isEmpty());
    actions->doAction(press);
    QCOMPARE(spy.count(), 1);
    button->setEnabled(false);
    QVERIFY(!actions->actionNames().contains(press));
    actions->doAction(press);
    QCOMPARE(spy.count(), 1);
}

void TstCBaseImageCtrlUse::captionIsTheAccessibleName()
{
    button->SetBackGround(picture("n", Qt::red), QString(), QString(), QString(), "Edit",
                          "\n Add, delete, rename \n content in ISO file", 1);
    const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(button);
    QCOMPARE(interface->text(QAccessible::Name), QString("Edit"));
    QCOMPARE(interface->text(QAccessible::Description),
             QString("Add, delete, rename content in ISO file"));
}

void TstCBaseImageCtrlUse::buttonWithoutCaptionKeepsItsAccessibleName()
{
    button->setAccessibleName("Close");
    button->SetBackGround(picture("n", Qt::red), QString(), QString(), QString(), "", "", 0);
    QCOMPARE(button->accessibleName(), QString("Close"));
}

KORVEX_TEST_MAIN(TstCBaseImageCtrlUse)
#include "tst_cbaseimagectrl_use.moc"
