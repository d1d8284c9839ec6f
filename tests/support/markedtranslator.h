// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTranslator>

// A language in which every text is the English one between angle brackets: for tests that look
// for texts which a change of language leaves behind.
class MarkedTranslator : public QTranslator
{
    Q_OBJECT

public:
    QString translate(const char*, const char* sourceText, const char*, int) const override
    {
        return '<' + QString::fromUtf8(sourceText) + '>';
    }
    bool isEmpty() const override { return false; }
};
