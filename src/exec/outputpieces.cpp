// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "outputpieces.h"

namespace
{

constexpr int longestCharacter = 4;

// By its first byte; 0 when no character begins with it.
int lengthOfCharacter(unsigned char first)
{
    if (first < 0x80)
        return 1;
    if (first >= 0xc2 && first < 0xe0)
        return 2;
    if (first >= 0xe0 && first < 0xf0)
        return 3;
    return first >= 0xf0 && first < 0xf5 ? 4 : 0;
}

bool continuesCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xc0) == 0x80;
}

} // namespace

QStringList outputPieces(const QString& text)
{
    QStringList pieces;
    const auto parts = text.splitRef('\r');
    for (const QStringRef& part : parts) {
        if (!part.trimmed().isEmpty())
            pieces.append(part.toString());
    }
    return pieces;
}

bool isDrawnInPlace(const QByteArray& unfinished)
{
    return unfinished.contains('\r') || unfinished.contains('\b');
}

int wholeCharacters(const QByteArray& bytes)
{
    const int size = bytes.size();
    int begun = 1; // bytes of the last character
    while (begun < longestCharacter && begun < size && continuesCharacter(bytes.at(size - begun)))
        ++begun;
    if (begun > size)
        return size;
    const int length = lengthOfCharacter(static_cast<unsigned char>(bytes.at(size - begun)));
    return begun < length ? size - begun : size;
}
