// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "cprogressdialog.h"
#include "modaldriver.h"
#include "testcase.h"
#include "testmain.h"
#include "usbwritehold.h"
#include "usermouse.h"
#include "widgetrecorder.h"

#include <QProgressBar>

// What the user sees while a USB disk is written, and that the window lives in every step.
class TstCBurnDialogUsbProgress : public TestCase
{
    Q_OBJECT

private slots:
    void windowLivesInEveryStep_data();
    void windowLivesInEveryStep();
    void textsInOrder_data();
    void textsInOrder();
    void progressIsGoneBeforeTheMessage();
    void pieceOfOutput_data();
    void pieceOfOutput();
    void progressNeverGoesBack();
    void secondBurnBeginsAtZero();
    void progressRubsItselfOut();
    void stopIsOfNoUse();
};

namespace
{

const QString success("Burning Successfully...");

// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }
    int count() const { return paints; }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int paints = 0;
};

} // namespace

void TstCBurnDialogUsbProgress::windowLivesInEveryStep_data()
{
    UsbWriteHold::addRows();
}

void TstCBurnDialogUsbProgress::windowLivesInEveryStep()
{
    QFETCH(int, index);
    const UsbWriteHold::Step step = UsbWriteHold::steps().at(index);
    UsbWriteFixture fixture;
    const PaintCounter paints(fixture.page);
    int ticks = 0;
    int paintsBefore = 0;
    QStringList shown;
    UsbWriteHold hold(fixture, step, [&] {
        if (ticks++ == 0) {
            paintsBefore = paints.count();
            const QWidget* const stop = fixture.progress()->findChild<QWidget*>("btncancel");
            shown = QStringList{fixture.progress()->isVisible() ? fixture.progressText() : "",
                                QString::number(fixture.progressMaximum()),
                                stop->isEnabled() ? "can be stopped" : "cannot be stopped"};
        }
        fixture.page->update();
        return ticks > 3 && paints.count() > paintsBefore + 1;
    });
    QCOMPARE(fixture.write().value(1), success);
    QVERIFY(hold.isDone());
    QCOMPARE(shown.value(0), step.progressText);
    if (step.progressText.isEmpty())
        return;
    QCOMPARE(shown.value(1), QString::number(step.maximum));
    QCOMPARE(shown.value(2), QString("cannot be stopped"));
}

void TstCBurnDialogUsbProgress::textsInOrder_data()
{
    QTest::addColumn<qint64>("installWim");
    QTest::addColumn<QStringList>("texts");

    const QStringList small = {"The USB disk is under formating...", "make usb drive bootable...",
                               "Burning the USB disk..."};
    QTest::newRow("small") << 0LL << small;
    QTest::newRow("large") << (1LL << 32)
                           << small + QStringList("Process the wim file larger than 4 GB...");
}

void TstCBurnDialogUsbProgress::textsInOrder()
{
    QFETCH(qint64, installWim);
    QFETCH(QStringList, texts);
    UsbWriteFixture fixture;
    fixture.addInstallWim(installWim);
    const WidgetRecorder recorder(fixture.progress());
    QCOMPARE(fixture.write().value(1), success);
    QCOMPARE(recorder.texts(), texts);
}

void TstCBurnDialogUsbProgress::progressIsGoneBeforeTheMessage()
{
    UsbWriteFixture fixture;
    bool isVisible = true;
    ModalDriver driver;
    driver.run("CommDialog", [&](QWidget* dialog) {
        isVisible = fixture.progress()->isVisible();
        UserMouse::click(dialog->findChild<QWidget*>("btnok"));
    });
    driver.run("CommDialog", [&](QWidget* dialog) {
        isVisible = isVisible || fixture.progress()->isVisible();
        UserMouse::click(dialog->findChild<QWidget*>("btnok"));
    });
    fixture.press("burn");
    QVERIFY(driver.done());
    QVERIFY(!isVisible);
}

void TstCBurnDialogUsbProgress::pieceOfOutput_data()
{
    QTest::addColumn<QString>("piece");
    QTest::addColumn<int>("value"); // from 7

    QTest::newRow("number and file count") << "42% 3" << 42;
    QTest::newRow("number after blanks") << "  42% 3 - boot/a b" << 42;
    QTest::newRow("number after other words") << "Extracting 42% 3" << 42;
    QTest::newRow("mark at the very start") << "% 42% 3" << 7;
    QTest::newRow("no mark") << "42%" << 7;
    QTest::newRow("no blank behind the mark") << "42%3" << 7;
    QTest::newRow("nothing") << "" << 7;
    QTest::newRow("no number") << "abc% 3" << 7;
    QTest::newRow("first mark counts") << "12% 3 - 99% of it" << 12;
    QTest::newRow("all of it") << "100% 3" << 100;
    QTest::newRow("more than all") << "250% 3" << 100;
    QTest::newRow("too large a number") << "99999999999% 3" << 7;
    QTest::newRow("less than before") << "3% 1" << 7;
    QTest::newRow("less than nothing") << "-9% 1" << 7;
}

void TstCBurnDialogUsbProgress::pieceOfOutput()
{
    QFETCH(QString, piece);
    QFETCH(int, value);
    const DriveScenario drives;
    const BurnPageFixture fixture;
    fixture.page->onUSBBurnOutput("7% 1");
    QCOMPARE(fixture.progressValue(), 7);
    fixture.page->onUSBBurnOutput(piece);
    QCOMPARE(fixture.progressValue(), value);
}

void TstCBurnDialogUsbProgress::progressNeverGoesBack()
{
    UsbWriteFixture fixture;
    QStringList actions;
    for (const QString piece : {" 10% 1\r", " 60% 2 - 5% x\r", " 20% 3\r", "% 99\r", " 80% 4\r"})
        actions += {DriveScenario::printing(piece), "sleep 50"};
    fixture.drives.on("7z", {"..."}, actions);
    const WidgetRecorder recorder(fixture.progress());
    QCOMPARE(fixture.write().value(1), success);
    const QList<int> values = recorder.values();
    QVERIFY(values.contains(10) && values.contains(60));
    QVERIFY(!values.contains(20) && !values.contains(99));
    QCOMPARE(values.last(), 80);
}

void TstCBurnDialogUsbProgress::secondBurnBeginsAtZero()
{
    UsbWriteFixture fixture;
    fixture.drives.on("7z", {"..."}, {DriveScenario::printing("100% 3\r")});
    fixture.write();
    QCOMPARE(fixture.progressValue(), 100);
    fixture.drives.on("7z", {"..."}, {DriveScenario::printing("30% 3\r")});
    fixture.write();
    QCOMPARE(fixture.progressValue(), 30);
}

// The archiver rubs out what it has written before it writes the next.
void TstCBurnDialogUsbProgress::progressRubsItselfOut()
{
    UsbWriteFixture fixture;
    const QString first("  42% 3 - boot/x");
    const QString rub(first.size(), '\b');
    fixture.drives.on("7z", {"..."},
                      {DriveScenario::printing(first + rub + QString(first.size(), ' ') + rub +
                                               "  43% 4 - boot/y")});
    QCOMPARE(fixture.write().value(1), success);
    QCOMPARE(fixture.progressValue(), 43);
    const auto* const bar = fixture.progress()->findChild<QProgressBar*>("progressBar");
    QCOMPARE(bar->text(), QString("43%"));
}

void TstCBurnDialogUsbProgress::stopIsOfNoUse()
{
    UsbWriteFixture fixture;
    const UsbWriteHold hold(
        fixture, UsbWriteHold::steps().at(UsbWriteHold::indexOf("format")), [&fixture] {
            UserMouse::click(fixture.progress()->findChild<QWidget*>("btncancel"));
            QTest::keyClick(fixture.progress(), Qt::Key_Escape);
            if (!fixture.progress()->isVisible())
                QTest::qFail("The burn was stopped", __FILE__, __LINE__);
            return true;
        });
    QCOMPARE(fixture.write().value(1), success);
    QVERIFY(hold.isDone());
    QCOMPARE(fixture.commands(), fixture.wholeRun(fixture.image(), false));
}

KORVEX_TEST_MAIN(TstCBurnDialogUsbProgress)
#include "tst_cburndialog_usbprogress.moc"
