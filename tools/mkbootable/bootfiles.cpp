// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootfiles.h"

#include <QFile>
#include <QFileInfo>

#include <array>

namespace
{

struct Home
{
    const char* bootCode;
    const char* modules;
};

// Debian, Arch, Fedora and openSUSE.
constexpr std::array<Home, 3> homes = {{
    {"usr/lib/syslinux/mbr/mbr.bin", "usr/lib/syslinux/modules/bios/"},
    {"usr/lib/syslinux/bios/mbr.bin", "usr/lib/syslinux/bios/"},
    {"usr/share/syslinux/mbr.bin", "usr/share/syslinux/"},
}};

constexpr const char* chainLoader = "chain.c32";
constexpr std::array<const char*, 2> libraryNames = {"libcom32.c32", "libutil.c32"};

} // namespace

BootFiles findBootFiles(const QString& root)
{
    for (const Home& home : homes) {
        BootFiles files;
        files.bootCode = root + QLatin1String(home.bootCode);
        const QString folder = root + QLatin1String(home.modules);
        for (const char* name : libraryNames)
            files.libraries.append(folder + QLatin1String(name));
        files.modules = files.libraries;
        files.modules.append(folder + QLatin1String(chainLoader));
        bool complete = QFile::exists(files.bootCode);
        for (const QString& module : qAsConst(files.modules))
            complete = complete && QFile::exists(module);
        if (complete)
            return files;
    }
    BootFiles none;
    none.error = QStringLiteral("The boot loader's files are not installed (package "
                                "syslinux-common)");
    return none;
}

BootFiles shippedBootFiles(const QString& folder)
{
    const QString home = folder + '/';
    BootFiles files;
    files.bootCode = home + QStringLiteral("mbr.bin");
    files.loader = home + QStringLiteral("ldlinux.sys");
    files.bootSector = home + QStringLiteral("ldlinux.bss");
    for (const char* name : libraryNames)
        files.libraries.append(home + QLatin1String(name));
    files.modules = files.libraries;
    files.modules.append(home + QLatin1String(chainLoader));
    // The loader's other half, which installers elsewhere put beside it.
    files.libraries.append(home + QStringLiteral("ldlinux.c32"));
    const QStringList needed = files.modules + QStringList{files.libraries.last(), files.bootCode,
                                                           files.loader, files.bootSector};
    for (const QString& path : needed) {
        if (files.error.isEmpty() && !QFileInfo(path).isFile())
            files.error = QStringLiteral("The boot loader's file %1 is missing").arg(path);
    }
    return files;
}
