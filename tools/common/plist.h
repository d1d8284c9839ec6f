// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

// What a property list in XML holds, the form in which the tools of macOS answer programs.
struct Plist
{
    // Dictionaries are QVariantMap, arrays QVariantList, texts and dates QString, numbers qint64 or
    // double, data QByteArray. Invalid on failure.
    QVariant value;
    // Why it cannot be read; empty on success.
    QString error;
};

// Reads a property list whole; one that breaks off, or holds what such lists do not, is an error.
Plist readPlist(const QByteArray& xml);
