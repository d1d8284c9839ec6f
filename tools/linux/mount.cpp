// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "mount.h"

#include "mountedvolumes.h"
#include "printing.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <unistd.h>
#include <vector>

namespace
{

// PATH has been set to the system's tools.
int becomeSystemMount(const QStringList& arguments)
{
    QList<QByteArray> words{"mount"};
    for (const QString& argument : arguments)
        words << QFile::encodeName(argument);
    std::vector<char*> pointers;
    for (QByteArray& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    ::execvp("mount", pointers.data());
    return complain(QString("mount: ") + std::strerror(errno));
}

} // namespace

int mountTool(const QStringList& arguments)
{
    if (!arguments.isEmpty())
        return becomeSystemMount(arguments);
    const QList<MountedVolume> table = mountTable();
    for (const MountedVolume& volume : table)
        say(mountLine(volume));
    return 0;
}
