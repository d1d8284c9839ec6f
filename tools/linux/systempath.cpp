// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "systempath.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

QByteArray systemPath(const QByteArray& path, const QString& ownFolder)
{
    const QString own = QFileInfo(ownFolder).canonicalFilePath();
    QList<QByteArray> folders = path.split(':');
    folders << "/usr/sbin"
            << "/usr/bin"
            << "/sbin"
            << "/bin";
    QList<QByteArray> kept;
    for (const QByteArray& folder : qAsConst(folders)) {
        // An empty or relative entry would mean the folder that one happens to be in.
        if (!folder.startsWith('/') || kept.contains(folder))
            continue;
        const QString canonical = QFileInfo(QFile::decodeName(folder)).canonicalFilePath();
        if (own.isEmpty() || canonical != own)
            kept.append(folder);
    }
    return kept.join(':');
}
