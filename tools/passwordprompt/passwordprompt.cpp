// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "passwordprompt.h"

#include "cimagebutton.h"
#include "secret.h"

#include <QLabel>
#include <QLineEdit>

PasswordPrompt::PasswordPrompt(const PromptTexts& promptTexts)
    : CommDialog(nullptr)
    , texts(promptTexts)
    , titleLabel(new QLabel(this))
    , fieldLabel(new QLabel(this))
    , passwordEdit(new QLineEdit(this))
{
    setWindowFlag(Qt::WindowStaysOnTopHint);
    SetBackGround(":/nwu/passwordbg");
    placeControls();
    PasswordPrompt::retranslate();
    setTabOrder(passwordEdit, okButton());
    setTabOrder(okButton(), cancelButton());
    setTabOrder(cancelButton(), closeButton());
    passwordEdit->setFocus();
}

void PasswordPrompt::placeControls()
{
    titleLabel->setObjectName("title");
    titleLabel->setGeometry(40, 0, 340, 29);
    titleLabel->setAlignment(Qt::AlignCenter);
    titleLabel->setStyleSheet("font:13px;\ncolor:#333333;");
    titleLabel->setTextFormat(Qt::PlainText);

    textLabel()->setGeometry(40, 44, 340, 64);
    textLabel()->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    SetAllowWarp();

    fieldLabel->setObjectName("field");
    fieldLabel->setGeometry(40, 112, 340, 22);
    fieldLabel->setStyleSheet("font:13px;\ncolor:#333333;");
    fieldLabel->setTextFormat(Qt::PlainText);
    fieldLabel->setBuddy(passwordEdit);

    passwordEdit->setObjectName("passwordEdit");
    passwordEdit->setGeometry(40, 136, 340, 26);
    passwordEdit->setEchoMode(QLineEdit::Password);
    // Its entries would be English in every language; the keys for pasting work without it.
    passwordEdit->setContextMenuPolicy(Qt::NoContextMenu);

    okButton()->move(okButton()->x(), 178);
    cancelButton()->move(cancelButton()->x(), 178);
}

void PasswordPrompt::retranslate()
{
    CommDialog::retranslate();
    setWindowTitle(texts.title);
    titleLabel->setText(texts.title);
    SetText(texts.why);
    fieldLabel->setText(texts.field);
    passwordEdit->setAccessibleName(texts.field);
    passwordEdit->setAccessibleDescription(texts.why);
    okButton()->SetBackGround(":/nwu/OK1", ":/nwu/OK2", ":/nwu/OK3", ":/nwu/OK3", texts.ok,
                              QString(), 5);
    cancelButton()->SetBackGround(":/nwu/NO_1", ":/nwu/NO_2", ":/nwu/NO_3", ":/nwu/NO_3",
                                  texts.cancel, QString(), 4);
    closeButton()->setAccessibleName(texts.cancel);
}

void PasswordPrompt::showEvent(QShowEvent* event)
{
    CommDialog::showEvent(event);
    // Another program's window is in use when this one comes up.
    raise();
    activateWindow();
}

QByteArray PasswordPrompt::takePassword()
{
    QString shared = passwordEdit->text();
    const QByteArray password = shared.toUtf8();
    Secret::wipe(shared);
    passwordEdit->clear();
    return password;
}
