// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "mountedvolumes.h"

#include <QFile>

namespace
{

bool isOctal(const QByteArray& digits)
{
    if (digits.size() != 3 || digits[0] > '3')
        return false;
    for (const char digit : digits)
        if (digit < '0' || digit > '7')
            return false;
    return true;
}

// The kernel writes blanks, tabs, line feeds and backslashes of a name as "\ooo".
QString unescaped(const QByteArray& text)
{
    QByteArray result;
    for (int i = 0; i < text.size(); ++i) {
        const QByteArray digits = text.mid(i + 1, 3);
        const int code = digits.toInt(nullptr, 8);
        if (text[i] == '\\' && isOctal(digits) && code >= ' ') {
            result += static_cast<char>(code);
            i += 3;
        } else {
            result += text[i];
        }
    }
    return QString::fromUtf8(result);
}

} // namespace

QList<MountedVolume> readMountTable(const QByteArray& mountInfo)
{
    QList<MountedVolume> table;
    const QList<QByteArray> lines = mountInfo.split('\n');
    for (const QByteArray& line : lines) {
        // id parent major:minor root path options optional-fields… - type source super-options
        const QList<QByteArray> fields = line.split(' ');
        const int separator = fields.indexOf("-", 6);
        if (separator < 0 || fields.size() < separator + 4)
            continue;
        MountedVolume volume;
        volume.source = unescaped(fields[separator + 2]);
        volume.path = unescaped(fields[4]);
        volume.type = unescaped(fields[separator + 1]);
        volume.options = QString::fromUtf8(fields[5]).split(',');
        table.append(volume);
    }
    return table;
}

QList<MountedVolume> mountTable()
{
    QFile file("/proc/self/mountinfo");
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return readMountTable(file.readAll());
}

MountedVolume volumeMountedAt(const QList<MountedVolume>& table, const QString& path)
{
    for (auto volume = table.crbegin(); volume != table.crend(); ++volume)
        if (volume->path == path)
            return *volume;
    return {};
}

MountedVolume volumeHolding(const QList<MountedVolume>& table, const QString& path)
{
    MountedVolume holding;
    for (const MountedVolume& volume : table) {
        const QString folder = volume.path.endsWith('/') ? volume.path : volume.path + '/';
        // Of two at one place the later one hides the earlier.
        if ((path == volume.path || path.startsWith(folder)) &&
            volume.path.size() >= holding.path.size())
            holding = volume;
    }
    return holding;
}

QString mountLine(const MountedVolume& volume)
{
    QStringList notes(volume.type);
    if (volume.source.startsWith('/'))
        notes << "local";
    for (const char* const option : {"nodev", "nosuid"})
        if (volume.options.contains(option))
            notes << option;
    if (volume.options.contains("ro"))
        notes << "read-only";
    return volume.source + " on " + volume.path + " (" + notes.join(", ") + ')';
}
