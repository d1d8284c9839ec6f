// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMutex>
#include <QString>
#include <QThread>
#include <QWaitCondition>

#include <atomic>

// Copies, deletes and moves files and folders in the background, one task after the other in the
// order in which they were queued. The pages that have a work folder own one each and ask it how
// much is left before they write an image.
//
// Tasks are carried out silently: one that fails counts as done. Of all queues in the process only
// one works at a time, as the copying shares a buffer and the counter Util::copyedsize; a queue
// whose page is just being closed finishes its task before the next page's begins.
//
// Every function may be called from any thread; a page calls them from the user-interface thread.
// The owner calls stop() and then wait() before it lets go of the queue.
class CFileCopy : public QThread
{
    Q_OBJECT

public:
    enum TaskType
    {
        Nothing = -1, // only takes its turn
        Copy = 0,     // a file to the file destination, a folder into the folder destination
        Delete = 1,   // a file, or a folder with everything in it; the destination is empty
        Move = 2      // renames a file or a folder to destination
    };

    // Starts the worker at once; it sleeps while there is nothing to do.
    explicit CFileCopy(QObject* parent);
    ~CFileCopy() override;

    // Appends a task. Paths are absolute. A type that is none of the above does nothing either.
    void AddTask(QString source, QString destination, int type);
    // Drops the first queued task with exactly this source. A task in progress is finished all the
    // same, and whatever task heads the queue then is dropped in its place, never carried out.
    void RemoveTask(QString source);
    // Drops every task. A task in progress is finished; see RemoveTask().
    void ClearAllTasks();
    // Drops every task for this one, which is carried out even if a task is in progress.
    void ReplaceTasks(QString source, QString destination, int type);

    // Bytes that are still to be processed: of every queued task, the one in progress included, the
    // size of its source on disk, less what is copied of the current one. Zero or less when nothing
    // is queued. Measures the sources anew on each call, so it takes time when there are many.
    qint64 GetLeftTaskBytes();
    // Whether a task is queued or in progress, be it one without any bytes.
    bool HasTasks();
    // Milliseconds of processor time for what is left, at the rate since the last call; 0 when
    // there is no rate to go by.
    quint64 EstimateSeconds();

    // Lets the worker end after the task in progress, without waiting for it. What has not begun by
    // then is dropped, except that a worker which is just waking up for a task still does that one.
    void stop();
    bool IsStopped() const;

protected:
    void run() override;

private:
    struct Task
    {
        int type = Copy;
        QString source;
        QString destination;
    };

    static void carryOut(const Task& task);

    QMutex mutex; // guards the tasks and what was last estimated
    QList<Task> tasks;
    bool taskInProgress = false;
    std::atomic<bool> stopped{false};
    QWaitCondition condition;
    quint64 lastTicks = 0;
    qint64 lastLeft = 0;
};
