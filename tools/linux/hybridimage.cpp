// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "hybridimage.h"

#include "followedprogram.h"
#include "lsblk.h"
#include "mkisofsprogress.h"
#include "printing.h"
#include "unfinishedfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>

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
    UnfinishedFile unfinished(target);
    QString error =
        followProgram(mkisofs(),
                      hybridArguments(unfinished.path(), source,
                                      volumeLabelOf(source, mountTable()), holdsLargeFile(source)),
                      [&progress](const QString& line) {
                          if (const auto hundredths = readMkisofsProgress(line))
                              progress.reach(*hundredths / hundredthsOfAll);
                      });
    if (error.isEmpty())
        error = unfinished.finish();
    if (!error.isEmpty())
        return fail(error);
    ProgressTeller::finish();
    return 0;
}
