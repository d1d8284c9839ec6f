// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTranslator>

// Translates every text into its upper case, as if that were a language: shows which texts follow a
// change of language.
class OtherLanguage : public QTranslator
{
    Q_OBJECT

public:
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return QString(text).toUpper();
    }
    bool isEmpty() const override { return false; }
};
