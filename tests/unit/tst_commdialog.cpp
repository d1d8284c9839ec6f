// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "commdialog.h"
#include "markedtranslator.h"
#include "modaldriver.h"
#include "testcase.h"
#include "testmain.h"
#include "usermouse.h"

#include <QDesktopServices>
#include <QLabel>
#include <QUrl>

// Stands in for the desktop's file browser.
class FileBrowser : public QObject
{
    Q_OBJECT

public:
    FileBrowser() { QDesktopServices::setUrlHandler("file", this, "open"); }
    ~FileBrowser() override { QDesktopServices::unsetUrlHandler("file"); }

    QStringList opened;

public slots:
    void open(const QUrl& address) { opened.append(QDir::cleanPath(address.path())); }
};

class TstCommDialog : public TestCase
{
    Q_OBJECT

private slots:
    void formIsPlacedAsDesigned();
    void looksAndBehavesLikeAMessage();
    void buttonsDecideTheResult_data();
    void buttonsDecideTheResult();
    void keysDecideTheResult_data();
    void keysDecideTheResult();
    void returnOnAFocusedButtonPressesThatOne();
    void tabGoesFromOkToTheSecondButtonToClose();
    void textIsShownAsItIs_data();
    void textIsShownAsItIs();
    void wrapsOnlyWhenAllowed();
    void wrappedTextStaysAboveTheButtons();
    void hiddenCancelLeavesOkInTheMiddle();
    void openTurnsTheSecondButtonIntoOpenFolder();
    void openFolderOpensItAndCloses_data();
    void openFolderOpensItAndCloses();
    void okDoesNotOpenTheFolder();
    void captionsFollowTheLanguage();
    void descendantsOverrideWhatTheButtonsDo();

private:
    static QWidget* part(const QWidget& dialog, const char* name)
    {
        return dialog.findChild<QWidget*>(name);
    }
};

void TstCommDialog::formIsPlacedAsDesigned()
{
    const CommDialog dialog(nullptr);
    QCOMPARE(dialog.objectName(), QString("CommDialog"));
    QCOMPARE(dialog.size(), QSize(420, 188));
    QCOMPARE(part(dialog, "btnclose")->pos(), QPoint(5, 5));
    QCOMPARE(part(dialog, "btnok")->pos(), QPoint(80, 140));
    QCOMPARE(part(dialog, "btncancel")->pos(), QPoint(260, 140));
    const auto* label = dialog.findChild<QLabel*>("label");
    QCOMPARE(label->pos(), QPoint(40, 50));
    QCOMPARE(label->styleSheet(), QString("font:13px;\ncolor:#606060;"));
    QVERIFY(!label->wordWrap());
    for (const QWidget* child : dialog.findChildren<QWidget*>())
        QVERIFY2(dialog.rect().contains(child->geometry()), qPrintable(child->objectName()));
}

void TstCommDialog::looksAndBehavesLikeAMessage()
{
    QWidget parent;
    for (QWidget* given : {static_cast<QWidget*>(nullptr), &parent}) {
        const CommDialog dialog(given);
        QVERIFY(!dialog.parent()); // with a parent as well as without
        QVERIFY(dialog.isModal());
        QCOMPARE(dialog.windowTitle(), QString("Korvex ISO Editor"));
        QCOMPARE(part(dialog, "btnok")->accessibleName(), QString("OK"));
        QCOMPARE(part(dialog, "btncancel")->accessibleName(), QString("NO"));
        QCOMPARE(part(dialog, "btnclose")->accessibleName(), QString("Close"));
    }
}

void TstCommDialog::buttonsDecideTheResult_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << "btnok" << 1;
    QTest::newRow("NO") << "btncancel" << 0;
    QTest::newRow("close") << "btnclose" << 0;
}

void TstCommDialog::buttonsDecideTheResult()
{
    QFETCH(QString, button);
    QFETCH(int, result);
    CommDialog dialog(nullptr);
    dialog.SetText("Continue?");
    ModalDriver driver;
    driver.press("CommDialog", button);
    QCOMPARE(dialog.exec(), result);
    QCOMPARE(driver.texts(), QStringList{"Continue?"});
}

void TstCommDialog::keysDecideTheResult_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("result");
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 0;
    QTest::newRow("Return") << int(Qt::Key_Return) << 1;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << 1;
}

void TstCommDialog::keysDecideTheResult()
{
    QFETCH(int, key);
    QFETCH(int, result);
    CommDialog dialog(nullptr);
    ModalDriver driver;
    driver.key("CommDialog", static_cast<Qt::Key>(key));
    QCOMPARE(dialog.exec(), result);
}

void TstCommDialog::returnOnAFocusedButtonPressesThatOne()
{
    CommDialog dialog(nullptr);
    ModalDriver driver;
    driver.run("CommDialog", [](QWidget* shown) {
        part(*shown, "btncancel")->setFocus(Qt::TabFocusReason);
        QTest::keyClick(shown->focusWidget(), Qt::Key_Return);
    });
    QCOMPARE(dialog.exec(), 0);
}

void TstCommDialog::tabGoesFromOkToTheSecondButtonToClose()
{
    CommDialog dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog, 30'000));
    for (const char* name : {"btnok", "btncancel", "btnclose", "btnok"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString(name));
    }
}

void TstCommDialog::textIsShownAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("markup") << "<b>not bold</b><br>&amp;";
    QTest::newRow("ampersand") << "Tom & Jerry";
    QTest::newRow("Unicode") << QString::fromUtf8("画像を作成しました — ÄÖÜ");
    QTest::newRow("lines") << "one\ntwo";
}

void TstCommDialog::textIsShownAsItIs()
{
    QFETCH(QString, text);
    CommDialog dialog(nullptr);
    dialog.SetText(text);
    const auto* label = dialog.findChild<QLabel*>("label");
    QCOMPARE(label->text(), text);
    QCOMPARE(label->textFormat(), Qt::PlainText);
}

void TstCommDialog::wrapsOnlyWhenAllowed()
{
    CommDialog dialog(nullptr);
    const auto* label = dialog.findChild<QLabel*>("label");
    dialog.SetText(QString("word ").repeated(40));
    QVERIFY(label->sizeHint().width() > label->width());
    dialog.SetAllowWarp();
    QVERIFY(label->heightForWidth(label->width()) > 2 * label->fontMetrics().height());
}

void TstCommDialog::wrappedTextStaysAboveTheButtons()
{
    CommDialog dialog(nullptr);
    dialog.SetAllowWarp();
    dialog.SetText("Your USB drive will be formatted and all data in it will be deleted! "
                   "Do you want to continue? Files that are needed elsewhere should be copied.");
    auto* label = dialog.findChild<QLabel*>("label");
    label->ensurePolished(); // its style sheet sets the font
    QVERIFY(label->heightForWidth(label->width()) <= label->height());
    QVERIFY(label->geometry().bottom() < part(dialog, "btnok")->y());
}

void TstCommDialog::hiddenCancelLeavesOkInTheMiddle()
{
    CommDialog dialog(nullptr);
    dialog.SetCancelHidden();
    const QWidget* ok = part(dialog, "btnok");
    QVERIFY(part(dialog, "btncancel")->isHidden());
    QCOMPARE(ok->pos(), QPoint((420 - ok->width()) / 2, 140));
}

void TstCommDialog::openTurnsTheSecondButtonIntoOpenFolder()
{
    CommDialog dialog(nullptr);
    auto* button = dialog.findChild<CImageButton*>("btncancel");
    const QImage before = button->grab().toImage();
    dialog.SetOpen("/");
    QCOMPARE(button->accessibleName(), QString("Open Folder"));
    QVERIFY(button->grab().toImage() != before);
    QCOMPARE(button->size(), QSize(110, 28));
    QVERIFY(button->rect().contains(button->captionRect()));
}

void TstCommDialog::openFolderOpensItAndCloses_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("a folder") << QDir::tempPath();
    QTest::newRow("no longer there") << "/no such folder";
    QTest::newRow("odd name") << QString::fromUtf8("/tmp/a #1 ? 100% é");
}

void TstCommDialog::openFolderOpensItAndCloses()
{
    QFETCH(QString, path);
    const FileBrowser browser;
    CommDialog dialog(nullptr);
    dialog.SetOpen(path);
    ModalDriver driver;
    driver.press("CommDialog", "btncancel");
    QCOMPARE(dialog.exec(), 0);
    QCOMPARE(browser.opened, QStringList{path});
}

void TstCommDialog::okDoesNotOpenTheFolder()
{
    const FileBrowser browser;
    CommDialog dialog(nullptr);
    dialog.SetOpen("/tmp");
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    QCOMPARE(dialog.exec(), 1);
    QVERIFY(browser.opened.isEmpty());
}

void TstCommDialog::captionsFollowTheLanguage()
{
    CommDialog dialog(nullptr);
    dialog.SetOpen("/tmp");
    dialog.SetText("Done.");
    dialog.show();
    MarkedTranslator language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    QCoreApplication::processEvents();
    QCOMPARE(part(dialog, "btncancel")->accessibleName(), QString("<Open Folder>"));
    QCOMPARE(part(dialog, "btnclose")->accessibleName(), QString("<Close>"));
    QCOMPARE(dialog.findChild<QLabel*>("label")->text(), QString("Done."));
    QCoreApplication::removeTranslator(&language);
    QCoreApplication::processEvents();
    QCOMPARE(part(dialog, "btncancel")->accessibleName(), QString("Open Folder"));
}

// A dialog with buttons of other effect.
class OverridingDialog : public CommDialog
{
    Q_OBJECT

public:
    OverridingDialog()
        : CommDialog(nullptr)
    {
    }

    QStringList pressed;

public slots:
    void OnBtnCancel() override { pressed.append("cancel"); }
    void OnBtnOK() override { pressed.append("ok"); }
    void OnBtnClose() override { pressed.append("close"); }
};

void TstCommDialog::descendantsOverrideWhatTheButtonsDo()
{
    OverridingDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog, 30'000));
    for (const char* name : {"btncancel", "btnclose", "btnok"})
        UserMouse::click(part(dialog, name));
    QCOMPARE(dialog.pressed, QStringList({"cancel", "close", "ok"}));
    QVERIFY(dialog.isVisible());
}

KORVEX_TEST_MAIN(TstCommDialog)
#include "tst_commdialog.moc"
