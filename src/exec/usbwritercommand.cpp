// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "usbwritercommand.h"

#include "util.h"

namespace
{

constexpr qint64 gibibyte = 1LL << 30;
constexpr qint64 largestFatGibibytes = 4;

const QLatin1String unnamed("NONAME");
const QLatin1String smallFat("\"MS-DOS FAT16\""); // the quotes are part of the argument

QString fileSystemArgument(const QString& fileSystem, qint64 diskTotal)
{
    if (fileSystem != "FAT")
        return fileSystem;
    return diskTotal < largestFatGibibytes * gibibyte ? QString(smallFat) : QString("FAT32");
}

bool isPlain(QChar character)
{
    return character.isLetterOrNumber() || character.unicode() > 127 ||
           QString("/._-,:+@%").contains(character);
}

// For a word of the shell's command line outside of quotes. Single blanks stay as they are and
// split the word, as the boot tool expects; everything else that the shell would act on is escaped.
QString escapedWords(const QString& text)
{
    QString escaped;
    for (int at = 0; at < text.size(); ++at) {
        const QChar character = text.at(at);
        const bool splits = character == ' ' && text.mid(at + 1, 1) != " ";
        if (!splits && !isPlain(character))
            escaped += '\\';
        escaped += character;
    }
    return escaped;
}

// For text between single quotes.
QString escapedQuoted(QString text)
{
    return text.replace('\'', "'\\''");
}

} // namespace

QStringList partitionDiskArguments(const QString& disk, const QString& fileSystem,
                                   const QString& label, qint64 diskTotal)
{
    return {"partitionDisk",
            disk,
            "1",
            "MBR",
            fileSystemArgument(fileSystem, diskTotal),
            label.isEmpty() ? QString(unnamed) : label,
            "R"};
}

QStringList bootToolArguments(const QString& prompt, const QString& bootTool, const QString& disk,
                              const QString& mountPoint, const QString& log)
{
    const QString command("SUDO_ASKPASS='%1' sudo --askpass '%2' %3 %4 > %5 2>&1");
    return {"-c", command.arg(escapedQuoted(prompt), escapedQuoted(bootTool), escapedWords(disk),
                              escapedWords(mountPoint), escapedWords(log))};
}

QStringList bootMenuLines()
{
    return {"default boot", "LABEL boot", "MENU LABEL boot", "COM32 /syslinux/chain.c32",
            "APPEND fs ntldr=/bootmgr"};
}

QStringList copyImageArguments(const QString& imagePath, const QString& mountPoint,
                               bool withoutInstallWim)
{
    QStringList arguments{"x", "-bsp2"};
    if (withoutInstallWim)
        arguments << "-xr!install.wim";
    return arguments << "-y"
                     << "-o" + mountPoint + '/' << imagePath;
}

QString wimlibProgram()
{
    return Util::GetCurrentExePath() + "/wimlib-imagex/wimlib-imagex";
}

QStringList splitInstallWimArguments(const QString& imageMountPoint, const QString& mountPoint)
{
    // The part size in MB; the blank before it belongs there.
    return {"split", installWimOf(imageMountPoint), mountPoint + "/sources/install.swm", " 3800"};
}

QString installWimOf(const QString& imageMountPoint)
{
    return imageMountPoint + "/sources/install.wim";
}

bool isTooLargeForFat(qint64 bytes)
{
    return bytes / gibibyte >= largestFatGibibytes;
}
