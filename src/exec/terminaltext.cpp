// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "terminaltext.h"

#include <algorithm>
#include <iterator>

QString eraseBackspaces(const QString& text)
{
    if (!text.contains('\b'))
        return text;
    QString shown;
    shown.reserve(text.size());
    for (const QChar character : text) {
        if (character == '\b')
            shown.chop(1);
        else
            shown.append(character);
    }
    return shown;
}

QString withoutControlCharacters(const QString& text)
{
    QString clean;
    clean.reserve(text.size());
    std::copy_if(text.begin(), text.end(), std::back_inserter(clean),
                 [](QChar character) { return character.category() != QChar::Other_Control; });
    return clean;
}
