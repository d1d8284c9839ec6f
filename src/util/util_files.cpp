// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "folderlinks.h"
#include "util.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

std::atomic<qint64> Util::copyedsize{0};

namespace
{

// One for the whole process, which is why only one copy may run at a time.
char copyBuffer[4096];

// Removes target and source, which have the same name. The copy that follows then finds no source
// and fails: a name that is taken ends a folder copy, nothing is overwritten.
void dropClash(const QString& target, const QFileInfo& source)
{
    QFile::remove(target);
    Util::RemoveFile(source.absoluteFilePath());
}

bool copyContents(const QString& src, const QString& dst, const QString& top);

// top is where the whole copy goes: it may lie within the source, and is no part of it.
bool copyEntry(const QFileInfo& entry, const QDir& dst, const QString& top)
{
    if (entry.isDir() && entry.canonicalFilePath() == top)
        return true;
    // Put together by hand: QDir takes a name that begins with a colon for an absolute path.
    const QString target = dst.absolutePath() + '/' + entry.fileName();
    if (leadsBack(entry))
        return QDir().mkpath(target);
    if (entry.isDir())
        return copyContents(entry.absoluteFilePath(), target, top);
    if (QFileInfo::exists(target))
        dropClash(target, entry);
    return Util::FileCopy(entry.absoluteFilePath(), target);
}

bool copyContents(const QString& src, const QString& dst, const QString& top)
{
    const QDir target(dst);
    if (!target.exists() && !QDir().mkpath(dst))
        return false;
    const QFileInfoList entries = QDir(src).entryInfoList();
    for (const QFileInfo& entry : entries) {
        if (entry.fileName() == "." || entry.fileName() == "..")
            continue;
        if (!copyEntry(entry, target, top))
            return false;
    }
    return true;
}

} // namespace

bool Util::FileCopy(QString src, QString dst)
{
    if (src == dst)
        return true;
    if (!QFile::exists(src))
        return false;
    if (QFile::exists(dst))
        RemoveFile(dst);
    const QDir folder = QFileInfo(dst).absoluteDir();
    if (!folder.exists())
        folder.mkpath(".");

    // Unbuffered, since each block is passed on as it is read.
    QFile target(dst);
    if (!target.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
        WriteLog("Can not open file for write" + dst);
        return false;
    }
    QFile source(src);
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        WriteLog("Can not open file for read" + src);
        return false;
    }
    qint64 count = 0;
    while ((count = source.read(copyBuffer, sizeof copyBuffer)) > 0) {
        target.write(copyBuffer, count);
        copyedsize += count;
    }
    // A source that cannot be read to its end has not been copied.
    return count == 0;
}

bool Util::DirCopy(const QString& src, const QString& dst)
{
    if (!QDir().mkpath(dst))
        return false;
    return copyContents(src, dst, QFileInfo(dst).canonicalFilePath());
}

bool Util::DirCopy2(const QString& src, const QString& dst)
{
    const QString target = dst + '/' + QDir(src).dirName();
    QDir().mkpath(target);
    return DirCopy(src, target);
}

void Util::RemoveFile(QString path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return;
    QFile file(path);
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    if (info.isFile()) {
        if (!file.remove())
            qDebug() << "Cannot delete" << path << file.errorString();
    } else if (!QDir().rmdir(path)) {
        const int code = errno;
        qDebug() << "Cannot delete" << path << code << qt_error_string(code);
    }
}

void Util::RemoveDir(QString path, bool)
{
    // An empty path would mean the current folder.
    if (path.isEmpty())
        return;
    QDir folder(path);
    if (folder.exists())
        folder.removeRecursively();
}

bool Util::IsFileExists(QString path)
{
    return QFileInfo::exists(path);
}

qint64 Util::DirSize(QString path)
{
    if (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    // An empty path would mean the current folder.
    if (path.isEmpty())
        return 0;
    qint64 bytes = 0;
    const QFileInfoList entries =
        QDir(path).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QFileInfo& entry : entries) {
        if (!entry.isDir())
            bytes += entry.size();
        else if (!leadsBack(entry))
            bytes += DirSize(entry.absoluteFilePath());
    }
    return bytes;
}
