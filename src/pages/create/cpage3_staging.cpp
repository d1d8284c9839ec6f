// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Collecting what goes into the image: into the tree, the list and the staging folder.

#include "cpage3.h"
#include "diskentries.h"
#include "util.h"

#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QTreeWidget>

namespace
{

enum Column
{
    NameColumn,
    PathColumn,
    SizeColumn,
    TypeColumn,
    TimeColumn
};

constexpr qint64 fullBytes = 5368709120; // 5 GB

} // namespace

QTreeWidgetItem* CPage3::firstSelectedRow() const
{
    const QList<QTreeWidgetItem*> selected = list->selectedItems();
    return selected.isEmpty() ? nullptr : selected.first();
}

QString CPage3::GetCurrSelectDir()
{
    QString folder;
    const QTreeWidgetItem* row = firstSelectedRow();
    while (row && (row = row->parent()))
        folder.prepend(row->text(NameColumn).trimmed() + '/');
    return folder;
}

// What is added goes into the folder that holds the selected row, yet shows under that row itself.
void CPage3::OnAddFile()
{
    QTreeWidgetItem* const parentRow = firstSelectedRow();
    const QStringList paths = Util::GetOpenFilesDialog(this);
    if (paths.isEmpty())
        return;
    const QString folder = GetCurrSelectDir();
    const Item* const folderItem = tree.GetItem(folder);
    if (folderItem && !folderItem->isDir)
        return;
    Util::SetCursorBusy();
    for (const QString& path : paths)
        addFile(path, folder, parentRow);
    RefreshTotalSize();
    Util::RestoreCursor();
}

void CPage3::addFile(const QString& path, const QString& folder, QTreeWidgetItem* parentRow)
{
    const QFileInfo info(path);
    Item item = itemOnDisk(info, folder + info.fileName());
    if (!tree.AddItem(item))
        return;
    addRow(createRow(item), parentRow);
    queue.AddTask(item.localPath, stagingFolder + item.path, CFileCopy::Copy);
}

void CPage3::OnAddDir()
{
    QTreeWidgetItem* const parentRow = firstSelectedRow();
    const QStringList paths = Util::GetDirsDialog(this);
    if (paths.isEmpty())
        return;
    const QString folder = GetCurrSelectDir();
    const Item* folderItem = tree.GetItem(folder);
    if (!folderItem)
        folderItem = &tree.root;
    if (!folderItem->isDir)
        return;
    Util::SetCursorBusy();
    for (const QString& path : paths)
        addFolder(path, folder, parentRow);
    RefreshTotalSize();
    Util::RestoreCursor();
}

void CPage3::addFolder(const QString& path, const QString& folder, QTreeWidgetItem* parentRow)
{
    const QFileInfo info(path);
    Item item = itemOnDisk(info, folder + info.fileName());
    if (!tree.AddItem(item))
        return;
    QTreeWidgetItem* const row = createRow(item);
    addRow(row, parentRow);
    InnerAddDir(tree.GetItem(item.path), item.localPath, row, nullptr);
    // One task for all of it.
    queue.AddTask(item.localPath, stagingFolder + folder, CFileCopy::Copy);
}

void CPage3::InnerAddDir(Item* item, QString folder, QTreeWidgetItem* parentRow, QTreeWidget* view)
{
    const int earlier = item->children.size();
    appendDiskContents(*item, folder);
    QList<QTreeWidgetItem*> rows;
    for (int i = earlier; i < item->children.size(); ++i)
        rows.append(createBranch(item->children.at(i)));
    // All at once, with everything below them, which spares the list a notice for each.
    if (view)
        view->addTopLevelItems(rows);
    else
        parentRow->addChildren(rows);
}

QTreeWidgetItem* CPage3::createBranch(const Item& item) const
{
    QTreeWidgetItem* const row = createRow(item);
    QList<QTreeWidgetItem*> rows;
    for (const Item& child : item.children)
        rows.append(createBranch(child));
    row->addChildren(rows);
    return row;
}

QTreeWidgetItem* CPage3::createRow(const Item& item) const
{
    QTreeWidgetItem* const row = new QTreeWidgetItem;
    row->setText(NameColumn, item.GetName());
    row->setText(PathColumn, item.GetRelPath());
    row->setText(TimeColumn, item.timeText);
    if (item.isDir) {
        row->setIcon(NameColumn, folderIcon);
        row->setData(NameColumn, Qt::UserRole, 1);
        row->setText(TypeColumn, tr("Folder"));
    } else {
        const QFileInfo info(item.localPath);
        row->setIcon(NameColumn, iconProvider.icon(info));
        row->setText(SizeColumn, Util::SizeToString(item.sizeText.toLongLong()));
        row->setText(TypeColumn, iconProvider.type(info));
    }
    return row;
}

void CPage3::addRow(QTreeWidgetItem* row, QTreeWidgetItem* parentRow)
{
    if (parentRow)
        parentRow->addChild(row);
    else
        list->addTopLevelItem(row);
}

void CPage3::OnRemove()
{
    QTreeWidgetItem* const row = firstSelectedRow();
    if (!row)
        return;
    const QString path = GetCurrSelectDir() + row->text(NameColumn).trimmed();
    const Item* const item = tree.GetItem(path);
    if (!item)
        return;
    queue.RemoveTask(item->localPath);
    queue.AddTask(stagingFolder + path, QString(), CFileCopy::Delete);
    del(row);
    tree.RemoveItem(path);
    RefreshTotalSize();
}

void CPage3::del(QTreeWidgetItem* row)
{
    while (row->childCount() > 0)
        del(row->child(row->childCount() - 1));
    delete row;
}

void CPage3::RefreshTotalSize()
{
    const qint64 bytes = tree.TotalSize();
    totalSize->setText(tr("Total Size: ") + Util::SizeToString(bytes));
    gauge->setValue(bytes < fullBytes ? int(bytes * 100 / fullBytes) : 100);
}
