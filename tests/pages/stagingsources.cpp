// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "stagingsources.h"

#include "testfiles.h"

#include <QDir>

StagingSources::StagingSources()
{
    const QString one = folder.filePath("one");
    const QString two = folder.filePath("two");
    int size = 0;
    for (const char* const path :
         {"a.txt", "B.bin", "plain", "dir/a.txt", "dir/sub/deep.txt", "dir/z.png", "mixed/Q.txt",
          "mixed/b/b.txt", "mixed/r.txt", " first.txt", "last "})
        disk.insert(one + '/' + path, QByteArray(size += 173, '1'));
    for (const char* const path : {"a.txt", "plain", "dir/a.txt", "dir/other.txt", "b"})
        disk.insert(two + '/' + path, QByteArray(size += 173, '2'));
    disk.insert(one + "/empty.txt", QByteArray());
    disk.insert(two + "/dir/b", std::nullopt);
    for (const QString& path : {one, two, one + "/empty", one + "/dir", one + "/dir/sub",
                                one + "/mixed", one + "/mixed/b", two + "/dir"})
        disk.insert(path, std::nullopt);
    folderPaths = QStringList{one + "/dir",   two + "/dir",     one + "/empty",
                              one + "/mixed", one + "/mixed/b", one + "/dir/sub"};
    for (auto entry = disk.cbegin(); entry != disk.cend(); ++entry) {
        if (*entry)
            filePaths.append(entry.key());
    }
    for (int i = 0; i < plugCount; ++i) {
        const QString path = folder.filePath("plug%1").arg(i);
        plugs.push_back(std::make_unique<CopyPlug>(path));
        disk.insert(path, std::nullopt);
        disk.insert(path + "/held", QByteArray());
    }
}

void StagingSources::restore() const
{
    for (auto entry = disk.cbegin(); entry != disk.cend(); ++entry) {
        if (QFileInfo::exists(entry.key()))
            continue;
        if (*entry)
            writeFile(entry.key(), **entry);
        else
            QDir().mkpath(entry.key());
    }
}
