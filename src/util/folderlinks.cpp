// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "folderlinks.h"

#include <QFileInfo>

bool leadsBack(const QFileInfo& entry)
{
    if (!entry.isSymLink() || !entry.isDir())
        return false;
    const QString target = entry.canonicalFilePath();
    const QString inTarget = target.endsWith('/') ? target : target + '/';
    // Every folder on the way here as it was walked: an earlier link may have led out of the target
    // and this one leads in again.
    QString folder = entry.absoluteFilePath();
    do {
        folder = QFileInfo(folder).path();
        const QString walked = QFileInfo(folder).canonicalFilePath();
        if (walked == target || walked.startsWith(inTarget))
            return true;
    } while (folder != "/");
    return false;
}
