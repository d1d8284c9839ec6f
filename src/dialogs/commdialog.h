// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "imagedialog.h"

#include <QString>

class CImageButton;
class QLabel;

// The message box of the program, with OK and a second button that says NO or opens a folder. Used
// directly and through Util's ShowError(), ShowOpen() and ShowChoose(); the progress dialog and the
// name prompt are built on it. exec() returns 1 for OK and 0 for everything else.
class CommDialog : public ImageDialog
{
    Q_OBJECT

public:
    // The parent only says that there is one: the dialog stands on its own.
    explicit CommDialog(QWidget* parent);

    // Plain text; markup in it shows as it is.
    void SetText(QString text);
    // Lets the text continue on further lines. Spelled so.
    void SetAllowWarp();
    // Leaves OK as the only button, in the middle.
    void SetCancelHidden();
    // Turns the second button into one that opens the folder path in the file browser. The folder
    // need not exist any more.
    void SetOpen(QString path);

public slots:
    virtual void OnBtnCancel();
    virtual void OnBtnOK();
    virtual void OnBtnClose();

protected:
    // Gives the buttons their pictures and captions in the current language.
    virtual void retranslate();

    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    CImageButton* okButton() const;
    CImageButton* cancelButton() const;
    CImageButton* closeButton() const;
    QLabel* textLabel() const;

private:
    void buildForm();

    // Created in this order, in which Tab goes through them.
    CImageButton* btnok;
    CImageButton* btncancel;
    CImageButton* btnclose;
    QLabel* label;
    QString openPath;
};
