// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "translatedviews.h"

#include "caboutusdialog.h"
#include "cinputdialog.h"
#include "cprogressdialog.h"
#include "gerneraldialog.h"
#include "languages.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "util.h"

#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace
{

using Visit = TranslatedView::Visit;

// The kinds of dialogs that show a text of a page, as the page brings them up.
enum Kind
{
    Error,
    Success,
    Progress,
    Notice,
    Question
};

struct Message
{
    Kind kind;
    const char* context;
    const char* text;
    const char* picture = nullptr;
};

const Message messages[] = {
    {Error, "main", "Please drag the icon to Application folder first!"},
    {Notice, "CPage2", "Please select the files or folders you want to extract",
     ":/nwu/select_files_extract"},
    {Progress, "CPage2", "Extracting files..."},
    {Progress, "CPage2", "Extracting files: "},
    {Progress, "CPage2", "Copying files! Please wait a few seconds.."},
    {Success, "CPage2", "Extract files successfully."},
    {Error, "CPage3", "Please add files or folders first!"},
    {Error, "CPage3", "Please select one type"},
    {Progress, "CPage3", "Copy files and folders..."},
    {Progress, "CPage3", "Creating ISO file..."},
    {Success, "CPage3", "Create ISO successfully!"},
    {Error, "CPage4", "Please select one row in the table list first"},
    {Error, "CPage4", "This name cannot be used"},
    {Error, "CPage4", "A file or folder with this name already exists"},
    {Error, "CPage4", "Please select files or folders in the list first."},
    {Error, "CPage4", "Please add files or folders first!"},
    {Progress, "CPage4", "Copy files and directories..."},
    {Progress, "CPage4", "Extracting iso..."},
    {Progress, "CPage4", "Saving ISO file..."},
    {Success, "CPage4", "Export Successfully !"},
    {Success, "CPage4", "Save ISO file successfully!"},
    {Notice, "CBurnDialog",
     "Burn Failed! Do as following:\n1.Try to burn again.\n2.Change another USB drive or DVD.",
     ":/nwu/burn-fails"},
    {Notice, "CBurnDialog", "Please insert your USB drive to computer", ":/nwu/insert_usb"},
    {Notice, "CBurnDialog",
     "Insufficient space on disk, please change a large-capacity USB or CD/DVD.",
     ":/nwu/insufficient_space"},
    {Question, "CBurnDialog",
     "Your USB drive will be formatted and all data in it will be deleted! Do you want to "
     "continue?",
     ":/nwu/format_usb"},
    {Progress, "CBurnDialog", "The USB disk is under formating..."},
    {Progress, "CBurnDialog", "make usb drive bootable..."},
    {Progress, "CBurnDialog", "Burning the USB disk..."},
    {Progress, "CBurnDialog", "Process the wim file larger than 4 GB..."},
    {Progress, "CBurnDialog", "Burning the disc..."},
    {Error, "CBurnDialog", "Burning Successfully..."},
    {Error, "CBurnDialog", "Burning disc successfully."},
    {Error, "CPage5", "Please select the iso file to save"},
    {Error, "CPage5", "Please select the iso file to save."},
    {Progress, "CPage5", "Start reading..."},
    {Success, "CPage5", "Copy CD/DVD successfully!"},
};

void visitModal(const std::function<void()>& show, const Visit& visit)
{
    ModalDriver driver;
    driver.run("QDialog", [&](QWidget* dialog) {
        visit(dialog);
        dialog->close();
    });
    show();
    if (!driver.done())
        qFatal("The dialog did not show");
}

void showMessage(const Message& message, const Visit& visit)
{
    const QString text = QCoreApplication::translate(message.context, message.text);
    if (message.kind == Error) {
        visitModal([&] { Util::ShowError(text); }, visit);
    } else if (message.kind == Success) {
        visitModal([&] { Util::ShowOpen(text, QString(KORVEX_TEST_DATA "/nothing")); }, visit);
    } else if (message.kind == Question) {
        visitModal([&] { Util::ShowChoose(message.picture, text); }, visit);
    } else if (message.kind == Notice) {
        GerneralDialog dialog(nullptr);
        dialog.SetBackGround(message.picture, text);
        dialog.AddOK(120, 0);
        visitModal([&] { dialog.exec(); }, visit);
    } else {
        CProgressDialog dialog(nullptr);
        dialog.SetText(text);
        dialog.SetRange(0, 100);
        dialog.SetValue(45);
        dialog.show();
        visit(&dialog);
    }
}

void showInput(const Visit& visit)
{
    CInputDialog dialog(nullptr);
    visitModal([&] { dialog.exec(); }, visit);
}

void showAbout(const Visit& visit)
{
    CAboutusDialog dialog;
    visitModal([&] { dialog.exec(); }, visit);
}

TranslatedView pageView(const char* name, void (MainWindow::*open)())
{
    return {name, [open](MainWindow& window, const Visit& visit) {
                (window.*open)();
                ImageDialog* const page = window.findChildren<ImageDialog*>().last();
                QCoreApplication::processEvents();
                visit(page);
                page->close();
            }};
}

} // namespace

QList<TranslatedView> pageViews()
{
    return {
        {"home", [](MainWindow& window, const Visit& visit) { visit(&window); }},
        pageView("burn", &MainWindow::onBurn),
        pageView("extract", &MainWindow::onExtract),
        pageView("create", &MainWindow::onCreate),
        pageView("edit", &MainWindow::onEdit),
        pageView("copy", &MainWindow::onCopy),
    };
}

QList<TranslatedView> dialogViews()
{
    QList<TranslatedView> views{
        {"input", [](MainWindow&, const Visit& visit) { showInput(visit); }},
        {"about", [](MainWindow&, const Visit& visit) { showAbout(visit); }},
    };
    for (const Message& message : messages) {
        views.append({message.text, [&message](MainWindow&, const Visit& visit) {
                          showMessage(message, visit);
                      }});
    }
    return views;
}

void speak(MainWindow& window, const Language& language)
{
    // Without the mark of a slot before it and the brackets behind it.
    const QByteArray slot = QByteArray(language.slot).mid(1).chopped(2);
    if (!QMetaObject::invokeMethod(&window, slot))
        qFatal("No slot %s", slot.constData());
    window.onMenu();
    QCoreApplication::processEvents();
}

QList<QMenu*> menusOf(const MainWindow& window)
{
    QList<QMenu*> menus = window.findChildren<QMenu*>();
    menus.append(window.menuBar()->actions().first()->menu());
    return menus;
}
