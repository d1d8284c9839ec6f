// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "benchdialogs.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

BenchDialogs::BenchDialogs()
{
    qApp->installEventFilter(this);
}

double BenchDialogs::waitForMessage()
{
    while (messageTime == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return messageTime;
}

double BenchDialogs::sinceProgress() const
{
    return double(clock.nsecsElapsed()) / 1e6;
}

double BenchDialogs::sinceChoice() const
{
    return double(choice.nsecsElapsed()) / 1e6;
}

bool BenchDialogs::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Show)
        return false;
    if (watched->inherits("QFileDialog")) {
        QTimer::singleShot(0, this, SLOT(answerFileDialog()));
    } else if (watched->inherits("CProgressDialog")) {
        messageTime = 0;
        clock.start();
    } else if (watched->inherits("CommDialog")) {
        messageTime = sinceProgress();
        QTimer::singleShot(0, this, SLOT(answerMessage()));
    }
    return false;
}

void BenchDialogs::answerFileDialog()
{
    const QWidget* const dialog = QApplication::activeModalWidget();
    dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
    const auto* box = dialog->findChild<QDialogButtonBox*>("buttonBox");
    choice.start();
    for (QAbstractButton* const button : box->buttons()) {
        if (box->buttonRole(button) == QDialogButtonBox::AcceptRole)
            button->click();
    }
}

void BenchDialogs::answerMessage()
{
    static_cast<QDialog*>(QApplication::activeModalWidget())->accept();
}
