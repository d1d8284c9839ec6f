// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Changing what is in the image: in the tree and the views at once, in the work folder by queue.

#include "cinputdialog.h"
#include "cpage4.h"
#include "diskentries.h"
#include "util.h"

#include <QFileInfo>
#include <QTableWidget>
#include <QTreeWidget>

#include <algorithm>

QList<int> CPage4::tickedRows() const
{
    QList<int> rows;
    for (int row = 0; row < entryTable->rowCount(); ++row) {
        if (entryTable->item(row, 0)->checkState() == Qt::Checked)
            rows.append(row);
    }
    return rows;
}

Item* CPage4::childOfRow(int row)
{
    const bool exists = current && row >= 0 && row < current->children.size();
    return exists ? &current->children[row] : nullptr;
}

void CPage4::OnAdd()
{
    if (!current)
        return;
    const QStringList paths = Util::GetDirsAndFilesDialog(this);
    if (paths.isEmpty())
        return;
    QString folder = current->path + '/';
    if (folder.startsWith('/'))
        folder.remove(0, 1);
    QTreeWidgetItem* const folderNode = GetTreeWidgetItemByData(folderView, current);
    Util::SetCursorBusy();
    for (const QString& path : paths)
        addEntry(path, folder, folderNode);
    Util::RestoreCursor();
}

void CPage4::addEntry(const QString& path, const QString& folder, QTreeWidgetItem* folderNode)
{
    const QFileInfo info(path);
    Item entry = itemOnDisk(info, folder + info.fileName());
    if (!tree.AddItem(entry))
        return;
    appendRow(entry);
    if (!entry.isDir) {
        AddFileOpTasks(path, workFolder + folder + info.fileName(), CFileCopy::Copy);
        return;
    }
    Item* const added = tree.GetItem(entry.path);
    QTreeWidgetItem* const node = createNode(added);
    AddSubDir(added, entry.localPath, node);
    if (folderNode)
        folderNode->addChild(node);
    AddFileOpTasks(entry.localPath, workFolder + folder, CFileCopy::Copy);
}

void CPage4::AddSubDir(Item* item, QString folder, QTreeWidgetItem* node)
{
    appendDiskContents(*item, folder);
    LoadFiles(item, nullptr, node);
}

void CPage4::OnRename()
{
    const QList<int> rows = tickedRows();
    if (rows.isEmpty()) {
        Util::ShowError(tr("Please select one row in the table list first"));
        return;
    }
    Item* const item = childOfRow(rows.first());
    if (!item)
        return;
    CInputDialog dialog(this);
    dialog.SetInput(item->GetName());
    if (dialog.exec() != 1)
        return;
    const QString newName = dialog.GetInput();
    if (newName.isEmpty() || newName == item->GetName())
        return;
    const QString objection = whyNot(newName);
    if (!objection.isEmpty()) {
        Util::ShowError(objection);
        return;
    }
    rename(*item, newName);
    entryTable->item(rows.first(), 0)->setText(newName);
}

// With such a name, what is shown and what is in the work folder would part ways.
QString CPage4::whyNot(const QString& newName) const
{
    if (newName.contains('/') || newName == "." || newName == "..")
        return tr("This name cannot be used");
    const auto hasName = [&newName](const Item& sibling) { return sibling.GetName() == newName; };
    const bool isTaken = std::any_of(current->children.cbegin(), current->children.cend(), hasName);
    return isTaken ? tr("A file or folder with this name already exists") : QString();
}

void CPage4::rename(Item& item, const QString& newName)
{
    const QString oldPath = item.path;
    item.RenameBranch(newName);
    AddFileOpTasks(workFolder + oldPath, workFolder + item.path, CFileCopy::Move);
    if (QTreeWidgetItem* const node = GetTreeWidgetItemByData(folderView, &item))
        node->setText(0, newName);
}

void CPage4::OnDelete()
{
    QList<int> rows = tickedRows();
    if (rows.isEmpty()) {
        Util::ShowError(tr("Please select one row in the table list first"));
        return;
    }
    // From the last to the first, so that the numbers of those to come stay right.
    std::sort(rows.begin(), rows.end(), std::greater<>());
    for (const int row : qAsConst(rows)) {
        Item* const item = childOfRow(row);
        if (!item)
            continue;
        AddFileOpTasks(workFolder + item->path, QString(), CFileCopy::Delete);
        if (item->isDir)
            delete GetTreeWidgetItemByData(folderView, item);
        current->children.removeAt(row);
    }
    RefreshTable();
}

void CPage4::OnNew() {}
