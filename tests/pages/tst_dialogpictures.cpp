// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "buttonpictures.h"
#include "caboutusdialog.h"
#include "cimagebutton.h"
#include "cinputdialog.h"
#include "cprogressdialog.h"
#include "gerneraldialog.h"
#include "modaldriver.h"
#include "scheckboxheaderview.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "textfit.h"
#include "usermouse.h"
#include "util.h"

#include <QHeaderView>
#include <QPainter>
#include <QTableWidget>

#include <functional>

// Renders every dialog into the screenshots folder, at the scale that the test runs with.
class TstDialogPictures : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void message();
    void success();
    void question();
    void notice();
    void burnNotices_data();
    void burnNotices();
    void progress();
    void busy();
    void input();
    void about();
    void checkBoxHeader();
    void buttonStates();
    void buttonsShowThePictureOfTheirState();

private:
    void shoot(QWidget* widget, const QString& name);
    // Photographs the message box that show() opens and closes it.
    void shootModal(const std::function<void()>& show, const QString& name);

    static QList<CImageButton*> addButtons(QWidget* window);
    // Normal, hover, pressed, disabled, focused.
    static QList<QPixmap> statesOf(CImageButton* button);

    QString folder;
};

void TstDialogPictures::initTestCase()
{
    setApplicationLook();
    folder = QString(KORVEX_SCREENSHOTS "/%1x").arg(qRound(qApp->devicePixelRatio()));
    QVERIFY(QDir().mkpath(folder));
}

void TstDialogPictures::shoot(QWidget* widget, const QString& name)
{
    QVERIFY(QTest::qWaitForWindowExposed(widget->window()));
    const QImage image = widget->grab().toImage();
    QVERIFY(image.save(QString("%1/%2.png").arg(folder, name)));

    QCOMPARE(image.size(), widget->size() * widget->devicePixelRatioF());
    const QRgb corner = image.pixel(image.rect().center());
    bool blank = true;
    for (int y = 0; y < image.height() && blank; ++y) {
        for (int x = 0; x < image.width() && blank; ++x)
            blank = image.pixel(x, y) == corner;
    }
    QVERIFY(!blank);

    for (const CBaseImageCtrl* control : widget->findChildren<CBaseImageCtrl*>()) {
        if (!control->isVisible())
            continue;
        QVERIFY2(widget->rect().contains(control->geometry()), qPrintable(control->objectName()));
        QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
    }
    const QStringList cut = cutTexts(widget);
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join("; ")));
}

void TstDialogPictures::shootModal(const std::function<void()>& show, const QString& name)
{
    ModalDriver driver;
    driver.run("QDialog", [this, name](QWidget* dialog) {
        shoot(dialog, name);
        dialog->close();
    });
    show();
    QVERIFY(driver.done());
}

void TstDialogPictures::message()
{
    shootModal([] { Util::ShowError("Please drag the icon to Application folder first!"); },
               "dialog-error");
    shootModal(
        [] {
            Util::ShowError("Insufficient space on disk, please change a large-capacity USB or "
                            "CD/DVD. The image needs more room than the drive has, even when "
                            "everything on it is deleted.");
        },
        "dialog-error-long");
}

void TstDialogPictures::success()
{
    shootModal([] { Util::ShowOpen("Extract files successfully.", "/tmp"); }, "dialog-success");
}

void TstDialogPictures::question()
{
    QVERIFY(QFile::exists(":/nwu/format_usb"));
    shootModal(
        [] {
            Util::ShowChoose(":/nwu/format_usb",
                             "Your USB drive will be formatted and all data in it will be "
                             "deleted! Do you want to continue?");
        },
        "dialog-question");
}

void TstDialogPictures::notice()
{
    GerneralDialog dialog(nullptr);
    dialog.SetBackGround(":/nwu/select_files_extract",
                         "Please select the files or folders you want to extract");
    dialog.AddOK(120, 0);
    shootModal([&] { dialog.exec(); }, "dialog-notice");
    GerneralDialog choice(nullptr);
    choice.SetBackGround(":/nwu/select_files_extract", "Do you want to continue?");
    choice.AddOK(120, 80);
    choice.AddNo(120, 220);
    shootModal([&] { choice.exec(); }, "dialog-notice-choice");
}

void TstDialogPictures::burnNotices_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("burn-fails") << "Burn Failed! Do as following:\n1.Try to burn again.\n2.Change "
                                   "another USB drive or DVD.";
    QTest::newRow("insert_usb") << "Please insert your USB drive to computer";
    QTest::newRow("insufficient_space")
        << "Insufficient space on disk, please change a large-capacity USB or CD/DVD.";
}

void TstDialogPictures::burnNotices()
{
    QFETCH(QString, text);
    const QString picture = QTest::currentDataTag();
    QVERIFY(QFile::exists(":/nwu/" + picture));
    GerneralDialog dialog(nullptr);
    dialog.SetBackGround(":/nwu/" + picture, text);
    dialog.AddOK(123, 0);
    shootModal([&] { dialog.exec(); }, "dialog-" + picture);
}

void TstDialogPictures::progress()
{
    CProgressDialog dialog(nullptr);
    dialog.SetText("Extracting files...");
    dialog.SetRange(0, 1000);
    dialog.SetValue(333);
    dialog.show();
    shoot(&dialog, "dialog-progress");
    dialog.DisableCancel();
    shoot(&dialog, "dialog-progress-no-stop");
}

void TstDialogPictures::busy()
{
    CProgressDialog dialog(nullptr);
    dialog.SetText("Loading...");
    dialog.SetUnfinished();
    dialog.show();
    shoot(&dialog, "dialog-busy");
}

void TstDialogPictures::input()
{
    CInputDialog dialog(nullptr);
    dialog.SetInput("New Folder");
    shootModal([&] { dialog.exec(); }, "dialog-input");
}

void TstDialogPictures::about()
{
    CAboutusDialog dialog;
    shootModal([&] { dialog.exec(); }, "dialog-about");
}

void TstDialogPictures::checkBoxHeader()
{
    QTableWidget table(2, 4);
    auto* header = new SCheckBoxHeaderView(0, Qt::Horizontal, &table);
    table.setHorizontalHeader(header);
    table.setHorizontalHeaderLabels({"File Name", " Size", "Type", "Time"});
    table.verticalHeader()->hide();
    table.resize(431, 120);
    header->setChecked(true);
    for (int column = 0; column < 4; ++column)
        table.setColumnWidth(column, column == 0 ? 117 : 107);
    table.show();
    shoot(&table, "check-box-header");
}

QList<CImageButton*> TstDialogPictures::addButtons(QWidget* window)
{
    struct Kind
    {
        const char* caption;
        const char* pictures[4];
        int style;
    };
    const Kind kinds[] = {
        {"OK", {"OK1", "OK2", "OK3", "OK3"}, 5},
        {"NO", {"NO_1", "NO_2", "NO_3", "NO_3"}, 4},
        {"Stop", {"Stop1", "Stop2", "Stop3", "Stop4"}, 12},
        {"Open Folder", {"Open-Folder1", "Open-Folder2", "Open-Folder2", "Open-Folder3"}, 13},
    };
    QList<CImageButton*> buttons;
    for (const Kind& kind : kinds) {
        auto* button = new CImageButton(window);
        QStringList paths;
        for (const char* picture : kind.pictures)
            paths.append(QString(":/nwu/") + picture);
        button->SetBackGround(paths[0], paths[1], paths[2], paths[3], kind.caption, "", kind.style);
        button->move(10 + 130 * buttons.size(), 10);
        buttons.append(button);
    }
    return buttons;
}

QList<QPixmap> TstDialogPictures::statesOf(CImageButton* button)
{
    QList<QPixmap> states;
    UserMouse::moveAway(button);
    states.append(button->grab());
    UserMouse::move(button, QPoint(5, 5));
    states.append(button->grab());
    UserMouse::press(button, QPoint(5, 5));
    states.append(button->grab());
    UserMouse::release(button, QPoint(5, 5));
    UserMouse::moveAway(button);
    button->setEnabled(false);
    states.append(button->grab());
    button->setEnabled(true);
    button->setFocus(Qt::TabFocusReason);
    states.append(button->grab());
    return states;
}

void TstDialogPictures::buttonsShowThePictureOfTheirState()
{
    // Each button's name with that of its pictures and their numbers: normal, under the mouse,
    // pressed and disabled.
    const auto check = [](ImageDialog& dialog, const QStringList& buttons) {
        dialog.setModal(false);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog, 30'000));
        QStringList seen;
        for (const QString& button : buttons) {
            auto* const control = dialog.findChild<CImageButton*>(button.section(' ', 0, 0));
            QVERIFY2(control && control->isVisible(), qPrintable(button));
            const QString picture = button.section(' ', 1, 1);
            seen << control->objectName() + ' ' + picture + ' ' + shownPictures(control, picture);
        }
        QCOMPARE(seen, buttons);
    };
    CommDialog message(nullptr);
    check(message, {"btnok OK 1233", "btncancel NO_ 1233", "btnclose osxclose 1234"});
    CommDialog success(nullptr);
    success.SetOpen("/");
    check(success, {"btncancel Open-Folder 1223"});
    CProgressDialog progress(nullptr);
    check(progress, {"btncancel Stop 1234"});
    GerneralDialog notice(nullptr);
    notice.SetBackGround(":/nwu/select_files_extract", "Do you want to continue?");
    notice.AddOK(120, 80);
    notice.AddNo(120, 220);
    check(notice, {"btnok OK_ 1231", "btnno NO_ 1231", "btnclose osxclose 1234"});
    CAboutusDialog about;
    check(about, {"close osxclose 1234"});
}

// The dialogs' buttons, row by row: normal, hover, pressed, disabled, focused.
void TstDialogPictures::buttonStates()
{
    QWidget window;
    window.setGeometry(0, 0, 4 * 130 + 10, 5 * 40 + 10);
    const QList<CImageButton*> buttons = addButtons(&window);
    window.setFocus();
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    QPixmap sheet(window.size() * window.devicePixelRatioF());
    sheet.setDevicePixelRatio(window.devicePixelRatioF());
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    for (CImageButton* button : buttons) {
        const QList<QPixmap> states = statesOf(button);
        for (int i = 0; i < states.size(); ++i) {
            painter.drawPixmap(button->pos() + QPoint(0, 40 * i), states[i]);
            QVERIFY(i == 0 || states[i].toImage() != states[0].toImage());
        }
    }
    painter.end();
    QVERIFY(sheet.save(folder + "/dialog-buttons.png"));
}

KORVEX_TEST_MAIN(TstDialogPictures)
#include "tst_dialogpictures.moc"
