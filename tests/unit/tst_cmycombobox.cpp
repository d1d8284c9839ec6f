// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cmycombobox.h"
#include "receiver.h"
#include "testcase.h"
#include "testmain.h"

#include <QAbstractItemView>
#include <QSignalSpy>

#include <memory>

class TstCMyComboBox : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void leftPressIsAnnouncedOnceAndBeforeTheListOpens();
    void everyPressIsAnnounced();
    void otherMouseButtonsAreNotAnnounced();
    void keyboardIsAnnounced();
    void receiverMayRefillTheList();
    void receiverMayDeleteTheBox();
    void disabledBoxIsSilent();

private:
    std::unique_ptr<CMyComboBox> box;
};

void TstCMyComboBox::init()
{
    TestCase::init();
    box = std::make_unique<CMyComboBox>();
    box->addItems({"one", "two"});
    box->show();
    QVERIFY(QTest::qWaitForWindowActive(box.get()));
}

void TstCMyComboBox::cleanup()
{
    box.reset();
    TestCase::cleanup();
}

void TstCMyComboBox::leftPressIsAnnouncedOnceAndBeforeTheListOpens()
{
    QSignalSpy spy(box.get(), SIGNAL(dropdownclicked()));
    bool open = true;
    Receiver receiver([&] { open = box->view()->isVisible(); });
    connect(box.get(), SIGNAL(dropdownclicked()), &receiver, SLOT(call()));
    QTest::mousePress(box.get(), Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QVERIFY(!open);
    QVERIFY(box->view()->isVisible());
}

void TstCMyComboBox::everyPressIsAnnounced()
{
    QSignalSpy spy(box.get(), SIGNAL(dropdownclicked()));
    for (int i = 1; i <= 2; ++i) {
        QTest::mousePress(box.get(), Qt::LeftButton);
        QCOMPARE(spy.count(), i);
        box->hidePopup();
    }
}

void TstCMyComboBox::otherMouseButtonsAreNotAnnounced()
{
    QSignalSpy spy(box.get(), SIGNAL(dropdownclicked()));
    QTest::mousePress(box.get(), Qt::RightButton);
    QTest::mousePress(box.get(), Qt::MiddleButton);
    box->hidePopup();
    QCOMPARE(spy.count(), 0);
}

void TstCMyComboBox::keyboardIsAnnounced()
{
    QSignalSpy spy(box.get(), SIGNAL(dropdownclicked()));
    QTest::keyClick(box.get(), Qt::Key_F4);
    QCOMPARE(spy.count(), 1);
    QVERIFY(box->view()->isVisible());
}

void TstCMyComboBox::receiverMayRefillTheList()
{
    Receiver receiver([this] {
        box->clear();
        box->addItem("new");
    });
    connect(box.get(), SIGNAL(dropdownclicked()), &receiver, SLOT(call()));
    QTest::mousePress(box.get(), Qt::LeftButton);
    QCOMPARE(box->count(), 1);
    QCOMPARE(box->currentText(), QString("new"));
    QVERIFY(box->view()->isVisible());
}

void TstCMyComboBox::receiverMayDeleteTheBox()
{
    Receiver receiver([this] { box.reset(); });
    connect(box.get(), SIGNAL(dropdownclicked()), &receiver, SLOT(call()));
    QMouseEvent press(QEvent::MouseButtonPress, {5, 5}, {5, 5}, {5, 5}, Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(box.get(), &press);
    QVERIFY(!box);
}

void TstCMyComboBox::disabledBoxIsSilent()
{
    QSignalSpy spy(box.get(), SIGNAL(dropdownclicked()));
    box->setEnabled(false);
    QTest::mousePress(box.get(), Qt::LeftButton);
    QCOMPARE(spy.count(), 0);
}

KORVEX_TEST_MAIN(TstCMyComboBox)
#include "tst_cmycombobox.moc"
