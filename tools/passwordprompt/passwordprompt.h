// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "commdialog.h"
#include "prompttexts.h"

class QLineEdit;

// Asks for an administrator's password, in the look of the program's dialogs and above all other
// windows. The askpass program shows it; exec() returns 1 for OK and 0 for everything else.
class PasswordPrompt : public CommDialog
{
    Q_OBJECT

public:
    explicit PasswordPrompt(const PromptTexts& promptTexts);

    // What has been typed, unchanged, in UTF-8. The field is empty afterwards and the characters
    // that were in it are overwritten; the caller wipes the result.
    QByteArray takePassword();

protected:
    void retranslate() override;
    void showEvent(QShowEvent* event) override;

private:
    void placeControls();

    const PromptTexts texts;
    QLabel* titleLabel;
    QLabel* fieldLabel;
    QLineEdit* passwordEdit;
};
