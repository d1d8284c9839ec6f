// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "modules.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace
{

QString copyInto(const QString& source, const QString& folder)
{
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly))
        return QStringLiteral("%1: %2").arg(source, from.errorString());
    return writeInto(folder + '/' + QFileInfo(source).fileName(), from.readAll());
}

} // namespace

QString writeInto(const QString& target, const QByteArray& content)
{
    QFile to(target);
    if (!to.open(QIODevice::ReadWrite | QIODevice::Truncate) ||
        to.write(content) != content.size() || !to.flush())
        return QStringLiteral("%1: %2").arg(target, to.errorString());
    if (!to.seek(0) || to.readAll() != content)
        return QStringLiteral("%1 is not what was written").arg(target);
    return {};
}

QString copyModules(const BootFiles& files, const QString& root)
{
    const QString folder = root + QStringLiteral("/syslinux");
    if (!QDir().mkpath(folder))
        return QStringLiteral("%1 cannot be created").arg(folder);
    QString error;
    for (const QString& module : files.modules) {
        if (error.isEmpty())
            error = copyInto(module, folder);
    }
    for (const QString& library : files.libraries) {
        if (error.isEmpty())
            error = copyInto(library, root);
    }
    return error;
}

QByteArray fileContent(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
