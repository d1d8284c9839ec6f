// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "folderlinks.h"

#include <QFileInfo>

bool leadsBack(const QFileInfo& entry)
{
    if (!entry.isSymLink() || !entry.isDir())
        return false;
    const QString target = entry.canonicalFilePath();
    const QString home = QFileInfo(entry.absolutePath()).canonicalFilePath();
    return home == target || home.startsWith(target.endsWith('/') ? target : target + '/');
}
