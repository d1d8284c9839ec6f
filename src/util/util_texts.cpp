// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "util.h"

#include <QDateTime>

QString Util::SizeToString(long long bytes)
{
    const double factor = 1024.0;
    double value = static_cast<double>(bytes);
    QString unit = "B";
    if (bytes > 1024) {
        unit = "KB";
        value /= factor;
    }
    // Nothing that is at most 1024 B gets here above the factor, so the steps need no nesting.
    for (const char* larger : {"MB", "GB"}) {
        if (value > factor) {
            unit = larger;
            value /= factor;
        }
    }
    QString number = QString::number(value, 'f', 2);
    if (number.endsWith(".00"))
        number.chop(3);
    return number + ' ' + unit;
}

QString Util::QT2String(QDateTime time)
{
    return time.toString("yyyy-MM-dd hh:mm:ss");
}

QString Util::ReplaceBlank(QString text)
{
    while (text.contains("  "))
        text.replace("  ", " ");
    return text;
}

QString Util::GetExtension(const QString& name)
{
    const int dot = name.lastIndexOf('.');
    return dot < 1 ? QString() : name.mid(dot);
}
