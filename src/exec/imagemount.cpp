// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagemount.h"

#include <QRegularExpression>
#include <QStringList>

namespace
{

constexpr int mountPointField = 2;

} // namespace

// A quote in the path is written threefold, which stands for itself when the text is split.
QString mountImageCommand(const QString& imagePath)
{
    QString path = imagePath;
    path.replace('"', "\"\"\"");
    return "hdiutil mount \"" + path + '"';
}

QString unmountImageCommand(const QString& mountPoint)
{
    return "hdiutil unmount" + mountPoint;
}

QString forceUnmountImageCommand(const QString& mountPoint)
{
    return "hdiutil unmount -force " + mountPoint;
}

std::optional<QString> imageMountPointOf(const QString& output)
{
    const QStringList fields = output.split('\t');
    if (fields.size() <= mountPointField)
        return std::nullopt;
    QString mountPoint = fields.at(mountPointField);
    return mountPoint.remove(QRegularExpression("\\s"));
}
