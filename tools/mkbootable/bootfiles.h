// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The boot loader's files: the boot code of the MBR, the modules that the boot menu loads and,
// where the system has no installer of the boot loader, the loader itself. mkbootable looks them up
// before it changes anything.
struct BootFiles
{
    // Path of the boot code.
    QString bootCode;
    // Paths of the modules for /syslinux/: chain.c32 and the libraries it is linked with.
    QStringList modules;
    // Those of them that have to lie beside the boot loader, too: it looks for libraries in the
    // folder of its menu file, which is the root.
    QStringList libraries;
    // Paths of the loader's own file and of its boot sector; empty where an installer has them.
    QString loader;
    QString bootSector;
    // What is missing; empty when everything is there.
    QString error;
};

// Looks below root ("/" but in tests) where the distributions put the files.
BootFiles findBootFiles(const QString& root);

// Looks in the folder where a package of the program puts the files, all of them side by side.
BootFiles shippedBootFiles(const QString& folder);
