// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskentries.h"

#include "folderlinks.h"
#include "util.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

Item itemOnDisk(const QFileInfo& info, const QString& path)
{
    Item item;
    item.path = path;
    item.localPath = info.absoluteFilePath();
    item.isDir = info.isDir();
    if (!item.isDir)
        item.sizeText = QString::number(info.size());
    item.timeText = Util::QT2String(info.lastModified());
    return item;
}

void appendDiskContents(Item& item, const QString& folder)
{
    const QFileInfoList entries =
        QDir(folder).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QFileInfo& info : entries) {
        item.children.append(itemOnDisk(info, item.path + '/' + info.fileName()));
        Item& child = item.children.last();
        if (child.isDir && !leadsBack(info))
            appendDiskContents(child, child.localPath);
    }
}
