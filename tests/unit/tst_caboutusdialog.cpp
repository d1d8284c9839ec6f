// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "caboutusdialog.h"
#include "cimagebutton.h"
#include "modaldriver.h"
#include "testcase.h"
#include "testmain.h"

#include <QDesktopServices>
#include <QLabel>
#include <QUrl>

class TstCAboutusDialog : public TestCase
{
    Q_OBJECT

private slots:
    void textsStandOnThePicture();
    void leavingCloses_data();
    void leavingCloses();
    void openUrlAsksTheBrowser();

public slots:
    void browse(const QUrl& address) { browsed.append(address); }

private:
    QList<QUrl> browsed;
};

void TstCAboutusDialog::textsStandOnThePicture()
{
    const CAboutusDialog dialog;
    QCOMPARE(dialog.windowTitle(), QString("Korvex ISO Editor"));
    QCOMPARE(dialog.size(), QSize(460, 300));
    for (const char* name : {"label_first", "label_copyright"}) {
        const auto* label = dialog.findChild<QLabel*>(name);
        QVERIFY(dialog.rect().contains(label->geometry()));
        QVERIFY(!label->text().isEmpty());
        QVERIFY(label->heightForWidth(label->width()) <= label->height());
        QCOMPARE(label->font().family(), QString("Microsoft YaHei"));
    }
    QVERIFY(dialog.findChild<QLabel*>("label_copyright")->text().contains("Korvex"));
}

void TstCAboutusDialog::leavingCloses_data()
{
    QTest::addColumn<bool>("byButton");
    QTest::newRow("close button") << true;
    QTest::newRow("Escape") << false;
}

void TstCAboutusDialog::leavingCloses()
{
    QFETCH(bool, byButton);
    CAboutusDialog dialog;
    ModalDriver driver;
    if (byButton)
        driver.press("CAboutusDialog", "close");
    else
        driver.key("CAboutusDialog", Qt::Key_Escape);
    QCOMPARE(dialog.exec(), 0);
}

void TstCAboutusDialog::openUrlAsksTheBrowser()
{
    QDesktopServices::setUrlHandler("https", this, "browse");
    CAboutusDialog dialog;
    dialog.openUrl("https://example.org/a?b=c#d");
    QDesktopServices::unsetUrlHandler("https");
    QCOMPARE(browsed, QList<QUrl>{QUrl("https://example.org/a?b=c#d")});
}

KORVEX_TEST_MAIN(TstCAboutusDialog)
#include "tst_caboutusdialog.moc"
