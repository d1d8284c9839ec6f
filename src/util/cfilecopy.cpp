// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cfilecopy.h"

#include "clocker.h"
#include "util.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <ctime>
#include <utility>

namespace
{

// Held while a task is carried out, by whichever queue does so. Never destroyed: the process may
// end in the middle of a task.
QMutex& workMutex()
{
    static QMutex* const mutex = new QMutex;
    return *mutex;
}

void copyEntry(const QString& source, const QString& destination)
{
    if (QFileInfo(source).isFile())
        Util::FileCopy(source, destination);
    else
        Util::DirCopy2(source, destination);
}

void deleteEntry(const QString& source)
{
    if (QFileInfo(source).isFile())
        QFile::remove(source);
    else
        Util::RemoveDir(source, true);
}

void moveEntry(const QString& source, const QString& destination)
{
    if (QFileInfo(source).isFile())
        QFile::rename(source, destination);
    else
        QDir(source).rename(source, destination);
}

qint64 sizeOnDisk(const QString& source)
{
    const QFileInfo info(source);
    return info.isFile() ? info.size() : Util::DirSize(source);
}

} // namespace

CFileCopy::CFileCopy(QObject* parent)
    : QThread(parent)
{
    start(QThread::InheritPriority);
}

CFileCopy::~CFileCopy()
{
    stop();
    wait();
}

void CFileCopy::AddTask(QString source, QString destination, int type)
{
    const CLocker locker(mutex);
    tasks.append({type, source, destination});
    condition.wakeOne();
}

void CFileCopy::RemoveTask(QString source)
{
    const CLocker locker(mutex);
    const auto isWanted = [&source](const Task& task) { return task.source == source; };
    const auto found = std::find_if(tasks.begin(), tasks.end(), isWanted);
    if (found != tasks.end())
        tasks.erase(found);
}

void CFileCopy::ClearAllTasks()
{
    const CLocker locker(mutex);
    tasks.clear();
}

void CFileCopy::ReplaceTasks(QString source, QString destination, int type)
{
    const CLocker locker(mutex);
    tasks.clear();
    // The end of the task in progress will drop what heads the list.
    if (taskInProgress)
        tasks.append({Nothing, QString(), QString()});
    tasks.append({type, source, destination});
    condition.wakeOne();
}

qint64 CFileCopy::GetLeftTaskBytes()
{
    const CLocker locker(mutex);
    qint64 bytes = 0;
    for (const Task& task : qAsConst(tasks))
        bytes += sizeOnDisk(task.source);
    return bytes - Util::copyedsize;
}

bool CFileCopy::HasTasks()
{
    const CLocker locker(mutex);
    return !tasks.isEmpty();
}

quint64 CFileCopy::EstimateSeconds()
{
    const quint64 ticks = quint64(std::clock());
    const qint64 left = GetLeftTaskBytes();
    const CLocker locker(mutex);
    const quint64 previousTicks = std::exchange(lastTicks, ticks);
    const qint64 previousLeft = std::exchange(lastLeft, left);
    if (ticks == previousTicks)
        return 0;
    const quint64 rate = quint64(previousLeft - left) / (ticks - previousTicks);
    return rate == 0 ? 0 : quint64(left) * 1000 / rate;
}

void CFileCopy::stop()
{
    // Under the lock, so that a worker that is about to sleep does not miss it.
    const CLocker locker(mutex);
    stopped = true;
    condition.wakeOne();
}

bool CFileCopy::IsStopped() const
{
    return stopped;
}

void CFileCopy::run()
{
    while (!stopped) {
        CLocker locker(mutex);
        // A wake-up may find nothing to do.
        while (tasks.isEmpty() && !stopped)
            condition.wait(&mutex);
        if (tasks.isEmpty())
            return;
        const Task task = tasks.first();
        taskInProgress = true;
        locker.Unlock();
        {
            const QMutexLocker oneAtATime(&workMutex());
            carryOut(task);
        }
        locker.Lock();
        taskInProgress = false;
        // Whatever heads the list by now, which need not be the task that was carried out.
        if (!tasks.isEmpty())
            tasks.removeFirst();
    }
}

void CFileCopy::carryOut(const Task& task)
{
    Util::copyedsize = 0;
    switch (task.type) {
    case Copy:
        copyEntry(task.source, task.destination);
        break;
    case Delete:
        deleteEntry(task.source);
        break;
    case Move:
        moveEntry(task.source, task.destination);
        break;
    default:
        break;
    }
}
