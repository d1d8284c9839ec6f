// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Copying entries out of the image, into a folder on the computer.

#include "copywait.h"
#include "cpage4.h"
#include "cprogressdialog.h"
#include "util.h"

#include <QDebug>
#include <QFileInfo>

namespace
{

constexpr int pollMs = 200;

// A copy would begin by emptying the file it is to read, or go on without end.
bool isOntoOrIntoItself(const QString& source, const QString& target)
{
    const QFileInfo info(target);
    const QString from = QFileInfo(source).canonicalFilePath();
    const QString into = QFileInfo(info.absolutePath()).canonicalFilePath();
    return !from.isEmpty() &&
           (info.canonicalFilePath() == from || (into + '/').startsWith(from + '/'));
}

} // namespace

void CPage4::OnExport()
{
    PageLifetime::Step step(lifetime);
    const QList<int> rows = tickedRows();
    if (rows.isEmpty()) {
        Util::ShowError(tr("Please select files or folders in the list first."));
        return;
    }
    const QString folder = Util::GetDirDialog(this);
    if (folder.isEmpty())
        return;
    step.begin();
    if (isUnpacking()) {
        waitForUnpacking();
        if (!step.isCurrent())
            return;
        if (cancelled) {
            progress->hide();
            return;
        }
    }
    progress->show();
    for (const int row : rows) {
        if (const Item* const item = childOfRow(row))
            queueExport(*item, folder);
    }
    waitForCopies(queue, *progress, tr("Copy files and directories..."), "CPage4::OnCreate");
    if (!step.isCurrent())
        return;
    progress->hide();
    if (cancelled)
        return;
    qDebug() << "file copy finished!!!";
    Util::ShowOpen(tr("Export Successfully !"), folder);
}

// What the image had lies in the work folder, what was added since where it was added from.
void CPage4::queueExport(const Item& item, const QString& folder)
{
    const QString source = item.localPath.isEmpty() ? workFolder + item.path : item.localPath;
    const QString file = folder + '/' + item.GetName();
    // A folder keeps the name it has on disk.
    if (isOntoOrIntoItself(source, item.isDir ? folder + '/' + QFileInfo(source).fileName() : file))
        return;
    queue.AddTask(source, item.isDir ? folder : file, CFileCopy::Copy);
}

// With the progress dialog, the window alive.
void CPage4::waitForUnpacking()
{
    progress->SetRange(0, 100);
    progress->SetText(tr("Extracting iso..."));
    progress->show();
    int shown = 0;
    while (isUnpacking() && !lifetime.isClosed()) {
        // What a name looks like must not move the bar back or beyond its end.
        shown = qBound(shown, unpackingProgress, 100);
        progress->SetValue(shown);
        processEventsFor(pollMs);
    }
}
