// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "terminaltext.h"

#include <algorithm>
#include <iterator>

QString eraseBackspaces(const QString& text)
{
    return lineStates(text).last();
}

QStringList lineStates(const QString& text)
{
    if (!text.contains('\b'))
        return {text};
    QStringList states;
    QString shown;
    bool isErasing = true;
    for (const QChar character : text) {
        const bool isEraser = character == '\b';
        if (isEraser && !isErasing)
            states.append(shown);
        isErasing = isEraser;
        if (isEraser)
            shown.chop(1);
        else
            shown.append(character);
    }
    states.append(shown);
    return states;
}

QString withoutControlCharacters(const QString& text)
{
    QString clean;
    clean.reserve(text.size());
    std::copy_if(text.begin(), text.end(), std::back_inserter(clean),
                 [](QChar character) { return character.category() != QChar::Other_Control; });
    return clean;
}
