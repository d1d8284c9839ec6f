// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "outputpieces.h"

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
