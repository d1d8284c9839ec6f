// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "request.h"

#include "diskrefusal.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <sys/stat.h>

namespace
{

// The path without links: links of the part that exists are followed, the rest is taken as it is.
QString realPath(const QString& path)
{
    QFileInfo existing(path);
    QStringList rest;
    while (!existing.exists() && !existing.isSymLink() && !existing.isRoot()) {
        rest.prepend(existing.fileName());
        existing.setFile(existing.path());
    }
    // A link that leads nowhere has no real path.
    const QString real = existing.canonicalFilePath();
    return real.isEmpty() ? QString() : QDir::cleanPath(real + '/' + rest.join('/'));
}

bool hasControlCharacter(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) {
        return character.category() == QChar::Other_Control;
    });
}

} // namespace

Request readRequest(const QStringList& arguments)
{
    Request request;
    request.disk = arguments.value(0);
    request.mountPoint = arguments.mid(1).join(QLatin1Char(' '));
    if (!request.disk.startsWith(QLatin1String("/dev/")))
        request.error = QStringLiteral("Usage: mkbootable DISK MOUNT-POINT; DISK is a device");
    else if (request.mountPoint.isEmpty())
        request.error = QStringLiteral("No mount point was named for %1").arg(request.disk);
    else if (!request.mountPoint.startsWith(QLatin1Char('/')))
        request.error =
            QStringLiteral("The mount point %1 is no absolute path").arg(request.mountPoint);
    else if (hasControlCharacter(request.disk + request.mountPoint))
        request.error = QStringLiteral("There is a control character in the arguments");
    return request;
}

bool isMountPoint(const QString& folder)
{
    struct stat here = {};
    struct stat above = {};
    const QByteArray path = QFile::encodeName(folder);
    return ::stat(path.constData(), &here) == 0 &&
           ::stat((path + "/..").constData(), &above) == 0 &&
           (here.st_dev != above.st_dev || here.st_ino == above.st_ino);
}

QString mountPointRefusal(const QString& mountPoint, const BlockDevice& partition)
{
    const QString real = realPath(mountPoint);
    if (real.isEmpty() || !isPlaceForMedia(mountPoint) || !isPlaceForMedia(real))
        return QStringLiteral("%1 is no place to mount a USB disk at").arg(mountPoint);
    if (partition.mountPoints.contains(real))
        return {};
    const QFileInfo folder(real);
    if (!folder.exists())
        return {};
    if (!folder.isDir())
        return QStringLiteral("%1 is no folder").arg(mountPoint);
    if (isMountPoint(real))
        return QStringLiteral("Something else is mounted at %1").arg(mountPoint);
    if (!QDir(real).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        return QStringLiteral("%1 is a folder with files in it").arg(mountPoint);
    return {};
}
