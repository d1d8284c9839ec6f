// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

// What the password prompt says in one language, from the table that the prompts of all systems are
// made of. Used by PasswordPrompt.
struct PromptTexts
{
    QString title;
    QString why;
    QString field;
    QString ok;
    QString cancel;

    // The texts of a language by its two-letter code; English for a code that is not in the table.
    static PromptTexts of(const QString& code);
    // The codes of the table, English first.
    static QStringList codes();
};
