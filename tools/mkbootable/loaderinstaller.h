// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "diskfile.h"
#include "loaderfile.h"

#include <QByteArray>
#include <QString>

// Makes a FAT16 or FAT32 file system start the boot loader whose file lies in its root folder as
// "ldlinux.sys", with LoaderFile::content() in it. Called where the system has no installer of the
// boot loader, with the file system unmounted. start is its place on the disk in bytes, bootCode
// the code of its boot sector. Returns why it could not be done, as one line; empty on success.
// Before anything is written, the file is read sector by sector from where it will be looked for.
QString installLoader(DiskFile& disk, qint64 start, const LoaderFile& loader,
                      const QByteArray& bootCode);
