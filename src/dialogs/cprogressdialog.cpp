// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"

#include "cimagebutton.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QProgressBar>

namespace
{

const char barStyle[] =
    "QProgressBar{ border: none; color: white; text-align: center; background: rgb(192, 192, "
    "192); } QProgressBar::chunk { border: none; background: rgb(0, 160, 230); } ";

} // namespace

CProgressDialog::CProgressDialog(QWidget* parent)
    : CommDialog(parent)
    , progressBar(new QProgressBar(this))
{
    setModal(false);
    setWindowModality(Qt::ApplicationModal);
    closeButton()->hide();
    okButton()->hide();

    progressBar->setObjectName("progressBar");
    progressBar->setGeometry(40, 100, 360, 20);
    progressBar->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    progressBar->setStyleSheet(barStyle);
    QFont font = progressBar->font();
    font.setPixelSize(13); // the label's
    progressBar->setFont(font);

    textLabel()->setGeometry(40, 60, 340, 25);
    CProgressDialog::retranslate();
    cancelButton()->move(325, 140);
}

void CProgressDialog::retranslate()
{
    CommDialog::retranslate();
    cancelButton()->SetBackGround(":/nwu/Stop1", ":/nwu/Stop2", ":/nwu/Stop3", ":/nwu/Stop4",
                                  tr("Stop"), QString(), 12);
}

void CProgressDialog::SetRange(int min, int max)
{
    progressBar->setRange(min, max);
}

void CProgressDialog::SetValue(int value)
{
    progressBar->setValue(value);
    // As doubles, for a range wider than an int.
    const double range = double(progressBar->maximum()) - progressBar->minimum();
    const double done = double(progressBar->value()) - progressBar->minimum();
    const double percent = range > 0 ? done * 100.0 / range : 0;
    QString text = QString("%1%").arg(QString::number(percent, 'f', 2));
    if (text.endsWith(".00%")) {
        text.chop(4);
        text += '%';
    }
    progressBar->setFormat(text);
}

void CProgressDialog::SetUnfinished()
{
    progressBar->setRange(0, 0);
}

void CProgressDialog::DisableCancel()
{
    cancelButton()->setEnabled(false);
}

bool CProgressDialog::IsComplete() const
{
    return progressBar->value() == progressBar->maximum();
}

void CProgressDialog::OnBtnCancel()
{
    hide();
    emit SigCancel();
}

// The tool goes on when the dialog merely disappears, so the user's other ways of closing it are
// Stop as well.
void CProgressDialog::stopIfAllowed()
{
    cancelButton()->click();
}

void CProgressDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel))
        stopIfAllowed();
    else
        CommDialog::keyPressEvent(event);
}

void CProgressDialog::closeEvent(QCloseEvent* event)
{
    // The page's own close() at the end of its work is no request to stop.
    if (!event->spontaneous()) {
        CommDialog::closeEvent(event);
        return;
    }
    event->ignore();
    stopIfAllowed();
}
