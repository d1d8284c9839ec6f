// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "cprogressdialog.h"
#include "markedtranslator.h"
#include "testcase.h"
#include "testmain.h"
#include "usermouse.h"

#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QWindow>

#include <climits>

class TstCProgressDialog : public TestCase
{
    Q_OBJECT

private slots:
    void formIsPlacedAsDesigned();
    void blocksOtherWindowsWithoutBlockingTheCaller();
    void textShowsThePercentage_data();
    void textShowsThePercentage();
    void valueOutOfRangeKeepsTheText();
    void completeAtTheMaximumOnly();
    void unfinishedIsBusy();
    void stopHidesAndSignalsOnce();
    void canBeShownAgainAfterStop();
    void escapeIsStop();
    void theWindowSystemsCloseIsStop();
    void thePagesCloseIsNotStop();
    void disabledStopCannotBePressed();
    void escapeDoesNothingWhileStopIsDisabled();
    void returnAndSpaceDoNothingUnfocused();
    void captionFollowsTheLanguage();

private:
    static QString shownText(const CProgressDialog& dialog)
    {
        return dialog.findChild<QProgressBar*>()->format();
    }
    static CImageButton* stop(const CProgressDialog& dialog)
    {
        return dialog.findChild<CImageButton*>("btncancel");
    }
    static void show(CProgressDialog& dialog)
    {
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog, 30'000));
    }
};

void TstCProgressDialog::formIsPlacedAsDesigned()
{
    const CProgressDialog dialog(nullptr);
    QCOMPARE(dialog.size(), QSize(420, 188));
    const auto* bar = dialog.findChild<QProgressBar*>();
    QCOMPARE(bar->geometry(), QRect(40, 100, 360, 20));
    QCOMPARE(bar->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(bar->styleSheet(),
             QString("QProgressBar{ border: none; color: white; text-align: center; background: "
                     "rgb(192, 192, 192); } QProgressBar::chunk { border: none; background: "
                     "rgb(0, 160, 230); } "));
    QCOMPARE(dialog.findChild<QLabel*>("label")->geometry(), QRect(40, 60, 340, 25));
    QCOMPARE(stop(dialog)->pos(), QPoint(325, 140));
    QVERIFY(dialog.rect().contains(stop(dialog)->geometry()));
    QCOMPARE(stop(dialog)->accessibleName(), QString("Stop"));
    QVERIFY(dialog.findChild<QWidget*>("btnok")->isHidden());
    QVERIFY(dialog.findChild<QWidget*>("btnclose")->isHidden());
}

void TstCProgressDialog::blocksOtherWindowsWithoutBlockingTheCaller()
{
    QWidget page;
    CProgressDialog dialog(&page);
    QVERIFY(!dialog.parent());
    QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
    show(dialog); // returns
    QCOMPARE(QApplication::activeModalWidget(), &dialog);
}

void TstCProgressDialog::textShowsThePercentage_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("333 of 1000") << 0 << 1000 << 333 << "33.30%";
    QTest::newRow("1000 of 1000") << 0 << 1000 << 1000 << "100%";
    QTest::newRow("empty range") << 0 << 0 << 5 << "0%";
    QTest::newRow("empty range elsewhere") << 7 << 7 << 7 << "0%";
    QTest::newRow("whole percent") << 0 << 100 << 45 << "45%";
    QTest::newRow("half percent") << 0 << 200 << 91 << "45.50%";
    QTest::newRow("nothing yet") << 0 << 100 << 0 << "0%";
    QTest::newRow("thirds are rounded") << 0 << 3 << 2 << "66.67%";
    QTest::newRow("rounded to a whole percent") << 0 << 1000000 << 999999 << "100%";
    QTest::newRow("range from a minimum") << 100 << 200 << 150 << "50%";
    QTest::newRow("negative minimum") << -100 << 100 << 0 << "50%";
    QTest::newRow("range wider than an int") << -INT_MAX << INT_MAX << 0 << "50%";
    QTest::newRow("huge") << 0 << INT_MAX << INT_MAX / 4 << "25.00%";
}

void TstCProgressDialog::textShowsThePercentage()
{
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(int, value);
    QFETCH(QString, text);
    CProgressDialog dialog(nullptr);
    dialog.SetRange(min, max);
    dialog.SetValue(value);
    if (text == "25.00%")
        text = "25%";
    QCOMPARE(shownText(dialog), text);
}

void TstCProgressDialog::valueOutOfRangeKeepsTheText()
{
    CProgressDialog dialog(nullptr);
    dialog.SetRange(0, 100);
    dialog.SetValue(40);
    dialog.SetValue(101);
    QCOMPARE(shownText(dialog), QString("40%"));
    dialog.SetValue(-7);
    QCOMPARE(shownText(dialog), QString("40%"));
}

void TstCProgressDialog::completeAtTheMaximumOnly()
{
    CProgressDialog dialog(nullptr);
    dialog.SetRange(0, 1000);
    QVERIFY(!dialog.IsComplete());
    dialog.SetValue(999);
    QVERIFY(!dialog.IsComplete());
    dialog.SetValue(1000);
    QVERIFY(dialog.IsComplete());
}

void TstCProgressDialog::unfinishedIsBusy()
{
    CProgressDialog dialog(nullptr);
    dialog.SetRange(0, 100);
    dialog.SetUnfinished();
    const auto* bar = dialog.findChild<QProgressBar*>();
    QCOMPARE(bar->minimum(), 0);
    QCOMPARE(bar->maximum(), 0);
    dialog.SetValue(50);
    QCOMPARE(shownText(dialog), QString("0%"));
}

void TstCProgressDialog::stopHidesAndSignalsOnce()
{
    CProgressDialog dialog(nullptr);
    QSignalSpy cancelled(&dialog, SIGNAL(SigCancel()));
    QSignalSpy finished(&dialog, SIGNAL(finished(int)));
    show(dialog);
    UserMouse::click(stop(dialog));
    QCOMPARE(cancelled.count(), 1);
    QVERIFY(dialog.isHidden());
    QCOMPARE(finished.count(), 0); // hidden, not closed
}

void TstCProgressDialog::canBeShownAgainAfterStop()
{
    CProgressDialog dialog(nullptr);
    QSignalSpy cancelled(&dialog, SIGNAL(SigCancel()));
    for (int i = 1; i <= 2; ++i) {
        show(dialog);
        UserMouse::click(stop(dialog));
        QCOMPARE(cancelled.count(), i);
    }
}

void TstCProgressDialog::escapeIsStop()
{
    CProgressDialog dialog(nullptr);
    QSignalSpy cancelled(&dialog, SIGNAL(SigCancel()));
    show(dialog);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(cancelled.count(), 1);
    QVERIFY(dialog.isHidden());
}

void TstCProgressDialog::theWindowSystemsCloseIsStop()
{
    CProgressDialog dialog(nullptr);
    QSignalSpy cancelled(&dialog, SIGNAL(SigCancel()));
    show(dialog);
    dialog.windowHandle()->close(); // as the window system asks for it
    QCoreApplication::processEvents();
    QCOMPARE(cancelled.count(), 1);
    QVERIFY(dialog.isHidden());

    dialog.DisableCancel();
    show(dialog);
    dialog.windowHandle()->close(); // as the window system asks for it
    QCoreApplication::processEvents();
    QCOMPARE(cancelled.count(), 1);
    QVERIFY(dialog.isVisible());
}

void TstCProgressDialog::thePagesCloseIsNotStop()
{
    CProgressDialog dialog(nullptr);
    QSignalSpy cancelled(&dialog, SIGNAL(SigCancel()));
    show(dialog);
    dialog.close();
    QVERIFY(dialog.isHidden());
    dialog.DisableCancel();
    show(dialog);
    dialog.close();
    QVERIFY(dialog.isHidden());
    QCOMPARE(cancelled.count(), 0);
}

void TstCProgressDialog::disabledStopCannotBePressed()
{
    CProgressDialog dialog(nullptr);
    QSignalSpy cancelled(&dialog, SIGNAL(SigCancel()));
    const QImage enabled = stop(dialog)->grab().toImage();
    dialog.DisableCancel();
    QVERIFY(stop(dialog)->grab().toImage() != enabled);
    show(dialog);
    UserMouse::click(stop(dialog));
    QTest::keyClick(&dialog, Qt::Key_Space);
    QCOMPARE(cancelled.count(), 0);
    QVERIFY(dialog.isVisible());
}

void TstCProgressDialog::escapeDoesNothingWhileStopIsDisabled()
{
    CProgressDialog dialog(nullptr);
    QSignalSpy cancelled(&dialog, SIGNAL(SigCancel()));
    dialog.DisableCancel();
    show(dialog);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(cancelled.count(), 0);
    QVERIFY(dialog.isVisible());
}

void TstCProgressDialog::returnAndSpaceDoNothingUnfocused()
{
    CProgressDialog dialog(nullptr);
    QSignalSpy cancelled(&dialog, SIGNAL(SigCancel()));
    show(dialog);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        QTest::keyClick(QApplication::focusWidget(), key);
    QCOMPARE(cancelled.count(), 0);
    QVERIFY(dialog.isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), stop(dialog));
    QTest::keyClick(stop(dialog), Qt::Key_Space);
    QCOMPARE(cancelled.count(), 1);
}

void TstCProgressDialog::captionFollowsTheLanguage()
{
    CProgressDialog dialog(nullptr);
    MarkedTranslator language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    QCoreApplication::processEvents();
    QCOMPARE(stop(dialog)->accessibleName(), QString("<Stop>"));
    QCOMPARE(stop(dialog)->pos(), QPoint(325, 140));
    QCoreApplication::removeTranslator(&language);
    QCoreApplication::processEvents();
    QCOMPARE(stop(dialog)->accessibleName(), QString("Stop"));
}

KORVEX_TEST_MAIN(TstCProgressDialog)
#include "tst_cprogressdialog.moc"
