// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "commdialog.h"

#include "cimagebutton.h"
#include "util.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>

CommDialog::CommDialog(QWidget* parent)
    : ImageDialog(parent != nullptr)
    , btnok(new CImageButton(this))
    , btncancel(new CImageButton(this))
    , btnclose(new CImageButton(this))
    , label(new QLabel(this))
{
    buildForm();
    SetMoveable(true);
    setModal(true);
    SetBackGround(":/nwu/commdialogbg");
    CommDialog::retranslate();
    btnclose->move(5, 5);

    connect(btncancel, SIGNAL(clicked()), this, SLOT(OnBtnCancel()));
    connect(btnclose, SIGNAL(clicked()), this, SLOT(OnBtnClose()));
    connect(btnok, SIGNAL(clicked()), this, SLOT(OnBtnOK()));
}

void CommDialog::buildForm()
{
    setObjectName("CommDialog");
    btnclose->setObjectName("btnclose");
    btnclose->setGeometry(382, 10, 28, 25);
    btnok->setObjectName("btnok");
    btnok->setGeometry(80, 140, 91, 21);
    btncancel->setObjectName("btncancel");
    btncancel->setGeometry(260, 140, 91, 21);

    label->setObjectName("label");
    label->setGeometry(40, 50, 340, 80); // ends above the buttons
    label->setStyleSheet("font:13px;\ncolor:#606060;");
    label->setTextFormat(Qt::PlainText);
}

void CommDialog::retranslate()
{
    btnclose->SetBackGround(":/nwu/osxclose1", ":/nwu/osxclose2", ":/nwu/osxclose3",
                            ":/nwu/osxclose4", QString(), QString(), 0);
    btnclose->setAccessibleName(tr("Close"));
    btnok->SetBackGround(":/nwu/OK1", ":/nwu/OK2", ":/nwu/OK3", ":/nwu/OK3", tr("OK"), QString(),
                         5);
    if (openPath.isEmpty()) {
        btncancel->SetBackGround(":/nwu/NO_1", ":/nwu/NO_2", ":/nwu/NO_3", ":/nwu/NO_3", tr("NO"),
                                 QString(), 4);
    } else {
        btncancel->SetBackGround(":/nwu/Open-Folder1", ":/nwu/Open-Folder2", ":/nwu/Open-Folder2",
                                 ":/nwu/Open-Folder3", tr("Open Folder"), QString(), 13);
    }
}

void CommDialog::SetText(QString text)
{
    label->setText(text);
}

void CommDialog::SetAllowWarp()
{
    label->setWordWrap(true);
}

void CommDialog::SetCancelHidden()
{
    btncancel->hide();
    btnok->move((width() - btnok->width()) / 2, btnok->y());
}

void CommDialog::SetOpen(QString path)
{
    openPath = path;
    retranslate();
}

void CommDialog::OnBtnCancel()
{
    if (!openPath.isEmpty())
        Util::OpenExplorer(this, openPath);
    reject();
}

void CommDialog::OnBtnOK()
{
    accept();
}

void CommDialog::OnBtnClose()
{
    reject();
}

void CommDialog::changeEvent(QEvent* event)
{
    ImageDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void CommDialog::keyPressEvent(QKeyEvent* event)
{
    const bool accepts = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!accepts)
        ImageDialog::keyPressEvent(event);
    else if (!btnok->isHidden() && !event->isAutoRepeat())
        btnok->click();
}

CImageButton* CommDialog::okButton() const
{
    return btnok;
}

CImageButton* CommDialog::cancelButton() const
{
    return btncancel;
}

CImageButton* CommDialog::closeButton() const
{
    return btnclose;
}

QLabel* CommDialog::textLabel() const
{
    return label;
}
