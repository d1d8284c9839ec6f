// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Extracting the ticked entries: from the ticks to the command, its progress and its end.

#include "cpage2.h"
#include "cprogressdialog.h"
#include "debugstreams.h"
#include "gerneraldialog.h"
#include "sevenzipcommand.h"
#include "sevenzipprogress.h"
#include "util.h"

#include <QDir>
#include <QFileInfo>
#include <QTableWidget>
#include <QTreeWidget>

namespace
{

// The archiver has recreated the image's folders: the entry goes up to where the user wants it.
void moveUp(const QString& source, const QString& destination)
{
    if (QFileInfo(source).isDir())
        QDir().rename(source, destination);
    else
        QFile::rename(source, destination);
}

} // namespace

void CPage2::OnExtract()
{
    const QStringList names = tickedNames();
    if (names.isEmpty()) {
        GerneralDialog message(this);
        message.SetBackGround(":/nwu/select_files_extract",
                              tr("Please select the files or folders you want to extract"));
        message.AddOK(120, 0);
        message.exec();
        return;
    }
    const QString folder = Util::GetDirDialog(this);
    if (folder.isEmpty())
        return;
    outputDir = folder;
    folderPrefix = currentFolderPrefix();
    selectedNames = names;
    QStringList paths;
    for (const QString& name : names)
        paths.append(folderPrefix + name);
    startExtraction(sevenZipExtractArguments(isoPath, outputDir, paths));
}

// Each name once: a second row of the same name would only be moved a second time.
QStringList CPage2::tickedNames() const
{
    QStringList names;
    for (int row = 0; row < entryTable->rowCount(); ++row) {
        const QTableWidgetItem* const cell = entryTable->item(row, 0);
        if (cell->checkState() == Qt::Checked)
            names.append(cell->text());
    }
    names.removeDuplicates();
    return names;
}

QString CPage2::currentFolderPrefix() const
{
    QString prefix;
    const QTreeWidgetItem* node = GetTreeWidgetItemByData(folderView, current);
    for (; node && node->parent(); node = node->parent())
        prefix.prepend(node->text(0) + '/');
    return prefix;
}

void CPage2::startExtraction(const QStringList& arguments)
{
    run.stop();
    setEnabled(false);
    shownPercent = 0;
    progress->SetText(tr("Extracting files..."));
    progress->SetRange(0, 100);
    progress->SetValue(0);
    progress->show();
    run.start(this, SLOT(OnExtractOutput(QString)), SLOT(OnExtractFinished()), sevenZipProgram(),
              arguments);
}

void CPage2::OnExtractOutput(QString line)
{
    qCDebug(toolOutput) << "CPage2::OnExtractOutput" << line;
    if (run.isLate(sender()))
        return;
    const auto reading = readSevenZipProgress(line);
    if (!reading)
        return;
    // What a name looks like must not move the bar back or beyond its end.
    shownPercent = qBound(shownPercent, reading->percent, 100);
    progress->SetValue(shownPercent);
    progress->SetText(tr("Extracting files: ") + reading->entry);
    if (reading->percent > 99)
        progress->SetText(tr("Copying files! Please wait a few seconds.."));
}

void CPage2::OnExtractFinished()
{
    // A Stop that came just before this signal has ended the extraction already.
    if (run.isLate(sender()))
        return;
    run.forget();
    moveExtractedUp();
    setEnabled(true);
    progress->hide();
    Util::WriteLog("Extract files successfully :" + outputDir);
    Util::ShowOpen(tr("Extract files successfully."), outputDir);
}

void CPage2::moveExtractedUp() const
{
    for (const QString& name : selectedNames)
        moveUp(outputDir + '/' + folderPrefix + '/' + name, outputDir + '/' + name);
    const int firstComponent = folderPrefix.indexOf('/');
    if (firstComponent > 0)
        Util::RemoveDir(outputDir + '/' + folderPrefix.left(firstComponent), false);
}

void CPage2::OnStopExtract()
{
    run.stop();
    setEnabled(true);
}
