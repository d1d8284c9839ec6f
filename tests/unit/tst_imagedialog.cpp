// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagedialog.h"
#include "testcase.h"
#include "testmain.h"

#include <QPushButton>
#include <QWindow>

// What dialogs and pages do beyond what they share with the main window.
class TstImageDialog : public TestCase
{
    Q_OBJECT

private slots:
    void dialogComesUpOverTheWindowInUse();
    void pageInsideAWindowStaysWhereItIsPut();
    void tabStaysInsideAPage();
};

void TstImageDialog::dialogComesUpOverTheWindowInUse()
{
    QWidget inUse;
    inUse.setGeometry(150, 120, 500, 400);
    inUse.show();
    inUse.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&inUse, 30'000));
    ImageDialog dialog;
    dialog.setFixedSize(300, 100);
    dialog.show();
    QCOMPARE(dialog.windowHandle()->transientParent(), inUse.windowHandle());
    QCOMPARE(dialog.frameGeometry().center(), inUse.frameGeometry().center());
    // Again after the window has been moved.
    dialog.hide();
    inUse.move(250, 200);
    QVERIFY(QTest::qWaitForWindowActive(&inUse, 30'000));
    dialog.show();
    QCOMPARE(dialog.frameGeometry().center(), inUse.frameGeometry().center());
}

void TstImageDialog::pageInsideAWindowStaysWhereItIsPut()
{
    QWidget window;
    window.setGeometry(150, 120, 500, 400);
    ImageDialog* const page = new ImageDialog;
    page->setParent(&window);
    page->move(195, 107);
    window.show();
    page->show();
    QCOMPARE(page->pos(), QPoint(195, 107));
    QVERIFY(!page->isWindow());
}

void TstImageDialog::tabStaysInsideAPage()
{
    QWidget window;
    QPushButton below("below", &window);
    ImageDialog* const page = new ImageDialog;
    page->setParent(&window);
    QPushButton first("first", page);
    QPushButton off("off", page);
    off.setEnabled(false);
    QPushButton second("second", page);
    window.show();
    page->show();
    QVERIFY(QTest::qWaitForWindowActive(&window, 30'000));
    page->setFocus();
    const auto focusAfter = [](Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        return qobject_cast<QPushButton*>(QApplication::focusWidget())->text();
    };
    QStringList order;
    for (int i = 0; i < 3; ++i)
        order.append(focusAfter(Qt::Key_Tab));
    QCOMPARE(order, QStringList({"first", "second", "first"}));
    QCOMPARE(focusAfter(Qt::Key_Backtab), QString("second"));
}

KORVEX_TEST_MAIN(TstImageDialog)
#include "tst_imagedialog.moc"
