// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "hybridimage.h"

#include "followedprogram.h"
#include "lsblk.h"
#include "mkisofsprogress.h"
#include "printing.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace
{

constexpr qint64 largestExtent = (1LL << 32) - 2048;
constexpr double hundredthsOfAll = 10000;

int fail(const QString& reason)
{
    return complain("hdiutil: makehybrid failed - " + reason);
}

// The program brings one with it, in the folder beside ours.
QString mkisofs()
{
    const QString ours = QStandardPaths::findExecutable(
        "mkisofs", {QCoreApplication::applicationDirPath() + "/../cdrtools"});
    return ours.isEmpty() ? QString("mkisofs") : ours;
}

// Where the image is written until it is complete: nothing that is there already.
QString unfinishedPath(const QString& image)
{
    const QString first = image + ".unfinished";
    QString path = first;
    for (int number = 2; QFileInfo::exists(path) || QFileInfo(path).isSymLink(); ++number)
        path = first + QString::number(number);
    return path;
}

// Replaces the image by the finished one; empty on success.
QString replaceBy(const QString& finished, const QString& image)
{
    if (std::rename(QFile::encodeName(finished).constData(),
                    QFile::encodeName(image).constData()) == 0)
        return {};
    return std::strerror(errno);
}

} // namespace

QStringList hybridArguments(const QString& image, const QString& folder, const QString& label,
                            bool hasLargeFiles)
{
    // The switch for graphical programs makes it tell its progress every megabyte.
    QStringList arguments{
        "-gui",         "-iso-level",     "3",     "-r", "-J",
        "-joliet-long", "-input-charset", "utf-8", "-V", label.left(longestVolumeLabel)};
    if (hasLargeFiles)
        arguments << "-udf"
                  << "-allow-limited-size";
    return arguments << "-o" << image << folder;
}

bool holdsLargeFile(const QString& folder)
{
    QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        if (files.fileInfo().size() > largestExtent)
            return true;
    }
    return false;
}

QString volumeLabelOf(const QString& folder, const QList<MountedVolume>& table)
{
    const QString path = QFileInfo(folder).canonicalFilePath();
    const QString device = volumeMountedAt(table, path).source;
    if (device.startsWith("/dev/")) {
        const BlockDevices found = blockDevices(device);
        if (!found.devices.isEmpty() && !found.devices.first().label.isEmpty())
            return found.devices.first().label;
    }
    return QFileInfo(path).fileName();
}

int makeHybridImage(const QString& image, const QString& folder, ProgressTeller progress)
{
    if (folder.isEmpty() || !QFileInfo(folder).isDir())
        return fail("No such file or directory");
    const QString source = QFileInfo(folder).absoluteFilePath();
    const QString target = QFileInfo(image).absoluteFilePath();
    if (image.isEmpty() || QFileInfo(target).isDir())
        return fail("Is a directory");
    if (target.startsWith(QDir::cleanPath(source) + '/'))
        return fail("The image lies inside of what it is made of");
    say("Creating hybrid image...");
    const QString unfinished = unfinishedPath(target);
    QString error =
        followProgram(mkisofs(),
                      hybridArguments(unfinished, source, volumeLabelOf(source, mountTable()),
                                      holdsLargeFile(source)),
                      [&progress](const QString& line) {
                          if (const auto hundredths = readMkisofsProgress(line))
                              progress.reach(*hundredths / hundredthsOfAll);
                      });
    if (error.isEmpty())
        error = replaceBy(unfinished, target);
    if (!error.isEmpty()) {
        QFile::remove(unfinished);
        return fail(error);
    }
    ProgressTeller::finish();
    return 0;
}
