// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The boot loader's files that the distribution has installed: the boot code of the MBR and the
// modules that the boot menu loads. mkbootable looks them up before it changes anything.
struct BootFiles
{
    // Path of the boot code.
    QString bootCode;
    // Paths of the modules for /syslinux/: chain.c32 and the libraries it is linked with.
    QStringList modules;
    // Those of them that have to lie beside the boot loader, too: it looks for libraries in the
    // folder of its menu file, which is the root.
    QStringList libraries;
    // What is missing; empty when everything is there.
    QString error;
};

// Looks below root ("/" but in tests) where the distributions put the files.
BootFiles findBootFiles(const QString& root);
