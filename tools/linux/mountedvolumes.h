// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// One line of the system's mount table.
struct MountedVolume
{
    // The device, or whatever else is mounted.
    QString source;
    QString path;
    QString type;
    QStringList options;
};

// Reads the kernel's table (/proc/self/mountinfo); lines that are none of it are left out. Control
// characters in names stay escaped, so that no name can pass for a line of its own.
QList<MountedVolume> readMountTable(const QByteArray& mountInfo);

// The table of this process.
QList<MountedVolume> mountTable();

// The uppermost volume mounted exactly there, or one without a path.
MountedVolume volumeMountedAt(const QList<MountedVolume>& table, const QString& path);

// The volume that holds a file or folder, by its absolute path without links; one without a path
// when the table names none.
MountedVolume volumeHolding(const QList<MountedVolume>& table, const QString& path);

// "DEVICE on PATH (type, local, read-only, …)", as the program reads it.
QString mountLine(const MountedVolume& volume);
