// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

// One text of a translation's source.
struct TsMessage
{
    QString context;
    QString source;
    QString translation;
    QString type; // "unfinished" and the like; empty for a finished one

    // For telling which one is wrong.
    QString name() const { return context + ": " + source; }
};

// The texts in the source of a translation, in its order. The code is that of the file's name.
// Ends the program when the file cannot be read.
QVector<TsMessage> readTsFile(const QString& code);
