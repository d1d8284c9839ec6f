// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "modaldriver.h"
#include "testcase.h"
#include "testmain.h"
#include "util.h"

#include <QDesktopServices>
#include <QLabel>
#include <QUrl>

class TstUtilMessages : public TestCase
{
    Q_OBJECT

private slots:
    void errorShowsTheTextWithOkOnly();
    void errorWrapsALongText();
    void openDoesNotWrapALongText();
    void openOpensTheFolder();
    void chooseReturnsTheAnswer_data();
    void chooseReturnsTheAnswer();
    void chooseShowsItsPictureAndWraps();
    void messagesOneAfterAnother();

public slots:
    void browse(const QUrl& address) { browsed.append(QDir::cleanPath(address.path())); }

private:
    static const QString longText;

    QStringList browsed;
};

const QString TstUtilMessages::longText =
    "Insufficient space on disk, please change a large-capacity USB or CD/DVD. The image needs "
    "more room than the drive has, even when everything on it is deleted.";

void TstUtilMessages::errorShowsTheTextWithOkOnly()
{
    ModalDriver driver;
    driver.run("CommDialog", [](QWidget* dialog) {
        const auto* ok = dialog->findChild<CImageButton*>("btnok");
        QVERIFY(!dialog->findChild<CImageButton*>("btncancel")->isVisible());
        QCOMPARE(ok->x(), (dialog->width() - ok->width()) / 2);
        dialog->close();
    });
    Util::ShowError("Wrong.");
    QCOMPARE(driver.texts(), QStringList{"Wrong."});
}

void TstUtilMessages::errorWrapsALongText()
{
    ModalDriver driver;
    driver.run("CommDialog", [](QWidget* dialog) {
        const auto* label = dialog->findChild<QLabel*>("label");
        QVERIFY(label->wordWrap());
        QVERIFY(label->heightForWidth(label->width()) <= label->height());
        QVERIFY(label->heightForWidth(label->width()) >= 2 * label->fontMetrics().height());
        dialog->close();
    });
    Util::ShowError(longText);
    QVERIFY(driver.done());
}

void TstUtilMessages::openDoesNotWrapALongText()
{
    ModalDriver driver;
    driver.run("CommDialog", [](QWidget* dialog) {
        QVERIFY(!dialog->findChild<QLabel*>("label")->wordWrap());
        dialog->close();
    });
    Util::ShowOpen(longText, "/tmp");
    QVERIFY(driver.done());
}

void TstUtilMessages::openOpensTheFolder()
{
    QDesktopServices::setUrlHandler("file", this, "browse");
    ModalDriver driver;
    driver.press("CommDialog", "btncancel");
    Util::ShowOpen("Extract files successfully.", "/tmp");
    QDesktopServices::unsetUrlHandler("file");
    QCOMPARE(driver.texts(), QStringList{"Extract files successfully."});
    QCOMPARE(browsed, QStringList{"/tmp"});
}

void TstUtilMessages::chooseReturnsTheAnswer_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("answer");
    QTest::newRow("OK") << "btnok" << 1;
    QTest::newRow("NO") << "btncancel" << 0;
    QTest::newRow("close") << "btnclose" << 0;
}

void TstUtilMessages::chooseReturnsTheAnswer()
{
    QFETCH(QString, button);
    QFETCH(int, answer);
    ModalDriver driver;
    driver.press("CommDialog", button);
    QCOMPARE(Util::ShowChoose(":/nwu/select_files_extract", "Continue?"), answer);
    QCOMPARE(driver.texts(), QStringList{"Continue?"});
}

void TstUtilMessages::chooseShowsItsPictureAndWraps()
{
    ModalDriver driver;
    driver.run("CommDialog", [](QWidget* dialog) {
        QCOMPARE(dialog->size(), QSize(400, 300));
        QVERIFY(dialog->findChild<QLabel*>("label")->wordWrap());
        dialog->close();
    });
    Util::ShowChoose(":/nwu/select_files_extract", longText);
    QVERIFY(driver.done());
}

void TstUtilMessages::messagesOneAfterAnother()
{
    ModalDriver driver;
    for (int i = 0; i < 3; ++i)
        driver.press("CommDialog", "btnok");
    Util::ShowError("one");
    Util::ShowError("two");
    QCOMPARE(Util::ShowChoose(":/nwu/commdialogbg", "three"), 1);
    QCOMPARE(driver.texts(), QStringList({"one", "two", "three"}));
}

KORVEX_TEST_MAIN(TstUtilMessages)
#include "tst_util_messages.moc"
