// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "cprogressdialog.h"
#include "modaldriver.h"
#include "testcase.h"
#include "testmain.h"
#include "trigger.h"
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

// The bar gets what is read from a piece, and never less than before.
void TstCBurnDialogUsbProgress::pieceOfOutput()
{
    const DriveScenario drives;
    const BurnPageFixture fixture;
    fixture.page->onUSBBurnOutput("7% 1");
    QCOMPARE(fixture.progressValue(), 7);
    for (const char* const piece :
         {"% 42% 3", "42%", "42%3", "", "abc% 3", "99999999999% 3", "3% 1", "-9% 1"}) {
        fixture.page->onUSBBurnOutput(piece);
        QVERIFY2(fixture.progressValue() == 7, piece);
    }
    const QList<QPair<QString, int>> pieces = {
        {"12% 3 - 99% of it", 12}, {"42% 3", 42},   {"  42% 3 - boot/a b", 42},
        {"Extracting 42% 3", 42},  {"100% 3", 100}, {"250% 3", 100}};
    for (const auto& [piece, value] : pieces) {
        fixture.page->onUSBBurnOutput(piece);
        QVERIFY2(fixture.progressValue() == value, qPrintable(piece));
    }
}

void TstCBurnDialogUsbProgress::progressNeverGoesBack()
{
    UsbWriteFixture fixture;
    QStringList actions;
    for (const QString piece : {" 10% 1\r", " 60% 2 - 5% x\r"})
        actions += {DriveScenario::printing(piece),
                    fixture.drives.holding(QString::number(actions.size()))};
    for (const QString piece : {" 20% 3\r", "% 99\r", " 80% 4\r"})
        actions.append(DriveScenario::printing(piece));
    fixture.drives.on("7z", {"..."}, actions);
    const Trigger ten([&] { return fixture.progressValue() == 10; },
                      [&] { fixture.drives.release("0"); });
    const Trigger sixty([&] { return fixture.progressValue() == 60; },
                        [&] { fixture.drives.release("2"); });
    const WidgetRecorder recorder(fixture.progress());
    QCOMPARE(fixture.write().value(1), success);
    QVERIFY(ten.hasFired() && sixty.hasFired());
    QVERIFY(!recorder.values().contains(20) && !recorder.values().contains(99));
    QCOMPARE(fixture.progressValue(), 80);
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
