// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QImage>
#include <QRegularExpression>

// The list of the program's pictures, and the pictures as they are built in.

// One line of the list of pictures.
struct ListedPicture
{
    QString name;
    QString kind;
    QSize size;
    QString states;

    // Resource paths in the order of the states.
    QStringList paths() const
    {
        if (states == "-")
            return {":/nwu/" + name};
        QStringList all;
        for (int i = 1; i <= states.size(); ++i)
            all.append(QString(":/nwu/%1%2").arg(name).arg(i));
        return all;
    }
};

inline QVector<ListedPicture> listedPictures()
{
    QFile file(KORVEX_PICTURE_LIST);
    const QByteArray lines = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    static const QRegularExpression form(R"(^([^# ]\S*) +(\S+) +\S+ +(\d+)x(\d+) +(\S+)$)",
                                         QRegularExpression::MultilineOption);
    QVector<ListedPicture> pictures;
    QRegularExpressionMatchIterator matches = form.globalMatch(QString::fromUtf8(lines));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        pictures.append({match.captured(1),
                         match.captured(2),
                         {match.captured(3).toInt(), match.captured(4).toInt()},
                         match.captured(5)});
    }
    return pictures;
}

inline QImage loadPicture(const QString& path)
{
    return QImage(path).convertToFormat(QImage::Format_ARGB32);
}
