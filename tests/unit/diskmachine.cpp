// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskmachine.h"

#include "diskutil.h"
#include "testfiles.h"

#include <QFile>

const char* const noPartition = R"({"blockdevices":[{"path":"/dev/sdb","type":"disk",
 "size":31914983424,"rm":true,"tran":"usb","ro":false,"model":"Cruzer","serial":"1"}]})";
const char* const onePartition = R"({"blockdevices":[{"path":"/dev/sdb","type":"disk",
 "size":31914983424,"rm":true,"tran":"usb","ro":false,"model":"Cruzer","serial":"1","children":
 [{"path":"/dev/sdb1","type":"part","size":31913934848,"fstype":"vfat","label":"X"}]}]})";

// The answers are the files answer1, answer2, …
DiskMachine::DiskMachine(const QList<QByteArray>& answers)
    : volumes(tools.filePath("media"), tools.filePath("images"))
{
    const QByteArray data = QFile::encodeName(tools.filePath(""));
    for (int i = 0; i < answers.size(); ++i)
        writeFile(tools.filePath(QString("answer%1").arg(i + 1)), answers[i]);
    tools.add("lsblk", "cd '" + data +
                           "'; echo x >>asked; n=$(grep -c x asked); "
                           "while [ ! -e answer$n ]; do n=$((n-1)); done; cat answer$n");
    tools.add("sfdisk", "cat >'" + data + "table'");
    for (const char* const name : {"udevadm", "mkfs.vfat", "mount", "umount"})
        tools.add(name);
}

QStringList DiskMachine::run(const QStringList& words)
{
    int code = -1;
    const QStringList lines = spokenLines([&] { code = diskutilTool(words, volumes); });
    return lines + QStringList(QString::number(code));
}

QStringList DiskMachine::changes() const
{
    QStringList found;
    for (const QString& call : tools.calls())
        if (!call.startsWith("lsblk|"))
            found << call;
    return found;
}
