// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "processcounts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KORVEX_ADDRESS_SANITIZER
#include <sanitizer/allocator_interface.h>
#endif
#endif

namespace
{

// The threads that go by the name of the process: the first one, and that of the thread sanitizer.
#ifdef __has_feature
#if __has_feature(thread_sanitizer)
#define KORVEX_THREAD_SANITIZER
#endif
#endif
#if defined(KORVEX_THREAD_SANITIZER) || defined(__SANITIZE_THREAD__)
constexpr int ownThreads = 2;
#else
constexpr int ownThreads = 1;
#endif

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

// The folders of this process's threads that go by the name.
QStringList threadsNamed(const QByteArray& name)
{
    QStringList found;
    const QStringList threads =
        QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& thread : threads) {
        const QString folder = "/proc/self/task/" + thread;
        if (contentOf(folder + "/comm").trimmed() == name)
            found.append(folder);
    }
    return found;
}

QStringList runnerThreads()
{
    // The system keeps 15 characters of the class's name.
    return threadsNamed(QByteArray("CRunCommandThread").left(15));
}

// What a sanitizer starts to learn the names of functions, and keeps.
bool isOfSanitizer(const QString& pid)
{
    return QFile::symLinkTarget("/proc/" + pid + "/exe").contains("/llvm-symbolizer");
}

} // namespace

int runnerThreadCount()
{
    return runnerThreads().size();
}

// A thread goes by the name of the one that made it until it has one of its own.
bool areRunnersGone()
{
    const QString self = QString::number(QCoreApplication::applicationPid());
    const QByteArray ownName = contentOf("/proc/self/task/" + self + "/comm").trimmed();
    return threadsNamed(ownName).size() <= ownThreads && runnerThreadCount() == 0;
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
#ifdef KORVEX_ADDRESS_SANITIZER
    return qint64(__sanitizer_get_current_allocated_bytes() / 1024);
#else
    return statusNumber("VmRSS");
#endif
}

QList<qint64> childProcesses()
{
    QList<qint64> children;
    const QByteArray self = QByteArray::number(QCoreApplication::applicationPid());
    for (const QString& pid : processNumbers()) {
        if (statFields(pid).value(1) == self && !isOfSanitizer(pid))
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
