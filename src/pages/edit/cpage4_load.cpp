// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Loading an image: it is listed to be browsed at once and unpacked in the background.

#include "cpage4.h"
#include "mkisofscommand.h"
#include "sevenzipcommand.h"
#include "sevenzipprogress.h"
#include "util.h"

#include <QDebug>
#include <QFileInfo>

namespace
{

constexpr int mostTurns = 3000; // of 10 ms

} // namespace

void CPage4::OnLoadISO()
{
    // Before the user has chosen: it is likely to be done by then.
    queue.AddTask(workFolder, QString(), CFileCopy::Delete);
    const QString path = Util::GetOpenFileDialog(this, "ISO Files(*.ISO)");
    if (path.isEmpty() || !QFileInfo(path).isFile())
        return;
    isoPath = path;
    startListing(sevenZipListUtf8Arguments(isoPath));

    const QString bootImage = Util::GetCurrentExePath() + '/' + bootImageName();
    Util::RemoveFile(bootImage);
    Util::BootExtract(isoPath, bootImage);

    unpacking.stopAndWait();
    SetEnabled(false);
    pendingTasks.clear();
    unpackingProgress = 0;
    // Whatever is still queued is for the image that was shown before. Its files have to be gone
    // before this one's are there.
    queue.ReplaceTasks(workFolder, QString(), CFileCopy::Delete);
    Util::copyedsize = 0;
    turnsWaited = 0;
    preparation.start();
}

void CPage4::unpackWhenClean()
{
    if (queue.HasTasks())
        return;
    // What an archiver of an earlier run still writes must not mix with what this one does. One
    // that hangs does not hold it up for ever.
    if (turnsWaited < mostTurns && !lock.take()) {
        ++turnsWaited;
        return;
    }
    if (turnsWaited > 0 && turnsWaited < mostTurns) {
        turnsWaited = 0;
        queue.ReplaceTasks(workFolder, QString(), CFileCopy::Delete);
        return;
    }
    preparation.stop();
    unpacking.start(this, SLOT(OnExtractOutput(QString)), SLOT(OnExtractFinished()),
                    sevenZipProgram(), sevenZipExtractAllArguments(isoPath, workFolder));
}

bool CPage4::isUnpacking() const
{
    return preparation.isActive() || unpacking.isRunning();
}

void CPage4::OnUnzipFinished()
{
    SetEnabled(true);
    ImagePage::OnUnzipFinished();
}

void CPage4::OnExtractOutput(QString line)
{
    if (unpacking.isLate(sender()))
        return;
    // The archiver runs and has it.
    lock.keep();
    const auto percent = readSevenZipPercent(line);
    if (!percent)
        return;
    unpackingProgress = *percent;
    qDebug() << line;
    qDebug() << "m_ExtractProgress:" << unpackingProgress;
}

void CPage4::OnExtractFinished()
{
    if (unpacking.isLate(sender()))
        return;
    releasePendingTasks();
    unpacking.forget();
    lock.release();
    qDebug() << "CPage4::OnExtractFinished() is called!!";
}

void CPage4::releasePendingTasks()
{
    for (const FileTask& task : qAsConst(pendingTasks))
        queue.AddTask(task.source, task.destination, task.type);
    pendingTasks.clear();
}

void CPage4::AddFileOpTasks(QString source, QString destination, int type)
{
    if (isUnpacking()) {
        pendingTasks.append({source, destination, type});
        return;
    }
    releasePendingTasks();
    queue.AddTask(source, destination, type);
}
