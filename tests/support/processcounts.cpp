// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "processcounts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace
{

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

qint64 statusNumber(const QByteArray& field, const QString& path = "/proc/self/status")
{
    const QList<QByteArray> lines = contentOf(path).split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith(field + ':'))
            return line.mid(field.size() + 1).simplified().split(' ').first().toLongLong();
    }
    return -1;
}

// The fields of /proc/<pid>/stat behind the executable's name: state, parent, …
QList<QByteArray> statFields(const QString& pid)
{
    const QByteArray stat = contentOf("/proc/" + pid + "/stat");
    return stat.mid(stat.lastIndexOf(')') + 2).split(' ');
}

QStringList processNumbers()
{
    return QDir("/proc").entryList({"[0-9]*"}, QDir::Dirs);
}

QStringList runnerThreads()
{
    // The system keeps 15 characters of the class's name.
    const QByteArray name = QByteArray("CRunCommandThread").left(15);
    QStringList found;
    const QStringList threads = QDir("/proc/self/task").entryList(QDir::Dirs);
    for (const QString& thread : threads) {
        const QString folder = "/proc/self/task/" + thread;
        if (contentOf(folder + "/comm").trimmed() == name)
            found.append(folder);
    }
    return found;
}

} // namespace

int runnerThreadCount()
{
    return runnerThreads().size();
}

qint64 runnerThreadWaits()
{
    qint64 waits = 0;
    const QStringList threads = runnerThreads();
    for (const QString& thread : threads)
        waits += statusNumber("voluntary_ctxt_switches", thread + "/status");
    return waits;
}

int descriptorCount()
{
    return QDir("/proc/self/fd")
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

qint64 residentKilobytes()
{
    return statusNumber("VmRSS");
}

QList<qint64> childProcesses()
{
    QList<qint64> children;
    const QByteArray self = QByteArray::number(QCoreApplication::applicationPid());
    for (const QString& pid : processNumbers()) {
        if (statFields(pid).value(1) == self)
            children.append(pid.toLongLong());
    }
    return children;
}

QList<qint64> processesOf(const QString& executableName)
{
    // Every test process has a data folder of its own and hands it down.
    const QByteArray mark = "XDG_DATA_HOME=" + qgetenv("XDG_DATA_HOME");
    QList<qint64> found;
    const QStringList pids = processNumbers();
    for (const QString& pid : pids) {
        const QString executable = QFile::symLinkTarget("/proc/" + pid + "/exe");
        if (QFileInfo(executable).fileName() == executableName &&
            contentOf("/proc/" + pid + "/environ").split('\0').contains(mark))
            found.append(pid.toLongLong());
    }
    return found;
}
