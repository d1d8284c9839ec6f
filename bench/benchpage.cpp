// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "benchpage.h"

#include "cimagebutton.h"
#include "cprogressdialog.h"
#include "sevenzipcommand.h"
#include "statistics.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

BenchPage::BenchPage()
    : CPage2(nullptr)
{
    InitializeUI();
    qApp->installEventFilter(this);
}

double BenchPage::load(const QString& image)
{
    isLoaded = false;
    const double time = milliseconds([&] {
        SetEnabled(false);
        isoPath = image;
        startListing(sevenZipListArguments(isoPath));
        while (!isLoaded)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::processEvents();
    });
    return time;
}

void BenchPage::OnUnzipFinished()
{
    lastViewTime = milliseconds([this] { CPage2::OnUnzipFinished(); });
    isLoaded = true;
}

void BenchPage::enterFirstFolder()
{
    current = &tree.root.children.first();
    RefreshTable();
}

int BenchPage::rows() const
{
    return entryTable->rowCount();
}

double BenchPage::extractAll(const QString& destination)
{
    outputFolder = destination;
    slotSelectAll(true);
    extractionTime = 0;
    OnExtract();
    while (extractionTime == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return extractionTime;
}

void BenchPage::OnExtractFinished()
{
    lastArchiverTime = double(extraction.nsecsElapsed()) / 1e6;
    CPage2::OnExtractFinished();
}

bool BenchPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Show)
        return false;
    if (watched->inherits("QFileDialog")) {
        QTimer::singleShot(0, this, SLOT(answerFileDialog()));
    } else if (watched->inherits("CProgressDialog")) {
        extraction.start();
    } else if (watched->inherits("CommDialog")) {
        extractionTime = double(extraction.nsecsElapsed()) / 1e6;
        QTimer::singleShot(0, this, SLOT(answerMessage()));
    }
    return false;
}

void BenchPage::answerFileDialog()
{
    const QWidget* const dialog = QApplication::activeModalWidget();
    dialog->findChild<QLineEdit*>("fileNameEdit")->setText(outputFolder);
    const auto* box = dialog->findChild<QDialogButtonBox*>("buttonBox");
    for (QAbstractButton* const button : box->buttons()) {
        if (box->buttonRole(button) == QDialogButtonBox::AcceptRole)
            button->click();
    }
}

void BenchPage::answerMessage()
{
    static_cast<QDialog*>(QApplication::activeModalWidget())->accept();
}
