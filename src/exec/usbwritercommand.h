// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

// What the steps of writing a bootable USB disk run and write. Pure: nothing is run.

// Of the disk tool: one partition on a master boot record. fileSystem is what the user chose, label
// may be empty, diskTotal is the disk's size in bytes.
QStringList partitionDiskArguments(const QString& disk, const QString& fileSystem,
                                   const QString& label, qint64 diskTotal);

// Of the shell: runs the boot tool on the disk as the administrator, the password asked for by the
// prompt. It is the one command that passes a shell; a mount point named after a hostile label
// means nothing to it but its characters. What the boot tool prints goes to log.
QStringList bootToolArguments(const QString& prompt, const QString& bootTool, const QString& disk,
                              const QString& mountPoint, const QString& log = "/tmp/system.log");

// The boot menu, line by line.
QStringList bootMenuLines();

// Of the archiver: copies the image's content onto the disk, but for its install.wim if that is
// too large for the file system.
QStringList copyImageArguments(const QString& imagePath, const QString& mountPoint,
                               bool withoutInstallWim);

QString wimlibProgram();
// Of the Windows-image tool: writes the mounted image's install.wim to the disk in parts.
QStringList splitInstallWimArguments(const QString& imageMountPoint, const QString& mountPoint);

// Where Windows images keep what may be too large for the disk's file system.
QString installWimOf(const QString& imageMountPoint);
// Whether a file of this many bytes, counted in whole GiB, is too large for it.
bool isTooLargeForFat(qint64 bytes);
