// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cmycombobox.h"
#include "receiver.h"
#include "testcase.h"
#include "testmain.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QToolTip>

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
    void shortTextIsPaintedAsAnyBoxPaintsIt();
    void longTextLosesItsMiddleAndKeepsItsEnds();
    void longTextIsCutAtTheArrow();
    void longTextIsWholeInTheToolTip();
    void shortTextHasNoToolTip();
    void emptyBoxHasNoToolTip();
    void openListIsAsWideAsItsLongestText();
    void choiceOfALongTextIsTheWholeText();

private:
    // How the box looks with this text alone.
    QImage painted(const QString& text);
    // The mouse rests on the box.
    void rest();

    std::unique_ptr<CMyComboBox> box;
};

namespace
{

const QString longText = "HL-DT-ST DVDRAM GP65NS60 with a rather long name PF00 (/dev/disk12)";

} // namespace

void TstCMyComboBox::init()
{
    TestCase::init();
    box = std::make_unique<CMyComboBox>();
    box->addItems({"one", "two"});
    box->show();
    QVERIFY(QTest::qWaitForWindowActive(box.get(), 30'000));
}

void TstCMyComboBox::cleanup()
{
    QToolTip::hideText();
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

QImage TstCMyComboBox::painted(const QString& text)
{
    box->clear();
    box->addItem(text);
    return box->grab().toImage();
}

void TstCMyComboBox::rest()
{
    QHelpEvent event(QEvent::ToolTip, {5, 5}, box->mapToGlobal({5, 5}));
    QApplication::sendEvent(box.get(), &event);
}

void TstCMyComboBox::shortTextIsPaintedAsAnyBoxPaintsIt()
{
    box->resize(200, 26);
    const QImage shown = painted("two");
    QComboBox plain;
    plain.addItem("two");
    plain.resize(box->size());
    plain.show();
    QVERIFY(QTest::qWaitForWindowActive(&plain, 30'000));
    box->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(box.get(), 30'000));
    plain.clearFocus();
    box->clearFocus();
    QCOMPARE(painted("two"), plain.grab().toImage());
    QVERIFY(painted("one") != shown);
}

void TstCMyComboBox::longTextLosesItsMiddleAndKeepsItsEnds()
{
    box->resize(200, 26);
    const QImage shown = painted(longText);
    QCOMPARE(painted(QString(longText).replace("rather long", "really long")), shown);
    QVERIFY(painted(QString(longText).replace("disk12", "disk13")) != shown);
    QVERIFY(painted(QString(longText).replace("HL-DT", "XL-DT")) != shown);
}

// Nothing of the text lies under the arrow or on the frame.
void TstCMyComboBox::longTextIsCutAtTheArrow()
{
    box->resize(200, 26);
    const QImage empty = painted("");
    const QImage shown = painted(longText);
    for (const int x : {0, 1, 2, shown.width() - 16, shown.width() - 1}) {
        for (int y = 0; y < shown.height(); ++y)
            QCOMPARE(shown.pixel(x, y), empty.pixel(x, y));
    }
}

void TstCMyComboBox::longTextIsWholeInTheToolTip()
{
    box->resize(200, 26);
    painted(longText);
    rest();
    QCOMPARE(QToolTip::text(), longText);
}

void TstCMyComboBox::shortTextHasNoToolTip()
{
    box->resize(200, 26);
    painted(longText);
    rest();
    QCOMPARE(QToolTip::text(), longText);
    // Nor does it keep the one that it had.
    painted("two");
    rest();
    QTRY_COMPARE_WITH_TIMEOUT(QToolTip::text(), QString(), 30'000);
    painted(longText);
    rest();
    QCOMPARE(QToolTip::text(), longText);
    box->resize(800, 26);
    rest();
    QTRY_COMPARE_WITH_TIMEOUT(QToolTip::text(), QString(), 30'000);
}

void TstCMyComboBox::emptyBoxHasNoToolTip()
{
    painted(longText);
    rest();
    box->clear();
    rest();
    QTRY_COMPARE_WITH_TIMEOUT(QToolTip::text(), QString(), 30'000);
}

void TstCMyComboBox::openListIsAsWideAsItsLongestText()
{
    box->resize(120, 26);
    box->addItem(longText);
    QTest::mousePress(box.get(), Qt::LeftButton);
    QVERIFY(box->view()->viewport()->width() >= box->fontMetrics().horizontalAdvance(longText));
    box->hidePopup();
}

void TstCMyComboBox::choiceOfALongTextIsTheWholeText()
{
    box->resize(120, 26);
    painted(longText);
    QCOMPARE(box->currentText(), longText);
    QCOMPARE(box->itemText(0), longText);
}

KORVEX_TEST_MAIN(TstCMyComboBox)
#include "tst_cmycombobox.moc"
