// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagenote.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <fcntl.h>
#include <unistd.h>

namespace
{

QString notePath(const QString& folder)
{
    return folder + "/note-of-" + QString::number(::getppid());
}

} // namespace

void leaveImageNote(const QString& folder, const QString& image)
{
    QDir().mkpath(folder);
    const QByteArray path = QFile::encodeName(notePath(folder));
    // Not a moment readable for others: where somebody's images lie is nobody else's business.
    ::unlink(path.constData());
    const int descriptor = ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    QFile note;
    if (descriptor >= 0 && note.open(descriptor, QIODevice::WriteOnly, QFile::AutoCloseHandle))
        note.write(QFile::encodeName(image));
}

QString takeImageNote(const QString& folder)
{
    QFile note(notePath(folder));
    if (!note.open(QIODevice::ReadOnly))
        return {};
    const QString image = QFile::decodeName(note.readAll());
    note.remove();
    return image;
}

bool holdsVolume(const BlockDevice& disk, const MountedVolume& volume)
{
    if (volume.path.isEmpty())
        return false;
    // Some file systems are mounted under another name of their device.
    return disk.path == volume.source || disk.mountPoints.contains(volume.path) ||
           std::any_of(disk.children.begin(), disk.children.end(),
                       [&volume](const auto& child) { return holdsVolume(child, volume); });
}
